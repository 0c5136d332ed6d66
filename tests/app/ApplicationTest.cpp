// The application object: where its files lie, loading the settings and the active profile, the options,
// and the documents it opens (the about window opens its web page and mail).
#include "app/Application.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

#include "app/PublicObjects.h"
#include "error/mError.h"
#include "support/AppFixture.h"
#include "support/Portable.h"

namespace {

using ApplicationTest = AppFixture;

TEST_F(ApplicationTest, FoldersAndSettingsFileLieInTheProgramFolder) {
    EXPECT_EQ(g_cApp->GetWorkDirectory() + "|" + g_cApp->IniPath() + "|" + g_cApp->GetLanguageDirectory() +
                  "|" + g_cApp->GetDocDirectory() + "|" + g_cApp->GetToolsDirectory(),
              dir.File("") + "|" + dir.File("Pavonel.ini") + "|" + dir.File("config/") + "|" +
                  dir.File("doc/") + "|" + dir.File("tools/"));
    FakePlatform root(Native("/"));
    InstallPlatform(&root);
    const Application app;
    EXPECT_EQ(app.IniPath(), Native("/Pavonel.ini")) << "no doubled separator";
    InstallPlatform(&platform);
}

// An installed program: the texts come from the layout's data folder, the settings from the user's own
// folder, which is made at the first save and not before.
TEST_F(ApplicationTest, AnInstalledProgramKeepsItsSettingsInTheUsersFolder) {
    platform.settingsDirectory = dir.File("home/.config/Pavonel");
    platform.dataDirectory = dir.File("share/pavonel");
    g_cApp = std::make_unique<Application>();
    EXPECT_EQ(g_cApp->GetLanguageDirectory(), dir.File("share/pavonel/config/"));
    EXPECT_EQ(g_cApp->GetDocDirectory(), dir.File("share/pavonel/doc/"));
    ASSERT_TRUE(g_cApp->LoadData());
    EXPECT_FALSE(std::filesystem::exists(dir.Path() / "home"));
    g_cApp->SaveAppSettings();
    EXPECT_NE(dir.Read("home/.config/Pavonel/Pavonel.ini").find("FILEVERSION=1.1"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(dir.Path() / "Pavonel.ini"));
}

TEST_F(ApplicationTest, LanguageFilesAreNamedByTheirAbbreviation) {
    EXPECT_EQ(g_cApp->GetLanguageFile("PT_BR"), dir.File("config/LNG_PT_BR.ini"));
    EXPECT_EQ(g_cApp->GetLanguageName(g_cApp->GetLanguageFile("DE")), "Deutsch");
    EXPECT_EQ(g_cApp->GetLanguageName(g_cApp->GetLanguageFile("XX")), "");
    EXPECT_EQ(g_cApp->GetLanguageAbbrev("LNG_PT_BR.ini") + g_cApp->GetLanguageAbbrev("ABCDXEFGH"), "PT_BRX");
    EXPECT_TRUE(ui.reports.empty());
    EXPECT_EQ(g_cApp->GetLanguageAbbrev("LNG_.ini"), "");
    ASSERT_EQ(ui.reports.size(), 1u);
    EXPECT_EQ(ui.reports[0].number, mError::kObjectError | 20007);
    EXPECT_EQ(ui.reports[0].description, "Cannot extract language abbrev. from filename 'LNG_.ini'");
    EXPECT_EQ(ui.reports[0].source.rfind("Application.GetLanguageAbbrev\r\n", 0), 0u);
}

TEST_F(ApplicationTest, TheFaqIsOpenedOrNamedAsMissing) {
    dir.Write("doc/FAQ_DE.txt", "FAQ");
    g_cApp->ShowFAQ(7, "DE");
    g_cApp->ShowFAQ(0, "FR");
    ASSERT_EQ(platform.calls.size(), 1u);
    EXPECT_EQ(platform.calls[0],
              (ShellCall{7, "open", dir.File("doc/FAQ_DE.txt"), "", dir.File("doc/"), kSwShowNormal}));
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].prompt,
              "The file could not be found. Please check the path.\r\n" + dir.File("doc/FAQ_FR.txt"));
    EXPECT_EQ(ui.messages[0].style, vbOKOnly);
}

TEST_F(ApplicationTest, RemembersTheLastActiveProfile) {
    WriteIni(
        "[OPTIONS]\r\nLANGUAGE=de\r\n[PROFILES]\r\nLASTACTIVEPROFILE=PROFILE_RACE\r\n"
        "[profile_A]\r\n[profile_Race]\r\nREFRESH=4\r\n");
    ASSERT_TRUE(g_cApp->LoadData());
    ASSERT_NE(g_cApp->ActiveProfile(), nullptr);
    EXPECT_EQ(g_cApp->ActiveProfile()->ProfileName(), "profile_Race");
    EXPECT_EQ(g_cApp->ActiveProfile()->Refresh(), 4);
    EXPECT_EQ(g_cApp->Options().Language(), "DE");
    EXPECT_EQ(ui.loadProfileDialogs, 0);
    EXPECT_FALSE(g_cApp->Profiles().DataChanged());
    EXPECT_TRUE(g_cApp->DataChanged()) << "making a profile active is a change";
}

// The remembered profile is gone: the user chooses one, and without a choice the program cannot go on.
TEST_F(ApplicationTest, TheUserChoosesWhenTheRememberedProfileIsGone) {
    WriteIni("[PROFILES]\r\nLASTACTIVEPROFILE=profile_Gone\r\n[profile_A]\r\n[profile_B]\r\n");
    ui.loadProfile = [] { return &g_cApp->Profiles().Item("profile_B"); };
    ASSERT_TRUE(g_cApp->LoadData());
    EXPECT_EQ(ui.loadProfileDialogs, 1);
    EXPECT_EQ(g_cApp->ActiveProfile()->ProfileName(), "profile_B");
    EXPECT_TRUE(ui.messages.empty());

    g_cApp = std::make_unique<Application>();
    ui.loadProfile = nullptr;
    EXPECT_FALSE(g_cApp->LoadData());
    EXPECT_EQ(g_cApp->ActiveProfile(), nullptr);
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].prompt, "You have to load a profile, if you want to use this application.");
    EXPECT_EQ(ui.messages[0].style, vbOKOnly);
}

TEST_F(ApplicationTest, FirstStartMakesTheStandardProfileActive) {
    ASSERT_TRUE(g_cApp->LoadData());
    EXPECT_EQ(g_cApp->ActiveProfile()->ProfileName(), "PROFILE_DEFAULT");
    EXPECT_TRUE(g_cApp->Profiles().DataChanged());
}

TEST_F(ApplicationTest, OnlyADifferentProfileCountsAsAChangeOfTheActiveOne) {
    Profile& a = g_cApp->Profiles().Add("profile_A", "profile_A");
    g_cApp->SetActiveProfile(nullptr);
    EXPECT_FALSE(g_cApp->DataChanged()) << "the same (no) profile again";
    g_cApp->SetActiveProfile(&a);
    EXPECT_TRUE(g_cApp->DataChanged());
    EXPECT_FALSE(g_cApp->Profiles().DataChanged());
}

TEST_F(ApplicationTest, SavingGoesThroughTheSaveDialog) {
    Profile& a = g_cApp->Profiles().Add("profile_A", "profile_A");
    a.SetProfileName("profile_A");
    a.SetFreeplay(true);
    g_cApp->SaveData();
    EXPECT_EQ(ui.saveDialogs, 1);
    EXPECT_EQ(ReadIni(), "");
    g_cApp->SaveDataEx("profile_A");
    EXPECT_FALSE(a.DataChanged());
    EXPECT_NE(ReadIni().find("FREEPLAY=1"), std::string::npos);
}

TEST_F(ApplicationTest, OptionsStartWithTheDefaultsOfAFreshFolder) {
    ::Options& options = g_cApp->Options();
    options.LoadData();
    EXPECT_EQ(options.EditorPath() + "|" + options.Language(), "|EN");
    EXPECT_TRUE(options.ShowStartTarvolinDialog());
    EXPECT_FALSE(options.DataChanged());
}

// A lower-case language is used in upper case and saved as it was; only a real change counts.
TEST_F(ApplicationTest, OptionsChangeOnlyWhenAValueDoes) {
    const std::string stored =
        "[OPTIONS]\r\nLANGUAGE=de\r\nEDITORPATH=/usr/bin/kate\r\nSTARTTARVOLINDIALOG=0\r\n";
    WriteIni(stored);
    g_cApp->Options().LoadData();
    EXPECT_EQ(g_cApp->Options().Language() + "|" + g_cApp->Options().EditorPath(), "DE|/usr/bin/kate");
    EXPECT_FALSE(g_cApp->Options().ShowStartTarvolinDialog());
    g_cApp->Options().SaveData();
    EXPECT_EQ(ReadIni(), stored);

    WriteIni("[OPTIONS]\r\nLANGUAGE=DE\r\nEDITORPATH=/usr/bin/kate\r\n");
    ::Options options;
    options.LoadData();
    std::string language = "de";
    options.SetLanguage(language);
    EXPECT_EQ(language, "DE");
    options.SetEditorPath("/usr/bin/kate");
    options.SetShowStartTarvolinDialog(true);
    EXPECT_FALSE(options.DataChanged());
    options.SetEditorPath("/usr/bin/Kate");
    options.SetShowStartTarvolinDialog(false);
    EXPECT_TRUE(options.DataChanged());
    options.SaveData();
    EXPECT_EQ(ReadIni(), "[OPTIONS]\r\nLANGUAGE=DE\r\nEDITORPATH=/usr/bin/Kate\r\nSTARTTARVOLINDIALOG=0\r\n");
}

}  // namespace
