// The launch record is what every launch test trusts: a record that is cut off or damaged must never pass
// for a complete one.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>

#include "support/StandInGame.h"

namespace {

TEST(StandInRecordTest, OnlyACompleteRecordIsRead) {
    const std::pair<std::string, std::optional<LaunchRecord>> cases[] = {
        {"/games/Tarvolin \\\\ x\n4\n-log\n\nline 1\\nline 2\\r\na\\\\\\\\b\n",
         LaunchRecord{"/games/Tarvolin \\ x", {"-log", "", "line 1\nline 2\r", "a\\\\b"}}},
        {"/games\n0\n", LaunchRecord{"/games", {}}},
        {"", std::nullopt},
        {"/games\n", std::nullopt},
        {"/games\n1\n", std::nullopt},
        {"/games\n1\n-log", std::nullopt},
        {"/games\n1\n-log\nextra\n", std::nullopt},
        {"/games\nx\n", std::nullopt},
        {"/games\n-1\n", std::nullopt},
        {"/games\n1\nbad\\escape\n", std::nullopt},
        {"/games\n1\ntrailing\\\n", std::nullopt},
        {"/games\\q\n0\n", std::nullopt},
    };
    for (const auto& [text, expected] : cases)
        EXPECT_EQ(StandInGame::ParseRecord(text), expected) << text;
}

}  // namespace
