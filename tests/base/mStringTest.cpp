#include "base/mString.h"

#include <gtest/gtest.h>

#include "error/mError.h"
#include "support/FailureMatchers.h"

namespace {

struct ReplaceCase {
    std::string text;
    std::string find;
    std::string replacement;
    std::size_t start;
    std::string expected;
};

class ReplaceAllTest : public ::testing::TestWithParam<ReplaceCase> {};

TEST_P(ReplaceAllTest, ReplacesFromTheStartWithoutRevisitingReplacements) {
    ReplaceCase c = GetParam();
    mString::ReplaceAll(c.text, c.find, c.replacement, c.start);
    EXPECT_EQ(c.text, c.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ReplaceAllTest,
    ::testing::Values(ReplaceCase{"a%P1%b%P1%", "%P1%", "x", 1, "axbx"},
                      ReplaceCase{"%P1%", "%P1%", "<%P1%>", 1, "<%P1%>"},
                      ReplaceCase{"aaaa", "aa", "a", 1, "aa"}, ReplaceCase{"abab", "ab", "", 1, ""},
                      ReplaceCase{"abab", "ab", "X", 2, "abX"}, ReplaceCase{"abc", "", "X", 1, "abc"},
                      ReplaceCase{"Abc", "a", "X", 1, "Abc"}, ReplaceCase{"", "a", "X", 1, ""}));

struct IntCase {
    const char* text;
    int expected;  // or the failure number when `fails`
    bool fails;
};

class ToInt16Test : public ::testing::TestWithParam<IntCase> {};

TEST_P(ToInt16Test, ConvertsLikeTheSettingsExpect) {
    const IntCase& c = GetParam();
    std::optional<Failure> failure = FailureOf([&] {
        int16_t value = mString::ToInt16(c.text);
        EXPECT_FALSE(c.fails) << c.text;
        EXPECT_EQ(value, c.expected) << c.text;
    });
    EXPECT_EQ(failure.has_value(), c.fails) << c.text;
    if (failure) {
        EXPECT_EQ(failure->Number(), c.expected) << c.text;
    }
    EXPECT_EQ(mString::IsNumeric(c.text), !c.fails || c.expected == mError::kOverflow) << c.text;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, ToInt16Test,
    ::testing::Values(
        IntCase{"640", 640, false}, IntCase{"  -32768 ", -32768, false}, IntCase{"+7", 7, false},
        IntCase{"32767", 32767, false}, IntCase{"0000000000012", 12, false}, IntCase{"2.5", 2, false},
        IntCase{"3.5", 4, false}, IntCase{"-0.5", 0, false}, IntCase{".9", 1, false},
        IntCase{"32768", mError::kOverflow, true}, IntCase{"-32769", mError::kOverflow, true},
        IntCase{"99999999999999999999", mError::kOverflow, true}, IntCase{"", mError::kTypeMismatch, true},
        IntCase{"abc", mError::kTypeMismatch, true}, IntCase{"12 3", mError::kTypeMismatch, true},
        IntCase{"1e3", mError::kTypeMismatch, true}, IntCase{"-", mError::kTypeMismatch, true},
        IntCase{".", mError::kTypeMismatch, true}, IntCase{"\t5", mError::kTypeMismatch, true}));

}  // namespace
