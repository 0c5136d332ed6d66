#include "base/mString.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "error/mError.h"
#include "support/FailureMatchers.h"

namespace {

TEST(mStringTest, ReplaceAllGoesFromTheStartWithoutRevisitingReplacements) {
    const std::tuple<std::string, std::string, std::string, std::size_t, std::string> cases[] = {
        {"a%P1%b%P1%", "%P1%", "x", 1, "axbx"},
        {"%P1%", "%P1%", "<%P1%>", 1, "<%P1%>"},
        {"aaaa", "aa", "a", 1, "aa"},
        {"abab", "ab", "", 1, ""},
        {"abab", "ab", "X", 2, "abX"},
        {"abc", "", "X", 1, "abc"},
        {"Abc", "a", "X", 1, "Abc"},
        {"", "a", "X", 1, ""}};
    for (auto [text, find, replacement, start, expected] : cases) {
        mString::ReplaceAll(text, find, replacement, start);
        EXPECT_EQ(text, expected) << find;
    }
}

// A number as the settings give it, or the failure's number when it is no 16-bit integer.
TEST(mStringTest, ToInt16ConvertsLikeTheSettingsExpect) {
    const std::tuple<const char*, int, bool> cases[] = {{"640", 640, false},
                                                        {"  -32768 ", -32768, false},
                                                        {"+7", 7, false},
                                                        {"32767", 32767, false},
                                                        {"0000000000012", 12, false},
                                                        {"2.5", 2, false},
                                                        {"3.5", 4, false},
                                                        {"-0.5", 0, false},
                                                        {".9", 1, false},
                                                        {"32768", mError::kOverflow, true},
                                                        {"-32769", mError::kOverflow, true},
                                                        {"99999999999999999999", mError::kOverflow, true},
                                                        {"", mError::kTypeMismatch, true},
                                                        {"abc", mError::kTypeMismatch, true},
                                                        {"12 3", mError::kTypeMismatch, true},
                                                        {"1e3", mError::kTypeMismatch, true},
                                                        {"-", mError::kTypeMismatch, true},
                                                        {".", mError::kTypeMismatch, true},
                                                        {"\t5", mError::kTypeMismatch, true}};
    for (const auto& [text, expected, fails] : cases) {
        int value = 0;
        const std::optional<Failure> failure = FailureOf([&, t = text] { value = mString::ToInt16(t); });
        EXPECT_EQ(failure ? failure->Number() : value, expected) << text;
        EXPECT_EQ(failure.has_value(), fails) << text;
        EXPECT_EQ(mString::IsNumeric(text), !fails || expected == mError::kOverflow) << text;
    }
}

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
