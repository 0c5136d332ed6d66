// How a read finds its value: the rules a settings file written by hand or by another tool is read with.
#include <gtest/gtest.h>

#include <string>

#include "storage/IniStore.h"
#include "storage/iniFile.h"
#include "support/TempDir.h"

namespace {

struct ReadCase {
    const char* name;
    std::string content;
    std::string section;
    std::string key;
    std::string defaultValue;
    std::size_t size;
    std::string expected;
};

void PrintTo(const ReadCase& c, std::ostream* os) {
    *os << c.name;
}

class IniRead : public ::testing::TestWithParam<ReadCase> {
protected:
    void SetUp() override { iniFile::Store().Clear(); }
    TempDir dir;
};

TEST_P(IniRead, FindsTheValueAWindowsReaderWould) {
    const ReadCase& c = GetParam();
    std::string file = dir.Write("test.ini", c.content);
    EXPECT_EQ(iniFile::Read(file, c.section, c.key, c.defaultValue, c.size), c.expected);
}

const std::string kS = "[S]\r\n";

INSTANTIATE_TEST_SUITE_P(
    Rules, IniRead,
    ::testing::Values(
        ReadCase{"Basic", kS + "k=v\r\n", "S", "k", "d", 255, "v"},
        ReadCase{"NamesIgnoreCase", "[Sect]\r\nKey=v\r\n", "sECT", "kEY", "d", 255, "v"},
        ReadCase{"LfEndings", "[S]\nk=v\n", "S", "k", "d", 255, "v"},
        ReadCase{"CrOnlyEndings", "[A]\ra=1\r[S]\rk=v\r", "S", "k", "d", 255, "v"},
        ReadCase{"MixedEndings", "[A]\r\na=1\n[S]\rj=0\r\nk=v", "S", "k", "d", 255, "v"},
        ReadCase{"NoFinalLineBreak", "[S]\r\nk=v", "S", "k", "d", 255, "v"},
        ReadCase{"HeaderWithBlanks", " \t[ \tS \t] \r\nk=v\r\n", "S", "k", "d", 255, "v"},
        ReadCase{"TextAfterHeaderIgnored", "[S] ; the game\r\nk=v\r\n", "S", "k", "d", 255, "v"},
        ReadCase{"HeaderWithoutBracket", "[S\r\nk=v\r\n", "S", "k", "d", 255, "v"},
        ReadCase{"BlanksAndTabsAroundKeyAndValue", kS + " \t k \t= \t v w \t\r\n", "S", "k", "d", 255, "v w"},
        ReadCase{"DoubleQuotesRemoved", kS + "k=\" v \"\r\n", "S", "k", "d", 255, " v "},
        ReadCase{"SingleQuotesRemoved", kS + "k='v'\r\n", "S", "k", "d", 255, "v"},
        ReadCase{"OnlyOnePairRemoved", kS + "k=\"\"v\"\"\r\n", "S", "k", "d", 255, "\"v\""},
        ReadCase{"MismatchedQuotesStay", kS + "k=\"v'\r\n", "S", "k", "d", 255, "\"v'"},
        ReadCase{"LoneQuoteStays", kS + "k=\"\r\n", "S", "k", "d", 255, "\""},
        ReadCase{"QuotedEmptyIsEmpty", kS + "k=\"\"\r\n", "S", "k", "d", 255, ""},
        ReadCase{"SplitAtFirstEquals", kS + "k=a=b\r\n", "S", "k", "d", 255, "a=b"},
        ReadCase{"CommentLineIsNoKey", kS + " ;k=v\r\n", "S", ";k", "d", 255, "d"},
        ReadCase{"HashIsOrdinary", kS + "#k=v\r\n", "S", "#k", "d", 255, "v"},
        ReadCase{"TrailingCommentBelongsToValue", kS + "k=v ;c\r\n", "S", "k", "d", 255, "v ;c"},
        ReadCase{"LineWithoutEqualsIsNoKey", kS + "k\r\nk v\r\n", "S", "k", "d", 255, "d"},
        ReadCase{"EmptyValueIsNotDefault", kS + "k=\r\n", "S", "k", "d", 255, ""},
        ReadCase{"FirstSectionWins", "[S]\r\na=1\r\n[s]\r\na=2\r\nb=3\r\n", "S", "a", "d", 255, "1"},
        ReadCase{"LaterSectionOfSameNameUnseen", "[S]\r\na=1\r\n[s]\r\nb=3\r\n", "S", "b", "d", 255, "d"},
        ReadCase{"FirstKeyWins", kS + "a=1\r\nA=2\r\n", "S", "a", "d", 255, "1"},
        ReadCase{"KeysBeforeFirstSectionUnreadable", "k=v\r\n[S]\r\n", "S", "k", "d", 255, "d"},
        ReadCase{"MissingSection", kS + "k=v\r\n", "T", "k", "d", 255, "d"},
        ReadCase{"CallerSpacesIgnored", kS + "k=v\r\n", "  S ", " k  ", "d", 255, "v"},
        ReadCase{"CallerTabsCount", kS + "k=v\r\n", "\tS", "k", "d", 255, "d"},
        ReadCase{"DefaultLosesTrailingSpacesOnly", kS, "S", "k", "  d  ", 255, "  d"},
        ReadCase{"ValueCutToSizeMinusOne", kS + "k=abcdef\r\n", "S", "k", "d", 4, "abc"},
        ReadCase{"DefaultCutToSizeMinusOne", kS, "S", "k", "defaults", 5, "defa"},
        ReadCase{"SizeOneGivesNothing", kS + "k=v\r\n", "S", "k", "d", 1, ""},
        ReadCase{"SizeZeroGivesNothing", kS + "k=v\r\n", "S", "k", "d", 0, ""},
        ReadCase{"Utf8ByteOrderMarkSkipped", "\xEF\xBB\xBF[S]\r\nk=v\r\n", "S", "k", "d", 255, "v"},
        ReadCase{"Utf16LeReadAsNarrow",
                 std::string("\xFF\xFE[\0S\0]\0\r\0\n\0k\0=\0\xE4\0\x3D\xD8\x00\xDE", 22), "S", "k", "d", 255,
                 "\xC3\xA4\xF0\x9F\x98\x80"},
        ReadCase{"NulBytesPassThrough", std::string("[S]\r\nk=a\0b\r\n", 12), "S", "k", "d", 255,
                 std::string("a\0b", 3)}),
    [](const ::testing::TestParamInfo<ReadCase>& info) { return std::string(info.param.name); });

TEST(IniReadMissing, MissingFileOrFolderGivesDefault) {
    TempDir dir;
    EXPECT_EQ(iniFile::Read(dir.File("none.ini"), "S", "k", "d ", 255), "d");
    EXPECT_EQ(iniFile::Read(dir.File("no/where.ini"), "S", "k", "d", 255), "d");
    EXPECT_EQ(iniFile::Read("", "S", "k", "d", 255), "d");
}

}  // namespace
