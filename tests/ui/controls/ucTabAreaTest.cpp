#include "ui/controls/ucTabArea.h"

#include <gtest/gtest.h>

#include "ui/controls/PropertyBag.h"

namespace {

class ucTabAreaTest : public ::testing::Test {
protected:
    ucTabAreaTest() {
        host.resize(500, 400);
        area->setGeometry(10, 40, 300, 200);
        host.show();
    }

    QWidget host;
    ucTabArea* area = new ucTabArea(&host);
};

TEST_F(ucTabAreaTest, DrawsItsFrameInItsColours) {
    area->SetBorderColor(QColor(0x12, 0x34, 0x56));
    area->SetBackColor(QColor(0xFE, 0xDC, 0xBA));
    const QImage image = area->grab().toImage();
    for (const QPoint edge : {QPoint(0, 80), QPoint(299, 80), QPoint(120, 0), QPoint(120, 199)})
        EXPECT_EQ(image.pixelColor(edge), QColor(0x12, 0x34, 0x56)) << edge.x() << "," << edge.y();
    EXPECT_EQ(image.pixelColor(1, 1), QColor(0xFE, 0xDC, 0xBA));
}

// Hosts hide a page area by shrinking it to nothing; it must come back with the frame it had.
TEST_F(ucTabAreaTest, AZeroSizeKeepsThePreviousFrameInThatDirection) {
    area->resize(300, 0);
    EXPECT_EQ(area->FrameRect(), QRect(0, 0, 300, 200));
    area->resize(0, 120);
    EXPECT_EQ(area->FrameRect(), QRect(0, 0, 300, 120));
}

TEST_F(ucTabAreaTest, NewAreaIsGreyAndSavesOnlyAChangedColour) {
    area->SetBackColor(Qt::white);
    PropertyBag bag;
    area->WriteProperties(bag);
    EXPECT_EQ(bag.Keys(), QStringList{QStringLiteral("BackColor")});
    ucTabArea reloaded;
    EXPECT_EQ(reloaded.BackColor(), QColor(0xE0, 0xE0, 0xE0));
    reloaded.ReadProperties(bag);
    EXPECT_EQ(reloaded.BackColor(), QColor(Qt::white));
    EXPECT_EQ(reloaded.BorderColor(), QColor(0x80, 0x80, 0x80));
}

}  // namespace
