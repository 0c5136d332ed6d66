#include "ui/dialogs/MnemonicSet.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace {

struct MnemonicCase {
    const char* name;
    const char* texts;     // the texts of one window, in order, separated by "|"; "=" asks for one again
    const char* expected;  // what they become, likewise
};

class MnemonicSetTest : public ::testing::TestWithParam<MnemonicCase> {};

TEST_P(MnemonicSetTest, GivesEachTextItsOwnKey) {
    MnemonicSet keys;
    QStringList marked;
    for (const QString& text : QString::fromUtf8(GetParam().texts).split(u'|'))
        marked << (text.startsWith(u'=') ? keys.Again(text.mid(1)) : keys.Add(text));
    EXPECT_EQ(marked.join(u'|'), QString::fromUtf8(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, MnemonicSetTest,
    ::testing::Values(
        MnemonicCase{"FirstFreeLetterWhateverItsCase", "Copy|contact|Close", "&Copy|c&ontact|C&lose"},
        MnemonicCase{"ExistingMnemonicIsKeptAndClaimed", "E&xtras|Xerox", "E&xtras|X&erox"},
        MnemonicCase{"AmpersandsStayLiteral", "R&&D|Rock && Roll|& more", "&R&&D|R&ock && Roll|&& &more"},
        MnemonicCase{"SkipsPunctuationAndGivesUpWhenNothingIsFree", "ab|...ba|a-b", "&ab|...&ba|a-b"},
        MnemonicCase{"AgainRepeatsTheLetterGivenBefore", "Log|Load|=Log|=Tab|Tab",
                     "&Log|L&oad|&Log|&Tab|T&ab"},
        MnemonicCase{"NonAsciiLetters", "Öffnen|Ordner|Schließen", "&Öffnen|&Ordner|&Schließen"}),
    [](const ::testing::TestParamInfo<MnemonicCase>& info) { return info.param.name; });

}  // namespace
