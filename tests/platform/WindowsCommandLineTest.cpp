#include "platform/WindowsCommandLine.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

struct SplitCase {
    std::string name;
    std::string text;
    std::vector<std::string> expected;
};

void PrintTo(const SplitCase& c, std::ostream* out) {
    *out << c.name;
}

class SplitWindowsCommandLineTest : public ::testing::TestWithParam<SplitCase> {};

TEST_P(SplitWindowsCommandLineTest, GivesTheArgumentsTheRuntimeWouldGive) {
    EXPECT_EQ(SplitWindowsCommandLine(GetParam().text), GetParam().expected);
}

// The first five are the runtime's own documented examples.
const SplitCase kCases[] = {
    {"QuotedGroup", R"("a b c" d e)", {"a b c", "d", "e"}},
    {"EscapedQuoteAndBackslash", R"("ab\"c" "\\" d)", {R"(ab"c)", R"(\)", "d"}},
    {"BackslashesWithoutQuoteAreLiteral", R"(a\\\b d"e f"g h)", {R"(a\\\b)", "de fg", "h"}},
    {"OddBackslashesMakeQuoteLiteral", R"(a\\\"b c d)", {R"(a\"b)", "c", "d"}},
    {"EvenBackslashesLeaveQuoteSpecial", R"(a\\\\"b c" d e)", {R"(a\\b c)", "d", "e"}},
    {"DoubledQuoteInsideQuotesIsLiteral", R"(a"b"" c d)", {R"(ab" c d)"}},
    {"TripledQuotes", R"("""a""")", {R"("a")"}},
    {"DoubledQuoteOutsideQuotesIsEmpty", R"(a""b)", {"ab"}},
    {"TrailingBackslashes", R"(C:\dir\ x\)", {R"(C:\dir\)", R"(x\)"}},
    {"OnlyBackslashes", R"(\\\\)", {R"(\\\\)"}},
    {"QuotedFolderEndingInBackslash", R"("C:\Program Files\\" next)", {R"(C:\Program Files\)", "next"}},
    {"EmptyText", "", {}},
    {"OnlyBlanks", " \t  \t", {}},
    {"TabsSeparate", "a\tb \t c", {"a", "b", "c"}},
    {"BlanksAroundAreDropped", "   a   ", {"a"}},
    {"TabInsideQuotesIsKept", "\"a\tb\"", {"a\tb"}},
    {"EmptyQuotedArguments", R"("" a "")", {"", "a", ""}},
    {"LoneQuote", R"(")", {""}},
    {"UnterminatedQuoteRunsToTheEnd", R"(a "b  c)", {"a", "b  c"}},
    {"QuotesInsideAWord", R"(ab"cd ef"gh)", {"abcd efgh"}},
    {"EscapedQuoteAtTheEnd", R"(x \")", {"x", R"(")"}},
    {"PathWithBlanks",
     R"(-scenario "C:\Games\Tarvolin\scenarios\my map.sve" -log)",
     {"-scenario", R"(C:\Games\Tarvolin\scenarios\my map.sve)", "-log"}},
    {"TextEndsAtNul", std::string("a b\0c d", 7), {"a", "b"}},
};

INSTANTIATE_TEST_SUITE_P(RuntimeRules, SplitWindowsCommandLineTest, ::testing::ValuesIn(kCases),
                         [](const ::testing::TestParamInfo<SplitCase>& info) { return info.param.name; });

}  // namespace
