#include "ui/controls/ucTab.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeySequence>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include "ui/QtText.h"
#include "ui/controls/PropertyBag.h"

namespace {

const QColor kBorder(0x80, 0x80, 0x80);
const QColor kFill(0xE0, 0xE0, 0xE0);
const QColor kHostBackground(0x20, 0x90, 0x30);

class ucTabTest : public ::testing::Test {
protected:
    ucTabTest() {
        host.setAutoFillBackground(true);
        QPalette palette = host.palette();
        palette.setColor(QPalette::Window, kHostBackground);
        host.setPalette(palette);
        host.resize(400, 60);
        tab->setGeometry(10, 10, tab->width(), 30);
        host.show();
    }

    QLabel* Label() const { return tab->findChild<QLabel*>(QStringLiteral("Label1")); }

    // The caption keeps equal margins of 8 pixels, whatever it says.
    void ExpectCaptionMargins() const {
        EXPECT_EQ(Label()->x(), 8);
        EXPECT_EQ(tab->width() - Label()->geometry().right() - 1, 8);
        EXPECT_GE(Label()->width(), Label()->fontMetrics().horizontalAdvance(tab->Caption()));
    }

    // Hosts hear of the click while the tab is still inactive; then the tab activates itself.
    void ExpectClickThenActive(const std::function<void()>& action) {
        std::vector<bool> activeWhenClicked;
        QObject listener;
        QObject::connect(tab, &ucTab::Click, &listener,
                         [&] { activeWhenClicked.push_back(tab->IsActive()); });
        action();
        EXPECT_EQ(activeWhenClicked, std::vector<bool>{false});
        EXPECT_TRUE(tab->IsActive());
    }

    QWidget host;
    ucTab* tab = new ucTab(&host);
};

TEST_F(ucTabTest, ACaptionChangeResizesTheTabAtOnce) {
    EXPECT_EQ(tab->Caption(), QStringLiteral("Label1"));
    ExpectCaptionMargins();
    QSignalSpy resized(tab, &ucTab::Resize);
    const int before = tab->width();
    tab->SetCaption(QStringLiteral("Graphics and sound of the game"));
    EXPECT_GT(tab->width(), before);
    ExpectCaptionMargins();
    tab->SetCaption(QStringLiteral("A"));
    EXPECT_LT(tab->width(), before);
    ExpectCaptionMargins();
    EXPECT_GE(resized.count(), 2);
}

struct LookCase {
    bool active;
    int borderWidth;
    int frameTop;
    int labelTop;
    int frameHeight;  // for a tab 30 pixels high
};

class ucTabLookTest : public ucTabTest, public ::testing::WithParamInterface<LookCase> {};

// The active tab has a 2-pixel border two pixels higher and no bottom line, so it opens into the page area
// below; the inactive one is closed at the bottom. Setting the state again changes nothing.
TEST_P(ucTabLookTest, DrawsTheFrameOfItsState) {
    const LookCase& look = GetParam();
    tab->SetIsActive(!look.active);
    tab->SetIsActive(look.active);
    EXPECT_EQ(tab->FrameBorderWidth(), look.borderWidth);
    EXPECT_EQ(tab->FrameRect(), QRect(0, look.frameTop, tab->width(), look.frameHeight));
    EXPECT_EQ(Label()->pos(), QPoint(8, look.labelTop));

    const QImage image = host.grab(tab->geometry()).toImage();
    EXPECT_EQ(image.pixelColor(3, look.frameTop - 1), kHostBackground);
    for (int row = look.frameTop; row < look.frameTop + look.borderWidth; ++row)
        EXPECT_EQ(image.pixelColor(3, row), kBorder) << "row " << row;
    EXPECT_EQ(image.pixelColor(3, look.frameTop + look.borderWidth), kFill);
    EXPECT_EQ(image.pixelColor(3, tab->height() - 1), look.active ? kFill : kBorder);
    EXPECT_EQ(image.pixelColor(look.borderWidth - 1, 20), kBorder);
    tab->SetIsActive(look.active);
    EXPECT_EQ(host.grab(tab->geometry()).toImage(), image);
}

INSTANTIATE_TEST_SUITE_P(States, ucTabLookTest,
                         ::testing::Values(LookCase{true, 2, 2, 6, 35}, LookCase{false, 1, 4, 8, 26}),
                         [](const auto& info) { return info.param.active ? "Active" : "Inactive"; });

TEST_F(ucTabTest, AClickOnTheCaptionOrTheEmptyAreaActivates) {
    ExpectClickThenActive([&] { QTest::mouseClick(tab, Qt::LeftButton, {}, Label()->geometry().center()); });
    tab->SetIsActive(false);
    ExpectClickThenActive([&] { QTest::mouseClick(tab, Qt::LeftButton, {}, QPoint(2, tab->height() - 3)); });
}

TEST_F(ucTabTest, NoClickForTheRightButtonOrAReleaseOutside) {
    QSignalSpy clicks(tab, &ucTab::Click);
    QTest::mouseClick(tab, Qt::RightButton, {}, QPoint(4, 10));
    QTest::mousePress(tab, Qt::LeftButton, {}, QPoint(4, 10));
    QTest::mouseRelease(tab, Qt::LeftButton, {}, QPoint(tab->width() + 20, 10));
    EXPECT_EQ(clicks.count(), 0);
    EXPECT_FALSE(tab->IsActive());
}

class ucTabKeyTest : public ucTabTest, public ::testing::WithParamInterface<Qt::Key> {};

TEST_P(ucTabKeyTest, ActivationKeyActsAsAClick) {
    tab->setFocus();
    ExpectClickThenActive([&] { QTest::keyClick(tab, GetParam()); });
}

INSTANTIATE_TEST_SUITE_P(Keys, ucTabKeyTest, ::testing::Values(Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter),
                         [](const auto& info) {
                             return QtText::FromQt(QKeySequence(info.param).toString());
                         });

TEST_F(ucTabTest, OtherKeysDoNothingAndTabMovesToTheNextTabShowingItsFocus) {
    auto* next = new ucTab(&host);
    next->move(tab->geometry().topRight() + QPoint(1, 0));
    next->show();
    QApplication::setActiveWindow(&host);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&host));
    tab->setFocus();
    QSignalSpy clicks(tab, &ucTab::Click);
    QTest::keyClick(tab, Qt::Key_A);
    EXPECT_EQ(clicks.count(), 0);
    const QImage unfocused = next->grab().toImage();
    QTest::keyClick(tab, Qt::Key_Tab);
    EXPECT_TRUE(next->hasFocus());
    EXPECT_NE(next->grab().toImage(), unfocused) << "no focus rectangle around the caption";
}

TEST_F(ucTabTest, SavesOnlyTheCaptionSoAReloadedTabStartsInactive) {
    tab->SetCaption(QStringLiteral("Display"));
    tab->SetIsActive(true);
    PropertyBag bag;
    tab->WriteProperties(bag);
    EXPECT_EQ(bag.Keys(), QStringList{QStringLiteral("Caption")});
    ucTab reloaded;
    reloaded.ReadProperties(bag);
    EXPECT_EQ(reloaded.Caption(), QStringLiteral("Display"));
    EXPECT_FALSE(reloaded.IsActive());
    EXPECT_EQ(reloaded.width(), tab->width());

    PropertyBag activeDesign;
    activeDesign.WriteProperty(QStringLiteral("IsActive"), -1, 0);
    reloaded.ReadProperties(activeDesign);
    EXPECT_TRUE(reloaded.IsActive());
    EXPECT_EQ(reloaded.Caption(), QStringLiteral("Label1"));
}

}  // namespace
