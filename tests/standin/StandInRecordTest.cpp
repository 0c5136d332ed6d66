// The launch record is what every launch test trusts: a record that is cut off or damaged must never pass
// for a complete one.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "support/StandInGame.h"

namespace {

TEST(StandInRecordTest, EscapesComeBackAsTheTextsTheyStandFor) {
    const std::optional<LaunchRecord> record =
        StandInGame::ParseRecord("/games/Tarvolin \\\\ x\n4\n-log\n\nline 1\\nline 2\\r\na\\\\\\\\b\n");

    ASSERT_TRUE(record.has_value());
    EXPECT_EQ(record->directory, "/games/Tarvolin \\ x");
    const std::vector<std::string> expected = {"-log", "", "line 1\nline 2\r", "a\\\\b"};
    EXPECT_EQ(record->arguments, expected);
}

TEST(StandInRecordTest, NoArgumentsAtAll) {
    const std::optional<LaunchRecord> record = StandInGame::ParseRecord("/games\n0\n");

    ASSERT_TRUE(record.has_value());
    EXPECT_EQ(record->directory, "/games");
    EXPECT_TRUE(record->arguments.empty());
}

class DamagedRecordTest : public ::testing::TestWithParam<std::string> {};

TEST_P(DamagedRecordTest, IsNoRecord) {
    EXPECT_EQ(StandInGame::ParseRecord(GetParam()), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Texts, DamagedRecordTest,
                         ::testing::Values("", "/games\n", "/games\n1\n", "/games\n1\n-log",
                                           "/games\n1\n-log\nextra\n", "/games\nx\n", "/games\n-1\n",
                                           "/games\n1\nbad\\escape\n", "/games\n1\ntrailing\\\n",
                                           "/games\\q\n0\n"));

}  // namespace
