#include "ui/controls/PropertyBag.h"

#include <gtest/gtest.h>

#include "support/AppFixture.h"
#include "support/FailureMatchers.h"
#include "ui/controls/HLine.h"
#include "ui/controls/ucPath.h"
#include "ui/controls/ucTab.h"
#include "ui/controls/ucTabArea.h"

namespace {

TEST(PropertyBag, KeepsOnlyValuesThatDifferFromTheirDefaultsInFirstWriteOrder) {
    PropertyBag bag;
    bag.WriteProperty(QStringLiteral("Caption"), QStringLiteral("Label1"), QStringLiteral("Label1"));
    bag.WriteProperty(QStringLiteral("Text"), QStringLiteral("a"), QString());
    bag.WriteProperty(QStringLiteral("Locked"), QStringLiteral(" -1 "), 0);
    bag.WriteProperty(QStringLiteral("TEXT"), QStringLiteral("b"), QString());
    EXPECT_EQ(bag.Keys(), QStringList({"Text", "Locked"}));
    EXPECT_EQ(bag.ReadText(QStringLiteral("text"), QString()), QStringLiteral("b"));
    EXPECT_TRUE(bag.ReadBool(QStringLiteral("Locked"), false));
    bag.WriteProperty(QStringLiteral("Text"), QString(), QString());
    EXPECT_EQ(bag.Keys(), QStringList{"Locked"});
    EXPECT_EQ(bag.ReadText(QStringLiteral("Text"), QStringLiteral("default")), QStringLiteral("default"));
}

TEST(PropertyBag, AValueOfTheWrongKindOrOutOfRangeRaisesTheRunTimeFailure) {
    const struct {
        QVariant stored;
        bool asColour;  // read as a colour, else as a 16-bit number
        int32_t number;
    } cases[] = {{QStringLiteral("#ffffff"), true, 13},
                 {QStringLiteral("twelve"), false, 13},
                 {QColor(Qt::red), false, 13},
                 {32767.5, false, 6},
                 {QStringLiteral("-32769"), false, 6}};
    for (const auto& [stored, asColour, number] : cases) {
        PropertyBag bag;
        bag.WriteProperty(QStringLiteral("Key"), stored, QVariant());
        const std::optional<Failure> failure = FailureOf([&] {
            if (asColour)
                bag.ReadColor(QStringLiteral("Key"), QColor());
            else
                bag.ReadInt16(QStringLiteral("Key"), 0);
        });
        EXPECT_EQ(failure ? failure->Number() : 0, number) << stored.toString().toStdString();
    }
}

using Changes = std::vector<std::pair<QString, QVariant>>;

class ControlDesignTest : public AppFixture {
protected:
    // A new control saves nothing; once changed it saves the changed properties in the order given, and a new
    // control reads them back. A stored value of the wrong kind is reported once, under `readTrail`.
    template <class Control>
    PropertyBag ExpectDesign(const Changes& changes, const std::string& readTrail) {
        Control original;
        PropertyBag bag;
        original.WriteProperties(bag);
        EXPECT_EQ(bag.Keys(), QStringList());
        QStringList changed;
        for (const auto& [name, value] : changes) {
            original.setProperty(name.toLatin1(), value);
            changed << name;
        }
        original.WriteProperties(bag);
        EXPECT_EQ(bag.Keys(), changed);
        Control reloaded;
        reloaded.ReadProperties(bag);
        for (const auto& [name, value] : changes)
            EXPECT_EQ(reloaded.property(name.toLatin1()), value) << name.toStdString();
        PropertyBag broken;
        broken.WriteProperty(changed.front(), QSize(1, 1), QVariant());
        ui.reports.clear();
        reloaded.ReadProperties(broken);
        EXPECT_EQ(ui.reports.size(), 1u);
        for (const ErrorReport& report : ui.reports)
            EXPECT_EQ(TrailOf(Failure(0, "", report.source)), std::vector<std::string>{readTrail});
        return bag;
    }
};

// The rule reports under the path field's name; the path field saves a flag as -1, as 16-bit designs do.
TEST_F(ControlDesignTest, EveryControlSavesOnlyItsChangedPropertiesAndReadsThemBack) {
    ExpectDesign<HLine>({{"BackColor", QColor(Qt::yellow)}}, "ucPath.UserControl_ReadProperties");
    ExpectDesign<ucTabArea>({{"BackColor", QColor(Qt::white)}}, "UserControl_ReadProperties");
    ExpectDesign<ucTab>({{"Caption", QStringLiteral("Display")}}, "UserControl_ReadProperties");
    const PropertyBag path = ExpectDesign<ucPath>({{"BackColor", QColor(0x10, 0x20, 0x30)},
                                                   {"Text", QStringLiteral("C:\\Tarvolin\\tarvolin.exe")},
                                                   {"AcceptFiles", true},
                                                   {"Enabled", false},
                                                   {"AcceptFolders", true},
                                                   {"Locked", true}},
                                                  "ucPath.UserControl_ReadProperties");
    EXPECT_EQ(path.ReadProperty(QStringLiteral("AcceptFiles"), 0).toInt(), -1);
}

}  // namespace
