#include "app/Options.h"

#include <gtest/gtest.h>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "support/AppFixture.h"

namespace {

class OptionsTest : public AppFixture {
protected:
    ::Options& options = g_cApp->Options();
};

TEST_F(OptionsTest, StartsWithTheDefaultsOfAFreshFolder) {
    options.LoadData();
    EXPECT_EQ(options.EditorPath(), "");
    EXPECT_EQ(options.Language(), "EN");
    EXPECT_TRUE(options.ShowStartTarvolinDialog());
    EXPECT_FALSE(options.DataChanged());
}

TEST_F(OptionsTest, LowerCaseLanguageIsUsedInUpperCaseAndSavedUnchanged) {
    WriteIni("[OPTIONS]\r\nLANGUAGE=de\r\nEDITORPATH=/usr/bin/kate\r\nSTARTTARVOLINDIALOG=0\r\n");
    options.LoadData();
    EXPECT_EQ(options.Language(), "DE");
    EXPECT_EQ(g_cApp->GetLanguageFile(options.Language()), dir.File("config/LNG_DE.ini"));
    EXPECT_EQ(options.EditorPath(), "/usr/bin/kate");
    EXPECT_FALSE(options.ShowStartTarvolinDialog());
    EXPECT_FALSE(options.DataChanged());
    options.SaveData();
    EXPECT_EQ(ReadIni(), "[OPTIONS]\r\nLANGUAGE=de\r\nEDITORPATH=/usr/bin/kate\r\nSTARTTARVOLINDIALOG=0\r\n");
}

TEST_F(OptionsTest, OnlyRealChangesCount) {
    WriteIni("[OPTIONS]\r\nLANGUAGE=DE\r\nEDITORPATH=/usr/bin/kate\r\n");
    options.LoadData();
    std::string language = "de";
    options.SetLanguage(language);
    EXPECT_EQ(language, "DE");
    options.SetEditorPath("/usr/bin/kate");
    options.SetShowStartTarvolinDialog(true);
    EXPECT_FALSE(options.DataChanged());
    options.SetEditorPath("/usr/bin/Kate");
    EXPECT_TRUE(options.DataChanged());
}

TEST_F(OptionsTest, SaveWritesTheChangedValues) {
    options.LoadData();
    std::string language = "de";
    options.SetLanguage(language);
    options.SetEditorPath("/opt/editor");
    options.SetShowStartTarvolinDialog(false);
    options.SaveData();
    EXPECT_EQ(ReadIni(), "[OPTIONS]\r\nEDITORPATH=/opt/editor\r\nLANGUAGE=DE\r\nSTARTTARVOLINDIALOG=0\r\n");
    EXPECT_TRUE(options.DataChanged());
}

}  // namespace
