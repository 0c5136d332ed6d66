#include "ui/controls/HLine.h"

#include <gtest/gtest.h>

#include "support/AppFixture.h"
#include "support/FailureMatchers.h"
#include "ui/controls/PropertyBag.h"

namespace {

class HLineTest : public AppFixture {
protected:
    HLineTest() {
        host.resize(400, 200);
        host.show();
    }

    QWidget host;
    HLine* rule = new HLine(&host);
};

TEST_F(HLineTest, SnapsBackToTwentyPixelsAndDrawsADarkLineOverALightOne) {
    rule->SetBackColor(QColor(0x40, 0x50, 0x60));
    for (const int height : {100, 0})
        rule->resize(180, height);
    EXPECT_EQ(rule->size(), QSize(180, 20));
    EXPECT_EQ(rule->Line1(), QLine(0, 10, 180, 10));
    EXPECT_EQ(rule->Line2(), QLine(0, 11, 180, 11));
    const QImage image = rule->grab().toImage();
    for (const int x : {0, 179}) {
        EXPECT_EQ(image.pixel(x, 10), rule->palette().color(QPalette::Dark).rgb()) << x;
        EXPECT_EQ(image.pixel(x, 11), rule->palette().color(QPalette::Light).rgb()) << x;
        EXPECT_EQ(image.pixel(x, 9), qRgb(0x40, 0x50, 0x60)) << x;
        EXPECT_EQ(image.pixel(x, 12), qRgb(0x40, 0x50, 0x60)) << x;
    }
}

// The rule starts in the button face and reports its failures under the path field's name.
TEST_F(HLineTest, SavesOnlyAChangedColourAndReportsABrokenOne) {
    EXPECT_EQ(rule->BackColor(), rule->palette().color(QPalette::Button));
    PropertyBag bag;
    rule->WriteProperties(bag);
    EXPECT_TRUE(bag.Keys().isEmpty());
    rule->SetBackColor(Qt::yellow);
    rule->WriteProperties(bag);
    HLine reloaded;
    reloaded.ReadProperties(bag);
    EXPECT_EQ(reloaded.BackColor(), QColor(Qt::yellow));

    bag.WriteProperty(QStringLiteral("BackColor"), 42, QVariant());
    reloaded.ReadProperties(bag);
    ASSERT_EQ(ui.reports.size(), 1u);
    EXPECT_EQ(TrailOf(Failure(0, "", ui.reports[0].source)),
              std::vector<std::string>{"ucPath.UserControl_ReadProperties"});
}

}  // namespace
