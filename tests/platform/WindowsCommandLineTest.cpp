#include "platform/WindowsCommandLine.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

// The first five are the runtime's own documented examples.
const std::pair<std::string, std::vector<std::string>> kCases[] = {
    {R"("a b c" d e)", {"a b c", "d", "e"}},
    {R"("ab\"c" "\\" d)", {R"(ab"c)", R"(\)", "d"}},
    {R"(a\\\b d"e f"g h)", {R"(a\\\b)", "de fg", "h"}},
    {R"(a\\\"b c d)", {R"(a\"b)", "c", "d"}},
    {R"(a\\\\"b c" d e)", {R"(a\\b c)", "d", "e"}},
    {R"(a"b"" c d)", {R"(ab" c d)"}},
    {R"("""a""")", {R"("a")"}},
    {R"(a""b)", {"ab"}},
    {R"(C:\dir\ x\)", {R"(C:\dir\)", R"(x\)"}},
    {R"("C:\Program Files\\" next)", {R"(C:\Program Files\)", "next"}},
    {"", {}},
    {" \t  \t", {}},
    {"a\tb \t c", {"a", "b", "c"}},
    {"   a   ", {"a"}},
    {"\"a\tb\"", {"a\tb"}},
    {R"("" a "")", {"", "a", ""}},
    {R"(")", {""}},
    {R"(a "b  c)", {"a", "b  c"}},
    {R"(x \")", {"x", R"(")"}},
    {std::string("a b\0c d", 7), {"a", "b"}},
};

// Split as the runtime splits; joined, every case's arguments split back into themselves, and plain ones
// stay unquoted.
TEST(WindowsCommandLineTest, SplitsAsTheRuntimeAndJoinsBack) {
    for (const auto& [text, expected] : kCases) {
        EXPECT_EQ(SplitWindowsCommandLine(text), expected) << text;
        EXPECT_EQ(SplitWindowsCommandLine(JoinWindowsCommandLine(expected)), expected) << text;
    }
    const std::vector<std::string> awkward = {R"(end\\)", R"(a\\\"b)", R"(\)", "tab\\there", "a\tb", "Größe"};
    EXPECT_EQ(SplitWindowsCommandLine(JoinWindowsCommandLine(awkward)), awkward);
    EXPECT_EQ(JoinWindowsCommandLine({"-log", "-res", "2"}), "-log -res 2");
}

}  // namespace
