// The rules a settings file written by hand or by another tool is read with, what a write does to the
// bytes of the file (only the line it must, everything else as it was), and the typed access above them.
#include "storage/iniFile.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <tuple>

#include "error/mError.h"
#include "storage/IniEncoding.h"
#include "storage/IniStore.h"
#include "storage/mIni.h"
#include "support/FailureMatchers.h"
#include "support/TempDir.h"

namespace {

using std::nullopt;

class IniFileTest : public ::testing::Test {
protected:
    void SetUp() override { iniFile::Store().Clear(); }
    TempDir dir;
    std::string file = dir.File("test.ini");
};

struct ReadCase {
    const char* name;
    std::string content;
    std::string section;
    std::string key;
    std::string defaultValue;
    std::size_t size;
    std::string expected;
};

class IniRead : public IniFileTest, public ::testing::WithParamInterface<ReadCase> {};

TEST_P(IniRead, FindsTheValueAWindowsReaderWould) {
    const ReadCase& c = GetParam();
    dir.Write("test.ini", c.content);
    EXPECT_EQ(iniFile::Read(file, c.section, c.key, c.defaultValue, c.size), c.expected);
}

const std::string kS = "[S]\r\n";

const ReadCase kReadCases[] = {
    {"NamesIgnoreCase", "[Sect]\r\nKey=v\r\n", "sECT", "kEY", "d", 255, "v"},
    {"MixedEndingsAndNoFinalBreak", "[A]\r\na=1\n[S]\rj=0\r\nk=v", "S", "k", "d", 255, "v"},
    {"HeaderWithBlanks", " \t[ \tS \t] \r\nk=v\r\n", "S", "k", "d", 255, "v"},
    {"TextAfterHeaderIgnored", "[S] ; the game\r\nk=v\r\n", "S", "k", "d", 255, "v"},
    {"HeaderWithoutBracket", "[S\r\nk=v\r\n", "S", "k", "d", 255, "v"},
    {"BlanksAndTabsAroundKeyAndValue", kS + " \t k \t= \t v w \t\r\n", "S", "k", "d", 255, "v w"},
    {"DoubleQuotesRemoved", kS + "k=\" v \"\r\n", "S", "k", "d", 255, " v "},
    {"SingleQuotesRemoved", kS + "k='v'\r\n", "S", "k", "d", 255, "v"},
    {"OnlyOnePairRemoved", kS + "k=\"\"v\"\"\r\n", "S", "k", "d", 255, "\"v\""},
    {"MismatchedQuotesStay", kS + "k=\"v'\r\n", "S", "k", "d", 255, "\"v'"},
    {"LoneQuoteStays", kS + "k=\"\r\n", "S", "k", "d", 255, "\""},
    {"QuotedEmptyIsEmpty", kS + "k=\"\"\r\n", "S", "k", "d", 255, ""},
    {"SplitAtFirstEquals", kS + "k=a=b\r\n", "S", "k", "d", 255, "a=b"},
    {"CommentLineIsNoKey", kS + " ;k=v\r\n", "S", ";k", "d", 255, "d"},
    {"HashIsOrdinary", kS + "#k=v\r\n", "S", "#k", "d", 255, "v"},
    {"TrailingCommentBelongsToValue", kS + "k=v ;c\r\n", "S", "k", "d", 255, "v ;c"},
    {"LineWithoutEqualsIsNoKey", kS + "k\r\nk v\r\n", "S", "k", "d", 255, "d"},
    {"EmptyValueIsNotDefault", kS + "k=\r\n", "S", "k", "d", 255, ""},
    {"FirstSectionWins", "[S]\r\na=1\r\n[s]\r\na=2\r\nb=3\r\n", "S", "a", "d", 255, "1"},
    {"LaterSectionOfSameNameUnseen", "[S]\r\na=1\r\n[s]\r\nb=3\r\n", "S", "b", "d", 255, "d"},
    {"FirstKeyWins", kS + "a=1\r\nA=2\r\n", "S", "a", "d", 255, "1"},
    {"KeysBeforeFirstSectionUnreadable", "k=v\r\n[S]\r\n", "S", "k", "d", 255, "d"},
    {"CallerSpacesIgnored", kS + "k=v\r\n", "  S ", " k  ", "d", 255, "v"},
    {"CallerTabsCount", kS + "k=v\r\n", "\tS", "k", "d", 255, "d"},
    {"DefaultLosesTrailingSpacesOnly", kS, "S", "k", "  d  ", 255, "  d"},
    {"ValueCutToSizeMinusOne", kS + "k=abcd\r\n", "S", "k", "d", 4, "abc"},
    {"DefaultCutToSizeMinusOne", kS, "S", "k", "defaults", 5, "defa"},
    {"SizeZeroGivesNothing", kS + "k=v\r\n", "S", "k", "d", 0, ""},
    {"Utf8ByteOrderMarkSkipped", "\xEF\xBB\xBF[S]\r\nk=v\r\n", "S", "k", "d", 255, "v"},
    {"Utf16LeReadAsNarrow", std::string("\xFF\xFE[\0S\0]\0\r\0\n\0k\0=\0\xE4\0\x3D\xD8\x00\xDE", 22), "S",
     "k", "d", 255, "\xC3\xA4\xF0\x9F\x98\x80"},
    {"Utf16BeReadAsNarrow", std::string("\xFE\xFF\0[\0S\0]\0\r\0\n\0k\0=\0\xE4\xD8\x3D\xDE\x00", 22), "S",
     "k", "d", 255, "\xC3\xA4\xF0\x9F\x98\x80"},
    {"NulBytesPassThrough", std::string("[S]\r\nk=a\0b\r\n", 12), "S", "k", "d", 255,
     std::string("a\0b", 3)}};

INSTANTIATE_TEST_SUITE_P(Rules, IniRead, ::testing::ValuesIn(kReadCases),
                         [](const auto& info) { return std::string(info.param.name); });

struct WriteCase {
    const char* name;
    std::optional<std::string> before;  // nothing: the file does not exist
    std::string section;
    std::optional<std::string_view> key;
    std::optional<std::string_view> value;
    std::optional<std::string> after;  // nothing: the file still does not exist
    const char* renameTo = nullptr;    // given: the section is renamed to it instead
};

class IniWrite : public IniFileTest, public ::testing::WithParamInterface<WriteCase> {};

TEST_P(IniWrite, ChangesOnlyWhatItMust) {
    const WriteCase& c = GetParam();
    if (c.before)
        dir.Write("test.ini", *c.before);
    // Read first, so the write goes through a parsed copy like it does in the program.
    iniFile::Read(file, c.section, "x", "", 255);
    if (c.renameTo)
        iniFile::RenameSection(file, c.section, c.renameTo);
    else
        iniFile::Write(file, c.section, c.key, c.value);
    EXPECT_EQ(std::filesystem::exists(file) ? std::optional(dir.Read("test.ini")) : nullopt, c.after);
}

const WriteCase kWriteCases[] = {
    {"CreatesMissingFileWithoutCallerSpaces", nullopt, " S ", " k ", " v ", "[S]\r\nk= v \r\n"},
    {"NewSectionGoesToTheEnd", "[A]\r\nx=1\r\n\r\n", "S", "k", "v", "[A]\r\nx=1\r\n\r\n[S]\r\nk=v\r\n"},
    {"LineBreakAddedBeforeNewSection", "[A]\nx=1", "S", "k", "v", "[A]\nx=1\r\n[S]\r\nk=v\r\n"},
    {"NewKeyAfterLastKeyLine", "[S]\r\na=1\r\n\r\n; note\r\n[T]\r\n", "s", "b", "2",
     "[S]\r\na=1\r\nb=2\r\n\r\n; note\r\n[T]\r\n"},
    {"NewKeyRightAfterHeaderWhenNoKeys", "[S]\n; note\n[T]\n", "S", "b", "2", "[S]\nb=2\r\n; note\n[T]\n"},
    {"NewKeyAfterHeaderAtEndOfFile", "[S]", "S", "k", "v", "[S]\r\nk=v\r\n"},
    {"NewKeyAfterLastLineWithoutBreak", "[S]\na=1", "S", "k", "v", "[S]\na=1\r\nk=v\r\n"},
    {"ExistingKeyKeepsFileSpelling", "[Sec]\n  Key \t= old \nz=9\n", "SEC", "KEY", "new",
     "[Sec]\nKey=new\r\nz=9\n"},
    {"OnlyFirstKeyChanged", "[S]\r\nk=1\r\nk=2\r\n", "S", "k", "3", "[S]\r\nk=3\r\nk=2\r\n"},
    {"OnlyFirstSectionChanged", "[S]\r\n[S]\r\nk=2\r\n", "S", "k", "3", "[S]\r\nk=3\r\n[S]\r\nk=2\r\n"},
    {"ValueWrittenExactly", "[S]\r\n", "S", "k", "\"q\" ;x", "[S]\r\nk=\"q\" ;x\r\n"},
    {"SameValueLeavesFileAlone", "[S]\nk=v\n", "S", "k", "v", "[S]\nk=v\n"},
    {"SameValueOnALastLineGetsItsBreak", "[S]\nk=v", "S", "k", "v", "[S]\nk=v\r\n"},
    {"KeysBeforeFirstSectionUntouched", "k=1\r\n", "S", "k", "2", "k=1\r\n[S]\r\nk=2\r\n"},
    {"DeleteKey", "[S]\na=1\nb=2\n", "S", "A", nullopt, "[S]\nb=2\n"},
    {"DeleteMissingKeyChangesNothing", "[S]\na=1", "S", "b", nullopt, "[S]\na=1"},
    {"DeleteSectionKeepsItsComments", "[A]\nx=1\n[S]\na=1\n ; c\n\nb\n[B]\ny=2\n", "s", nullopt, nullopt,
     "[A]\nx=1\n ; c\n[B]\ny=2\n"},
    {"DeleteFirstOfTwoSections", "[S]\na=1\n[S]\na=2\n", "S", nullopt, nullopt, "[S]\na=2\n"},
    {"DeleteOnMissingFileCreatesNothing", nullopt, "S", "k", nullopt, nullopt},
    {"DeleteSectionOnMissingFileCreatesNothing", nullopt, "S", nullopt, "v", nullopt},
    {"RenameKeepsKeysOrderAndEveryOtherByte", "[A]\nx=1\n ; c\n [ profile_S ] ; n\r\nb=2\na=1\n[B]\ny=2",
     "PROFILE_s", nullopt, nullopt, "[A]\nx=1\n ; c\n [ profile_T ] ; n\r\nb=2\na=1\n[B]\ny=2", "profile_T"},
    {"RenameOnlyTheFirstOfTwo", "[S]\na=1\n[S]\na=2\n", "S", nullopt, nullopt, "[T]\na=1\n[S]\na=2\n", "T"},
    {"RenameChangesOnlyTheCase", "[S]\na=1\n", "s", nullopt, nullopt, "[s]\na=1\n", "s"},
    {"RenameOntoAnotherSectionRefused", "[S]\na=1\n[t]\n", "S", nullopt, nullopt, "[S]\na=1\n[t]\n", "T"},
    {"RenameToABrokenNameRefused", "[S]\n", "S", nullopt, nullopt, "[S]\n", "T]\r\n[U"},
    {"RenameMissingSectionChangesNothing", "[A]\n", "S", nullopt, nullopt, "[A]\n", "T"},
    {"RenameOnMissingFileCreatesNothing", nullopt, "S", nullopt, nullopt, nullopt, "T"},
    {"Utf8ByteOrderMarkKept", "\xEF\xBB\xBF[S]\nk=1\n", "S", "k", "2", "\xEF\xBB\xBF[S]\nk=2\r\n"},
    {"Utf16LeWrittenBackAsUtf16Le", std::string("\xFF\xFE[\0S\0]\0", 8), "S", "k", "\xC3\xA4\xF0\x9F\x98\x80",
     std::string("\xFF\xFE[\0S\0]\0\r\0\n\0k\0=\0\xE4\0\x3D\xD8\x00\xDE\r\0\n\0", 26)},
    {"Utf16BeWrittenBackAsUtf16Be", std::string("\xFE\xFF\0[\0S\0]", 8), "S", "k", "\xC3\xA4",
     std::string("\xFE\xFF\0[\0S\0]\0\r\0\n\0k\0=\0\xE4\0\r\0\n", 22)},
    {"Utf16LeWithoutMarkStaysSo", std::string("[\0S\0]\0", 6), "S", "k", "v",
     std::string("[\0S\0]\0\r\0\n\0k\0=\0v\0\r\0\n\0", 20)},
    {"Utf16BeWithoutMarkStaysSo", std::string("\0[\0S\0]", 6), "S", "k", "v",
     std::string("\0[\0S\0]\0\r\0\n\0k\0=\0v\0\r\0\n", 20)}};

INSTANTIATE_TEST_SUITE_P(Rules, IniWrite, ::testing::ValuesIn(kWriteCases),
                         [](const auto& info) { return std::string(info.param.name); });

// The same file as Windows and Linux tools save it reads the same and is written back in its own encoding,
// only the changed line differing; Windows-1252 is what Notepad wrote for decades.
TEST_F(IniFileTest, EveryEncodingReadsTheSameAndIsWrittenBackInItsOwn) {
    const std::string before =
        "[profile_J\xC3\xBCrgen]\r\nTARVOPATH=C:\\J\xC3\xBCrgen\\tarvolin.exe\r\nDESCRIPTION=x\r\n";
    const std::string after =
        "[profile_J\xC3\xBCrgen]\r\nTARVOPATH=C:\\J\xC3\xBCrgen\\tarvolin.exe\r\nDESCRIPTION=H\xC3\xB6he "
        "\xE2\x80\x93 2\r\n";
    const std::pair<IniEncoding, std::string> windows1252{
        IniEncoding::Windows1252,
        "[profile_J\xFCrgen]\r\nTARVOPATH=C:\\J\xFCrgen\\tarvolin.exe\r\nDESCRIPTION=H\xF6he \x96 2\r\n"};
    for (IniEncoding encoding : {IniEncoding::Narrow, IniEncoding::Utf8Bom, IniEncoding::Utf16Le,
                                 IniEncoding::Utf16Be, IniEncoding::Windows1252}) {
        IniEncoding written = encoding;
        dir.Write("test.ini", EncodeIni(before, written));
        iniFile::Store().Clear();
        const std::string section = "profile_J\xC3\xBCrgen";
        EXPECT_EQ(iniFile::Read(file, section, "TARVOPATH", "", 255), "C:\\J\xC3\xBCrgen\\tarvolin.exe");
        iniFile::Write(file, section, "DESCRIPTION", "H\xC3\xB6he \xE2\x80\x93 2");
        EXPECT_EQ(dir.Read("test.ini"),
                  encoding == windows1252.first ? windows1252.second : EncodeIni(after, written))
            << static_cast<int>(encoding);
    }
    // Text that Windows-1252 cannot hold turns the file into UTF-8 with a byte-order mark, every line kept.
    iniFile::Write(file, "profile_J\xC3\xBCrgen", "DESCRIPTION", "\xCE\xB1\xCE\xB2");
    EXPECT_EQ(dir.Read("test.ini"),
              "\xEF\xBB\xBF[profile_J\xC3\xBCrgen]\r\nTARVOPATH=C:\\J\xC3\xBCrgen\\tarvolin."
              "exe\r\nDESCRIPTION=\xCE\xB1\xCE\xB2\r\n");
    // A Windows-1252 file into which an older version wrote a value in UTF-8 reads each line right and goes
    // back as UTF-8 with a byte-order mark.
    dir.Write("test.ini", "[S]\r\nold=J\xFCrgen\r\nnew=J\xC3\xBCrgen\r\n");
    iniFile::Store().Clear();
    EXPECT_EQ(iniFile::Read(file, "S", "old", "", 255) + iniFile::Read(file, "S", "new", "", 255),
              "J\xC3\xBCrgenJ\xC3\xBCrgen");
    iniFile::Write(file, "S", "k", "v");
    EXPECT_EQ(dir.Read("test.ini"), "\xEF\xBB\xBF[S]\r\nold=J\xC3\xBCrgen\r\nnew=J\xC3\xBCrgen\r\nk=v\r\n");
}

// The parsed copy follows every write.
TEST_F(IniFileTest, ReadsBackWhatWasWritten) {
    iniFile::Write(file, "S", "k", " quoted ");
    iniFile::Write(file, "S", "e", "");
    EXPECT_EQ(iniFile::Read(file, "S", "k", "d", 255) + "|" + iniFile::Read(file, "s", "E", "d", 255),
              "quoted|");
    iniFile::Write(file, "S", "k", nullopt);
    EXPECT_EQ(iniFile::Read(file, "S", "k", "d", 255), "d");
    iniFile::Write(file, "S", nullopt, nullopt);
    EXPECT_EQ(iniFile::Read(file, "S", "e", "d", 255), "d");
}

// Nothing written can add a section or a key that the caller did not name: such a write is refused and
// leaves the file as it was, also inside an update, whose other writes are kept.
TEST_F(IniFileTest, NamesAndValuesThatWouldBreakLinesAreRefused) {
    iniFile::Write(file, "profile_A", "DESCRIPTION", "kept");
    const std::string before = dir.Read("test.ini");
    const std::tuple<const char*, const char*, const char*> refused[] = {
        {"profile_A", "DESCRIPTION", "evil\r\n[profile_Evil]\r\nTARVOPATH=/bin/sh"},
        {"profile_A", "DESCRIPTION", "a\nb"},
        {"profile_A", "DESCRIPTION", "a\rb"},
        {"profile_A", "K\r\nTARVOPATH", "v"},
        {"profile_A", "TARVOPATH=/bin/sh\r\nX", "v"},
        {"profile_A", "[profile_Evil", "v"},
        {"profile_A", ";comment", "v"},
        {"profile_A]\r\n[profile_Evil", "k", "v"},
        {"profile_A]x", "k", "v"}};
    for (const auto& [section, key, value] : refused) {
        EXPECT_EQ(iniFile::Write(file, section, key, value), platform::WriteFault::LineBreak) << key << value;
        EXPECT_EQ(dir.Read("test.ini"), before) << section << key << value;
    }
    iniFile::Update update(file);
    iniFile::Write(file, "profile_A", "DESCRIPTION", "x\ny");
    iniFile::Write(file, "profile_A", "OTHER", "kept too");
    EXPECT_EQ(update.Commit(), platform::WriteFault::LineBreak);
    EXPECT_EQ(iniFile::Read(file, "profile_A", "DESCRIPTION", "d", 255) + "|" +
                  iniFile::Read(file, "profile_A", "OTHER", "d", 255),
              "kept|kept too");
}

TEST_F(IniFileTest, AbsentArgumentsRaiseInvalidValueEmptyOnesDoNot) {
    const mIni::IniArg absent = std::nullopt;
    const std::vector<std::string> read = {"mIni.ReadFromIni"};
    const std::vector<std::string> write = {"mIni.WriteBoolToIni", "mIni.WriteToIni"};
    const std::tuple<std::function<void()>, int32_t, std::vector<std::string>> calls[] = {
        {[&] { mIni::ReadFromIni(absent, "S", "k", ""); }, 2, read},
        {[&] { mIni::ReadFromIni(file, absent, "k", ""); }, 2, read},
        {[&] { mIni::ReadFromIni(file, "S", absent, ""); }, 2, read},
        {[&] { mIni::WriteBoolToIni(file, "S", absent, true); }, 1, write}};
    for (const auto& [call, number, trail] : calls) {
        std::optional<Failure> failure = FailureOf(call);
        ASSERT_TRUE(failure);
        EXPECT_EQ(std::tuple(failure->Number(), failure->Description(), TrailOf(*failure)),
                  std::tuple(mError::kObjectError | number, "Invalid value", trail));
    }
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_EQ(mIni::ReadFromIni("", "", "", "d"), "d");
    mIni::WriteToIni(file, "", "", "v");
    EXPECT_EQ(mIni::ReadFromIni(file, "", "", "d"), "v");
}

// A read gives at most 254 characters and stops at a NUL; only "1" reads as true, and an empty or missing
// value gives the default.
TEST_F(IniFileTest, TypedReadsAsThroughTheProgramsBuffer) {
    using namespace std::string_literals;
    dir.Write("test.ini", "[S]\nlong=" + std::string(300, 'a') +
                              "\nnul=ab\0cd\none=1\nspaced=\" 1 \"\nword=true\nminus=-1\nzero=0\nyes=yes\n"
                              "two=\" 2\"\nempty=\n"s);
    EXPECT_EQ(mIni::ReadFromIni(file, "S", "long", ""), std::string(254, 'a'));
    EXPECT_EQ(mIni::ReadFromIni(file, "S", "missing", std::string(300, 'd')), std::string(254, 'd'));
    EXPECT_EQ(mIni::ReadFromIni(file, "S", "nul", ""), "ab");
    std::string bools;  // each key read with the default false, then true
    for (const char* key : {"one", "spaced", "word", "minus", "zero", "yes", "two", "empty", "missing"})
        bools += std::to_string(mIni::ReadBoolFromIni(file, "S", key, false)) +
                 std::to_string(mIni::ReadBoolFromIni(file, "S", key, true)) + " ";
    EXPECT_EQ(bools, "11 11 00 00 00 00 00 01 01 ");
}

}  // namespace
