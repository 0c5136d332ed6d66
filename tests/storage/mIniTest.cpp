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

using std::nullopt;

class mIniTest : public ::testing::Test {
protected:
    void SetUp() override { iniFile::Store().Clear(); }
    TempDir dir;
    std::string file = dir.File("Pavonel.ini");
};

TEST_F(mIniTest, AbsentArgumentsRaiseInvalidValue) {
    const mIni::IniArg absent = nullopt;
    using Call = std::function<void()>;
    for (const Call& read : {Call([&] { mIni::ReadFromIni(absent, "S", "k", ""); }),
                             Call([&] { mIni::ReadFromIni(file, absent, "k", ""); }),
                             Call([&] { mIni::ReadFromIni(file, "S", absent, ""); })}) {
        std::optional<Failure> failure = FailureOf(read);
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->Number(), mError::kObjectError | 2);
        EXPECT_EQ(failure->Description(), "Invalid value");
        EXPECT_EQ(TrailOf(*failure), std::vector<std::string>{"mIni.ReadFromIni"});
    }
    std::optional<Failure> write = FailureOf([&] { mIni::WriteBoolToIni(file, "S", absent, true); });
    ASSERT_TRUE(write);
    EXPECT_EQ(write->Number(), mError::kObjectError | 1);
    EXPECT_EQ(TrailOf(*write), (std::vector<std::string>{"mIni.WriteBoolToIni", "mIni.WriteToIni"}));
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(mIniTest, EmptyArgumentsAreNotAbsent) {
    EXPECT_EQ(mIni::ReadFromIni("", "", "", "d"), "d");
    mIni::WriteToIni(file, "", "", "v");
    EXPECT_EQ(mIni::ReadFromIni(file, "", "", "d"), "v");
}

TEST_F(mIniTest, ValuesComeBackWithAtMost254Characters) {
    mIni::WriteToIni(file, "S", "k", std::string(300, 'a'));
    EXPECT_EQ(mIni::ReadFromIni(file, "S", "k", ""), std::string(254, 'a'));
    EXPECT_EQ(mIni::ReadFromIni(file, "S", "missing", std::string(300, 'd')), std::string(254, 'd'));
}

TEST_F(mIniTest, ValueIsCutAtNul) {
    dir.Write("Pavonel.ini", std::string("[S]\nk=ab\0cd\n", 13));
    EXPECT_EQ(mIni::ReadFromIni(file, "S", "k", ""), "ab");
}

TEST_F(mIniTest, OnlyOneReadsAsTrue) {
    dir.Write("Pavonel.ini",
              "[S]\none=1\nspaced=\" 1 \"\nword=true\nminus=-1\nzero=0\nyes=yes\ntwo=\" 2\"\nempty=\n");
    EXPECT_TRUE(mIni::ReadBoolFromIni(file, "S", "one", false));
    EXPECT_TRUE(mIni::ReadBoolFromIni(file, "S", "spaced", false));
    for (const char* key : {"word", "minus", "zero", "yes", "two"}) {
        EXPECT_FALSE(mIni::ReadBoolFromIni(file, "S", key, true)) << key;
    }
    for (bool fallback : {true, false}) {
        EXPECT_EQ(mIni::ReadBoolFromIni(file, "S", "empty", fallback), fallback);
        EXPECT_EQ(mIni::ReadBoolFromIni(file, "S", "missing", fallback), fallback);
    }
}

TEST_F(mIniTest, BooleansAreWrittenAsOneAndZero) {
    mIni::WriteBoolToIni(file, "S", "t", true);
    mIni::WriteBoolToIni(file, "S", "f", false);
    EXPECT_EQ(dir.Read("Pavonel.ini"), "[S]\r\nt=1\r\nf=0\r\n");
}

}  // namespace
