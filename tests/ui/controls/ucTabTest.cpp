#include "ui/controls/ucTab.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include "ui/controls/ucTabArea.h"

namespace {

// A tab 30 pixels high in a window, and a second tab right of it.
class ucTabTest : public ::testing::Test {
protected:
    ucTabTest() {
        host.resize(400, 60);
        tab->setGeometry(10, 10, tab->width(), 30);
        next->move(tab->geometry().topRight() + QPoint(1, 0));
        host.show();
    }

    QLabel* Label() const { return tab->findChild<QLabel*>(QStringLiteral("Label1")); }

    QWidget host;
    ucTab* tab = new ucTab(&host);
    ucTab* next = new ucTab(&host);
};

TEST_F(ucTabTest, ACaptionChangeResizesTheTabAtOnceKeepingEightPixelMargins) {
    QSignalSpy resized(tab, &ucTab::Resize);
    for (const char* caption : {"Graphics and sound of the game", "A"}) {
        tab->SetCaption(caption);
        EXPECT_EQ(Label()->x(), 8);
        EXPECT_EQ(tab->width(), Label()->width() + 16);
        EXPECT_GE(Label()->width(), Label()->fontMetrics().horizontalAdvance(tab->Caption()));
    }
    EXPECT_GE(resized.count(), 2);
}

// The active tab has a 2-pixel border two pixels higher and no bottom line, so it opens into the page area
// below; the inactive one is closed at the bottom. Setting the state again changes nothing.
TEST_F(ucTabTest, DrawsTheFrameOfItsState) {
    const QColor border(0x80, 0x80, 0x80);
    for (const bool active : {true, false}) {
        tab->SetIsActive(active);
        const int width = active ? 2 : 1;
        const int top = active ? 2 : 4;
        EXPECT_EQ(tab->FrameBorderWidth(), width);
        EXPECT_EQ(tab->FrameRect(), QRect(0, top, tab->width(), active ? 35 : 26));
        EXPECT_EQ(Label()->pos(), QPoint(8, active ? 6 : 8));
        const QImage image = tab->grab().toImage();
        EXPECT_NE(image.pixelColor(3, top - 1), border) << active;
        EXPECT_EQ(image.pixelColor(3, top + width - 1), border) << active;
        EXPECT_EQ(image.pixelColor(width - 1, 20), border) << active;
        EXPECT_EQ(image.pixelColor(tab->width() - width, 20), border) << active;
        EXPECT_EQ(image.pixelColor(3, 29), active ? QColor(0xE0, 0xE0, 0xE0) : border) << active;
        tab->SetIsActive(active);
        EXPECT_EQ(tab->grab().toImage(), image) << "set again";
    }
}

// A left click on the caption or the empty area, Space, Return and Enter click; hosts hear of the click
// while the tab is still inactive, then it activates itself. The right button, a release outside and other
// keys do nothing.
TEST_F(ucTabTest, LeftClicksAndActivationKeysActivate) {
    const std::vector<std::function<void()>> actions = {
        [&] { QTest::mouseClick(tab, Qt::LeftButton, {}, Label()->geometry().center()); },
        [&] { QTest::mouseClick(tab, Qt::LeftButton, {}, QPoint(2, tab->height() - 3)); },
        [&] { QTest::keyClick(tab, Qt::Key_Space); }, [&] { QTest::keyClick(tab, Qt::Key_Return); },
        [&] { QTest::keyClick(tab, Qt::Key_Enter); }};
    std::vector<bool> activeWhenClicked;
    QObject::connect(tab, &ucTab::Click, [&] { activeWhenClicked.push_back(tab->IsActive()); });
    QTest::mouseClick(tab, Qt::RightButton, {}, QPoint(4, 10));
    QTest::mousePress(tab, Qt::LeftButton, {}, QPoint(4, 10));
    QTest::mouseRelease(tab, Qt::LeftButton, {}, QPoint(tab->width() + 20, 10));
    QTest::keyClick(tab, Qt::Key_A);
    EXPECT_TRUE(activeWhenClicked.empty() && !tab->IsActive());
    for (const auto& action : actions) {
        tab->SetIsActive(false);
        action();
        EXPECT_TRUE(tab->IsActive()) << "action " << activeWhenClicked.size();
    }
    EXPECT_EQ(activeWhenClicked, std::vector<bool>(actions.size(), false));
}

TEST_F(ucTabTest, TabMovesToTheNextTabWhichShowsItsFocus) {
    QApplication::setActiveWindow(&host);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&host));
    tab->setFocus();
    const QImage unfocused = next->grab().toImage();
    QTest::keyClick(tab, Qt::Key_Tab);
    EXPECT_TRUE(next->hasFocus());
    EXPECT_NE(next->grab().toImage(), unfocused) << "no focus rectangle around the caption";
}

// Hosts hide a page area by shrinking it to nothing; it must come back with the frame it had.
TEST(ucTabArea, DrawsItsWholeFrameAndKeepsItThroughAZeroSize) {
    ucTabArea area;
    area.resize(300, 200);
    area.show();
    area.SetBorderColor(QColor(0x12, 0x34, 0x56));
    area.SetBackColor(QColor(0xFE, 0xDC, 0xBA));
    const QImage image = area.grab().toImage();
    EXPECT_EQ(image.pixelColor(0, 0), QColor(0x12, 0x34, 0x56));
    EXPECT_EQ(image.pixelColor(299, 199), QColor(0x12, 0x34, 0x56));
    EXPECT_EQ(image.pixelColor(1, 1), QColor(0xFE, 0xDC, 0xBA));
    area.resize(300, 0);
    EXPECT_EQ(area.FrameRect(), QRect(0, 0, 300, 200));
    area.resize(0, 120);
    EXPECT_EQ(area.FrameRect(), QRect(0, 0, 300, 120));
}

}  // namespace
