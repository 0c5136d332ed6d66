// Typed settings access: absent against empty arguments, the read buffer, and booleans.
#include "storage/mIni.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "error/mError.h"
#include "storage/IniStore.h"
#include "storage/iniFile.h"
#include "support/FailureMatchers.h"
#include "support/TempDir.h"

namespace {

class mIniTest : public ::testing::Test {
protected:
    void SetUp() override { iniFile::Store().Clear(); }
    TempDir dir;
    std::string file = dir.File("Pavonel.ini");
};

TEST_F(mIniTest, AbsentArgumentsRaiseInvalidValueEmptyOnesDoNot) {
    const mIni::IniArg absent = std::nullopt;
    const std::tuple<std::function<void()>, int32_t, std::vector<std::string>> calls[] = {
        {[&] { mIni::ReadFromIni(absent, "S", "k", ""); }, 2, {"mIni.ReadFromIni"}},
        {[&] { mIni::ReadFromIni(file, absent, "k", ""); }, 2, {"mIni.ReadFromIni"}},
        {[&] { mIni::ReadFromIni(file, "S", absent, ""); }, 2, {"mIni.ReadFromIni"}},
        {[&] { mIni::WriteBoolToIni(file, "S", absent, true); },
         1,
         {"mIni.WriteBoolToIni", "mIni.WriteToIni"}}};
    for (const auto& [call, number, trail] : calls) {
        std::optional<Failure> failure = FailureOf(call);
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->Number(), mError::kObjectError | number);
        EXPECT_EQ(failure->Description(), "Invalid value");
        EXPECT_EQ(TrailOf(*failure), trail);
    }
    EXPECT_FALSE(std::filesystem::exists(file));
    // Empty is not absent.
    EXPECT_EQ(mIni::ReadFromIni("", "", "", "d"), "d");
    mIni::WriteToIni(file, "", "", "v");
    EXPECT_EQ(mIni::ReadFromIni(file, "", "", "d"), "v");
}

// A read gives at most 254 characters and stops at a NUL; only "1" reads as true, and an empty or missing
// value gives the default.
TEST_F(mIniTest, ReadsAsThroughTheProgramsBuffer) {
    using namespace std::string_literals;
    dir.Write("Pavonel.ini", "[S]\nlong=" + std::string(300, 'a') +
                                 "\nnul=ab\0cd\none=1\nspaced=\" 1 \"\nword=true\nminus=-1\nzero=0\nyes=yes\n"
                                 "two=\" 2\"\nempty=\n"s);
    EXPECT_EQ(mIni::ReadFromIni(file, "S", "long", ""), std::string(254, 'a'));
    EXPECT_EQ(mIni::ReadFromIni(file, "S", "missing", std::string(300, 'd')), std::string(254, 'd'));
    EXPECT_EQ(mIni::ReadFromIni(file, "S", "nul", ""), "ab");
    for (const char* key : {"one", "spaced"})
        EXPECT_TRUE(mIni::ReadBoolFromIni(file, "S", key, false)) << key;
    for (const char* key : {"word", "minus", "zero", "yes", "two"})
        EXPECT_FALSE(mIni::ReadBoolFromIni(file, "S", key, true)) << key;
    for (bool fallback : {true, false}) {
        EXPECT_EQ(mIni::ReadBoolFromIni(file, "S", "empty", fallback), fallback);
        EXPECT_EQ(mIni::ReadBoolFromIni(file, "S", "missing", fallback), fallback);
    }
}

}  // namespace
