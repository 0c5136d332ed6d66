#include "ui/controls/HLine.h"

#include <gtest/gtest.h>

namespace {

TEST(HLine, SnapsBackToTwentyPixelsAndDrawsADarkLineOverALightOne) {
    HLine rule;
    rule.show();
    rule.SetBackColor(QColor(0x40, 0x50, 0x60));
    for (const int height : {100, 0})
        rule.resize(180, height);
    EXPECT_EQ(rule.size(), QSize(180, 20));
    EXPECT_EQ(rule.Line1(), QLine(0, 10, 180, 10));
    const QImage image = rule.grab().toImage();
    EXPECT_EQ(image.pixel(179, 10), rule.palette().color(QPalette::Dark).rgb());
    EXPECT_EQ(image.pixel(179, 11), rule.palette().color(QPalette::Light).rgb());
    EXPECT_EQ(image.pixel(179, 12), qRgb(0x40, 0x50, 0x60));
}

}  // namespace
