#include "ui/controls/PropertyBag.h"

#include <gtest/gtest.h>

#include "support/FailureMatchers.h"

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

struct BadRead {
    const char* name;
    QVariant stored;
    bool asColour;  // read as a colour, else as a 16-bit number
    int32_t number;
};

class PropertyBagBadReadTest : public ::testing::TestWithParam<BadRead> {};

TEST_P(PropertyBagBadReadTest, RaisesTheRunTimeFailure) {
    PropertyBag bag;
    bag.WriteProperty(QStringLiteral("Key"), GetParam().stored, QVariant());
    const std::optional<Failure> failure = FailureOf([&] {
        if (GetParam().asColour)
            bag.ReadColor(QStringLiteral("Key"), QColor());
        else
            bag.ReadInt16(QStringLiteral("Key"), 0);
    });
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->Number(), GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(Cases, PropertyBagBadReadTest,
                         ::testing::Values(BadRead{"ColourFromText", QStringLiteral("#ffffff"), true, 13},
                                           BadRead{"NumberFromWords", QStringLiteral("twelve"), false, 13},
                                           BadRead{"NumberFromColour", QColor(Qt::red), false, 13},
                                           BadRead{"TooLargeNumber", 32767.5, false, 6},
                                           BadRead{"TooSmallNumber", QStringLiteral("-32769"), false, 6}),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
