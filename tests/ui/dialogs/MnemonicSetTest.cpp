#include "ui/dialogs/MnemonicSet.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace {

struct MnemonicCase {
    const char* name;
    QStringList texts;
    QStringList expected;
};

class MnemonicSetTest : public ::testing::TestWithParam<MnemonicCase> {};

TEST_P(MnemonicSetTest, GivesEachTextItsOwnKey) {
    MnemonicSet keys;
    QStringList marked;
    for (const QString& text : GetParam().texts)
        marked << keys.Add(text);
    EXPECT_EQ(marked, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, MnemonicSetTest,
    ::testing::Values(
        MnemonicCase{"FirstFreeLetter", {"Copy", "Contact", "Close"}, {"&Copy", "C&ontact", "C&lose"}},
        MnemonicCase{"CaseDoesNotMatter", {"copy", "Cut"}, {"&copy", "C&ut"}},
        MnemonicCase{"ExistingMnemonicIsKeptAndClaimed", {"E&xtras", "Xerox"}, {"E&xtras", "X&erox"}},
        MnemonicCase{"DoubledAmpersandIsNoMnemonic", {"R&&D", "Rock && Roll"}, {"&R&&D", "R&ock && Roll"}},
        MnemonicCase{"LiteralAmpersandsShow", {"Tom & Jerry", "& more"}, {"&Tom && Jerry", "&& &more"}},
        MnemonicCase{"SkipsPunctuation", {"...Go", "-> Gone"}, {"...&Go", "-> G&one"}},
        MnemonicCase{"NoFreeLetterLeavesTheTextPlain", {"ab", "ba", "a-b"}, {"&ab", "&ba", "a-b"}},
        MnemonicCase{
            "NonAsciiLetters", {"Öffnen", "Ordner", "Schließen"}, {"&Öffnen", "&Ordner", "&Schließen"}}),
    [](const ::testing::TestParamInfo<MnemonicCase>& info) { return info.param.name; });

}  // namespace
