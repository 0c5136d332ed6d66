#include "translate/cTranslate.h"

#include <gtest/gtest.h>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "platform/FileSystem.h"
#include "storage/IniEncoding.h"
#include "support/AppFixture.h"

namespace {

class cTranslateTest : public AppFixture {
protected:
    cTranslateTest() {
        WriteLanguage("EN",
                      "[GLOBAL]\r\nBTN_Yes=Yes\r\nBTN_No=No\r\nONLY_EN=English only\r\nBLANK=English\r\n"
                      "[ERROR_MESSAGES]\r\nERR_Two=%P1% and %P2%\\nagain %P1%\r\n");
        WriteLanguage("DE",
                      "[GLOBAL]\r\nBTN_Yes=Ja\r\nBTN_No=Nein\r\nBLANK=\"   \"\r\nPADDED=\"  innen  \"\r\n");
    }

    std::string T(const std::string& section, const std::string& key, const std::string& p1 = "",
                  const std::string& p2 = "") const {
        return g_cTranslate->TranslateEx(section, key, p1, p2);
    }
};

TEST_F(cTranslateTest, ChosenLanguageThenEnglishThenMarker) {
    UseLanguage("de");
    EXPECT_EQ(T("GLOBAL", "BTN_YES"), "Ja");
    EXPECT_EQ(T("GLOBAL", "ONLY_EN"), "English only");
    EXPECT_EQ(T("GLOBAL", "BLANK"), "English");
    EXPECT_EQ(T("GLOBAL", "NOWHERE"), "<NO TEXT AVAILABLE>");
    EXPECT_EQ(T("GLOBAL", "PADDED"), "  innen  ");
}

TEST_F(cTranslateTest, LanguageChangeShowsWithTheNextText) {
    UseLanguage("DE");
    EXPECT_EQ(g_cTranslate->TranslateBool_YesNo(true), "Ja");
    UseLanguage("EN");
    EXPECT_EQ(g_cTranslate->TranslateBool_YesNo(true), "Yes");
    EXPECT_EQ(g_cTranslate->TranslateBool_YesNo(false), "No");
}

TEST_F(cTranslateTest, MissingLanguageFileFallsBackToEnglish) {
    UseLanguage("FR");
    EXPECT_EQ(T("GLOBAL", "BTN_No"), "No");
    std::filesystem::remove(dir.File("config/LNG_EN.ini"));
    EXPECT_EQ(T("GLOBAL", "BTN_No"), "<NO TEXT AVAILABLE>");
}

TEST_F(cTranslateTest, ParametersAndLineBreaks) {
    EXPECT_EQ(T("ERROR_MESSAGES", "ERR_Two", "/a b/c", "x"), "/a b/c and x\r\nagain /a b/c");
    EXPECT_EQ(T("ERROR_MESSAGES", "ERR_Two"), " and \r\nagain ");
    // Placeholders are replaced one after the other: a "%P2%" inside p1 becomes p2, a "\n" a line break,
    // but p2's own "%P2%" is not replaced again.
    EXPECT_EQ(T("ERROR_MESSAGES", "ERR_Two", "%P2%\\n", "<%P2%>"),
              "<%P2%>\r\n and <%P2%>\r\nagain <%P2%>\r\n");
}

TEST_F(cTranslateTest, FailureIsReportedAndGivesNoText) {
    g_cApp.reset();
    EXPECT_EQ(T("GLOBAL", "BTN_Yes"), "");
    ASSERT_EQ(ui.reports.size(), 1u);
    EXPECT_EQ(ui.reports[0].source.rfind("cTranslate.TranslateEx\r\n", 0), 0u);
}

// A translator's file saved in Windows' "ANSI" code page shows every text as its UTF-8 original does.
TEST_F(cTranslateTest, AWindows1252LanguageFileReadsLikeItsUtf8Original) {
    const auto original = platform::ReadFile(std::string(PAVONEL_SOURCE_DIR) + "/config/LNG_DE.ini");
    ASSERT_TRUE(original);
    IniEncoding encoding = IniEncoding::Windows1252;
    WriteLanguage("DE", EncodeIni(original->bytes, encoding));
    ASSERT_EQ(encoding, IniEncoding::Windows1252);
    UseLanguage("DE");
    EXPECT_EQ(T("GLOBAL", "BTN_CLOSE"), "Schließen");
    EXPECT_EQ(T("MAIN_DIALOG", "LBL_FREEPLAY_DESC"),
              "Startet Tarvolin im Modus „Freies Spiel“ (Spieloption -freeplay).");
    EXPECT_EQ(T("ERROR_MESSAGES", "ERR_SaveDiskFull"), "Der Datenträger ist voll.");
}

}  // namespace
