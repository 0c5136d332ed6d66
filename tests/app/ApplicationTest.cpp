#include "app/Application.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

#include "Version.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "support/AppFixture.h"
#include "support/Portable.h"

namespace {

class ApplicationTest : public AppFixture {};

TEST_F(ApplicationTest, FoldersAndSettingsFileLieInTheProgramFolder) {
    EXPECT_EQ(g_cApp->GetWorkDirectory(), dir.File(""));
    EXPECT_EQ(g_cApp->IniPath(), dir.File("Pavonel.ini"));
    EXPECT_EQ(g_cApp->GetLanguageDirectory(), dir.File("config/"));
    EXPECT_EQ(g_cApp->GetDocDirectory(), dir.File("doc/"));
    EXPECT_EQ(g_cApp->GetToolsDirectory(), dir.File("tools/"));
}

TEST_F(ApplicationTest, ProgramFolderWithTrailingSeparatorIsNotDoubled) {
    FakePlatform root(Native("/"));
    InstallPlatform(&root);
    Application app;
    EXPECT_EQ(app.GetWorkDirectory(), Native("/"));
    EXPECT_EQ(app.IniPath(), Native("/Pavonel.ini"));
    InstallPlatform(&platform);
}

// An installed program: the texts come from the layout's data folder, the settings from the user's own
// folder, which is made at the first save and not before.
TEST_F(ApplicationTest, AnInstalledProgramKeepsItsSettingsInTheUsersFolder) {
    platform.settingsDirectory = dir.File("home/.config/Pavonel");
    platform.dataDirectory = dir.File("share/pavonel");
    g_cApp = std::make_unique<Application>();
    EXPECT_EQ(g_cApp->IniPath(), dir.File("home/.config/Pavonel/Pavonel.ini"));
    EXPECT_EQ(g_cApp->GetLanguageDirectory(), dir.File("share/pavonel/config/"));
    EXPECT_EQ(g_cApp->GetDocDirectory(), dir.File("share/pavonel/doc/"));
    ASSERT_TRUE(g_cApp->LoadData());
    EXPECT_FALSE(std::filesystem::exists(dir.Path() / "home"));
    g_cApp->SaveAppSettings();
    EXPECT_NE(dir.Read("home/.config/Pavonel/Pavonel.ini").find("FILEVERSION=1.1"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(dir.Path() / "Pavonel.ini"));
}

TEST_F(ApplicationTest, LanguageAndFaqFileNames) {
    EXPECT_EQ(Application::GetLanguageFileWithoutPath("EN"), "LNG_EN.ini");
    EXPECT_EQ(g_cApp->GetLanguageFile("PT_BR"), dir.File("config/LNG_PT_BR.ini"));
    EXPECT_EQ(Application::GetFAQFileName("DE"), "FAQ_DE.txt");
    WriteLanguage("DE", "[FileInfo]\r\nLanguageName=Deutsch\r\n");
    EXPECT_EQ(g_cApp->GetLanguageName(g_cApp->GetLanguageFile("DE")), "Deutsch");
    EXPECT_EQ(g_cApp->GetLanguageName(g_cApp->GetLanguageFile("XX")), "");
}

TEST_F(ApplicationTest, LanguageAbbreviationIsTheMiddleOfTheName) {
    EXPECT_EQ(g_cApp->GetLanguageAbbrev("LNG_EN.ini"), "EN");
    EXPECT_EQ(g_cApp->GetLanguageAbbrev("LNG_PT_BR.ini"), "PT_BR");
    EXPECT_EQ(g_cApp->GetLanguageAbbrev("ABCDXEFGH"), "X");
    EXPECT_TRUE(ui.reports.empty());
}

TEST_F(ApplicationTest, ShortLanguageFileNameIsReported) {
    EXPECT_EQ(g_cApp->GetLanguageAbbrev("LNG_.ini"), "");
    ASSERT_EQ(ui.reports.size(), 1u);
    EXPECT_EQ(ui.reports[0].number, mError::kObjectError | 20007);
    EXPECT_EQ(ui.reports[0].description, "Cannot extract language abbrev. from filename 'LNG_.ini'");
    EXPECT_EQ(ui.reports[0].source.rfind("Application.GetLanguageAbbrev\r\n", 0), 0u);
}

TEST_F(ApplicationTest, ShowFaqOpensAnExistingFile) {
    dir.Write("doc/FAQ_DE.txt", "FAQ");
    g_cApp->ShowFAQ(7, "DE");
    ASSERT_EQ(platform.calls.size(), 1u);
    EXPECT_EQ(platform.calls[0],
              (ShellCall{7, "open", dir.File("doc/FAQ_DE.txt"), "", dir.File("doc/"), kSwShowNormal}));
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(ApplicationTest, ShowFaqNamesAMissingFile) {
    WriteLanguage("EN", "[ERROR_MESSAGES]\r\nERR_FileNotFound=File not found:\\n%P1%\r\n");
    g_cApp->ShowFAQ(0, "FR");
    EXPECT_TRUE(platform.calls.empty());
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].prompt, "File not found:\r\n" + dir.File("doc/FAQ_FR.txt"));
    EXPECT_EQ(ui.messages[0].style, vbOKOnly);
}

TEST_F(ApplicationTest, WebPageAndMailGoToTheShell) {
    g_cApp->ShowPavonelWebpage(3);
    g_cApp->ContactAuthor(4);
    ASSERT_EQ(platform.calls.size(), 2u);
    EXPECT_EQ(platform.calls[0], (ShellCall{3, "open", std::string("https://") + Version::kWebHost + "/", "",
                                            "", kSwShowNormal}));
    EXPECT_EQ(platform.calls[1],
              (ShellCall{4, "open", std::string("mailto:") + Version::kContactEmail, "", "", kSwShowNormal}));
}

}  // namespace
