#include "base/mString.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

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

// Every line with its break, as "text|break" pairs; the break shown as C (CR), L (LF) or CL.
std::vector<std::string> LinesOf(std::string_view text) {
    std::vector<std::string> lines;
    mString::ForEachLine(text, [&lines](const mString::Line& line) {
        std::string shown(line.text);
        shown += '|';
        for (const char c : line.lineBreak)
            shown += c == '\r' ? 'C' : 'L';
        lines.push_back(shown);
    });
    return lines;
}

TEST(ForEachLineTest, SplitsAtEveryKindOfBreakAndKeepsALastLineWithoutOne) {
    using Lines = std::vector<std::string>;
    EXPECT_EQ(LinesOf(""), Lines{});
    EXPECT_EQ(LinesOf("a\r\nb\nc\rd"), (Lines{"a|CL", "b|L", "c|C", "d|"}));
    EXPECT_EQ(LinesOf("\n\r\r\n\n\r"), (Lines{"|L", "|C", "|CL", "|L", "|C"}));
    EXPECT_EQ(LinesOf("x\r"), Lines{"x|C"});
    // Breaks far into a long line, and a text whose only breaks are carriage returns.
    const std::string longLine(600, 'v');
    EXPECT_EQ(LinesOf(longLine + "\r\n" + longLine), (Lines{longLine + "|CL", longLine + "|"}));
    EXPECT_EQ(LinesOf(longLine + "\r" + longLine + "\n"), (Lines{longLine + "|C", longLine + "|L"}));
    std::string crOnly;
    for (int i = 0; i < 1000; ++i)
        crOnly += "k=" + std::to_string(i) + "\r";
    const Lines split = LinesOf(crOnly);
    ASSERT_EQ(split.size(), 1000u);
    EXPECT_EQ(split[999], "k=999|C");
}

}  // namespace
