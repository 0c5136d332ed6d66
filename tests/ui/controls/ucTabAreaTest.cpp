#include "ui/controls/ucTabArea.h"

#include <gtest/gtest.h>

namespace {

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
