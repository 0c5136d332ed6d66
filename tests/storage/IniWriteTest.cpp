// What a write does to the bytes of the file: only the line it must, everything else as it was.
#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>

#include "storage/IniStore.h"
#include "storage/iniFile.h"
#include "support/TempDir.h"

namespace {

using std::nullopt;

struct WriteCase {
    const char* name;
    std::optional<std::string> before;  // nothing: the file does not exist
    std::string section;
    std::optional<std::string> key;
    std::optional<std::string> value;
    std::optional<std::string> after;  // nothing: the file still does not exist
};

void PrintTo(const WriteCase& c, std::ostream* os) {
    *os << c.name;
}

class IniWrite : public ::testing::TestWithParam<WriteCase> {
protected:
    void SetUp() override { iniFile::Store().Clear(); }
    TempDir dir;
};

std::optional<std::string_view> View(const std::optional<std::string>& text) {
    return text ? std::optional<std::string_view>(*text) : nullopt;
}

TEST_P(IniWrite, ChangesOnlyWhatItMust) {
    const WriteCase& c = GetParam();
    std::string file = dir.File("test.ini");
    if (c.before)
        dir.Write("test.ini", *c.before);
    // Read first, so the write goes through a parsed copy like it does in the program.
    iniFile::Read(file, c.section, "x", "", 255);
    iniFile::Write(file, c.section, View(c.key), View(c.value));
    ASSERT_EQ(std::filesystem::exists(file), c.after.has_value());
    if (c.after) {
        EXPECT_EQ(dir.Read("test.ini"), *c.after);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rules, IniWrite,
    ::testing::Values(
        WriteCase{"CreatesMissingFile", nullopt, "S", "k", "v", "[S]\r\nk=v\r\n"},
        WriteCase{"CallerSpacesDropped", nullopt, " S ", " k ", " v ", "[S]\r\nk= v \r\n"},
        WriteCase{"NewSectionGoesToTheEnd", "[A]\r\nx=1\r\n\r\n", "S", "k", "v",
                  "[A]\r\nx=1\r\n\r\n[S]\r\nk=v\r\n"},
        WriteCase{"LineBreakAddedBeforeNewSection", "[A]\nx=1", "S", "k", "v", "[A]\nx=1\r\n[S]\r\nk=v\r\n"},
        WriteCase{"NewKeyAfterLastKeyLine", "[S]\r\na=1\r\n\r\n; note\r\n[T]\r\n", "s", "b", "2",
                  "[S]\r\na=1\r\nb=2\r\n\r\n; note\r\n[T]\r\n"},
        WriteCase{"NewKeyRightAfterHeaderWhenNoKeys", "[S]\n; note\n[T]\n", "S", "b", "2",
                  "[S]\nb=2\r\n; note\n[T]\n"},
        WriteCase{"NewKeyAfterHeaderAtEndOfFile", "[S]", "S", "k", "v", "[S]\r\nk=v\r\n"},
        WriteCase{"NewKeyAfterLastLineWithoutBreak", "[S]\na=1", "S", "k", "v", "[S]\na=1\r\nk=v\r\n"},
        WriteCase{"ExistingKeyKeepsFileSpelling", "[Sec]\n  Key \t= old \nz=9\n", "SEC", "KEY", "new",
                  "[Sec]\nKey=new\r\nz=9\n"},
        WriteCase{"OnlyFirstKeyChanged", "[S]\r\nk=1\r\nk=2\r\n", "S", "k", "3", "[S]\r\nk=3\r\nk=2\r\n"},
        WriteCase{"OnlyFirstSectionChanged", "[S]\r\n[S]\r\nk=2\r\n", "S", "k", "3",
                  "[S]\r\nk=3\r\n[S]\r\nk=2\r\n"},
        WriteCase{"ValueWrittenExactly", "[S]\r\n", "S", "k", "\"q\" ;x", "[S]\r\nk=\"q\" ;x\r\n"},
        WriteCase{"SameValueLeavesFileAlone", "[S]\nk=v\n", "S", "k", "v", "[S]\nk=v\n"},
        WriteCase{"KeysBeforeFirstSectionUntouched", "k=1\r\n", "S", "k", "2", "k=1\r\n[S]\r\nk=2\r\n"},
        WriteCase{"DeleteKey", "[S]\na=1\nb=2\n", "S", "A", nullopt, "[S]\nb=2\n"},
        WriteCase{"DeleteMissingKeyChangesNothing", "[S]\na=1", "S", "b", nullopt, "[S]\na=1"},
        WriteCase{"DeleteSectionWithItsLines", "[A]\nx=1\n[S]\na=1\n; c\n\n[B]\ny=2\n", "s", nullopt, nullopt,
                  "[A]\nx=1\n[B]\ny=2\n"},
        WriteCase{"DeleteFirstOfTwoSections", "[S]\na=1\n[S]\na=2\n", "S", nullopt, nullopt, "[S]\na=2\n"},
        WriteCase{"DeleteOnMissingFileCreatesNothing", nullopt, "S", "k", nullopt, nullopt},
        WriteCase{"DeleteSectionOnMissingFileCreatesNothing", nullopt, "S", nullopt, "v", nullopt},
        WriteCase{"Utf8ByteOrderMarkKept", "\xEF\xBB\xBF[S]\nk=1\n", "S", "k", "2",
                  "\xEF\xBB\xBF[S]\nk=2\r\n"},
        WriteCase{"Utf16LeWrittenBackAsUtf16Le", std::string("\xFF\xFE[\0S\0]\0", 8), "S", "k", "\xC3\xA4",
                  std::string("\xFF\xFE[\0S\0]\0\r\0\n\0k\0=\0\xE4\0\r\0\n\0", 22)}),
    [](const ::testing::TestParamInfo<WriteCase>& info) { return std::string(info.param.name); });

TEST(IniWriteThenRead, ReadsBackWhatWasWritten) {
    iniFile::Store().Clear();
    TempDir dir;
    std::string file = dir.File("test.ini");
    iniFile::Write(file, "S", "k", " quoted ");
    iniFile::Write(file, "S", "e", "");
    EXPECT_EQ(iniFile::Read(file, "S", "k", "d", 255), "quoted");
    EXPECT_EQ(iniFile::Read(file, "s", "E", "d", 255), "");
    iniFile::Write(file, "S", "k", nullopt);
    EXPECT_EQ(iniFile::Read(file, "S", "k", "d", 255), "d");
    iniFile::Write(file, "S", nullopt, nullopt);
    EXPECT_EQ(iniFile::Read(file, "S", "e", "d", 255), "d");
}

TEST(IniWriteThenRead, ValueWithLineBreaksReadsAsTheFileWillBeRead) {
    iniFile::Store().Clear();
    TempDir dir;
    std::string file = dir.File("test.ini");
    iniFile::Write(file, "S", "k", "first\r\n[T]\r\nk=second");
    EXPECT_EQ(dir.Read("test.ini"), "[S]\r\nk=first\r\n[T]\r\nk=second\r\n");
    EXPECT_EQ(iniFile::Read(file, "S", "k", "d", 255), "first");
    EXPECT_EQ(iniFile::Read(file, "T", "k", "d", 255), "second");
}

}  // namespace
