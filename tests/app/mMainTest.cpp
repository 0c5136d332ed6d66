#include "app/mMain.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <tuple>

#include "app/Application.h"
#include "app/ErrorReport.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "support/AppFixture.h"
#include "support/FailureMatchers.h"
#include "support/Portable.h"

namespace {

class mMainTest : public AppFixture {
protected:
    static OpenFileAnswer Chosen(const std::string& file) {
        return OpenFileAnswer{OpenFileAnswer::Outcome::kChosen, {file}, false, 0};
    }
};

TEST_F(mMainTest, GamePathChooserProposesAnExistingFileOnly) {
    std::filesystem::create_directory(dir.Path() / "Spiel");
    const std::string game = dir.Write("Spiel/tarvolin.exe", "MZ");
    const std::pair<std::string, std::string> cases[] = {{"", "tarvolin.exe"},
                                                         {dir.File("Spiel"), "tarvolin.exe"},
                                                         {dir.File("gone.exe"), "tarvolin.exe"},
                                                         {game, game}};
    for (const auto& [current, proposal] : cases)
        EXPECT_EQ(mMain::AskForTarvoPath(current), proposal) << "cancelled with " << current;
    ASSERT_EQ(ui.fileRequests.size(), 4u);
    const OpenFileOptions& asked = ui.fileRequests[0];
    EXPECT_EQ(asked.filter + "|" + asked.title + "|" + asked.defaultExtension,
              "Programs (*.exe)|*.exe|Choose the Tarvolin Program File (tarvolin.exe)|.exe");
    EXPECT_EQ(std::tuple(asked.fileMustExist, asked.hideReadOnly, asked.multiSelect, asked.readOnlyChecked,
                         asked.owner),
              std::tuple(true, true, false, false, -1));
    ui.fileAnswers.push_back(Chosen("/elsewhere/tarvolin.exe"));
    EXPECT_EQ(mMain::AskForTarvoPath(game), "/elsewhere/tarvolin.exe");
}

TEST_F(mMainTest, EditorChooserProposesTheSystemsWriteProgram) {
    platform.windowsDirectory = Native("/opt/windows");
    EXPECT_EQ(mMain::AskForEditorPath(""), Native("/opt/windows/write.exe"));
    platform.windowsDirectory = Native("/opt/windows/");
    EXPECT_EQ(mMain::AskForEditorPath(dir.File("missing")), Native("/opt/windows/write.exe"));
    UseLanguage("DE");
    mMain::AskForEditorPath("");
    EXPECT_EQ(ui.fileRequests.back().filter, "Programme (*.exe)|*.exe");
    EXPECT_EQ(ui.fileRequests.back().title, "Texteditor auswählen");
}

TEST_F(mMainTest, EditorChooserFailuresCarryTheGameChoosersName) {
    ui.fileAnswers.push_back(OpenFileAnswer{OpenFileAnswer::Outcome::kFailed, {}, false, 12290});
    const auto failure = FailureOf([] { mMain::AskForEditorPath(""); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(TrailOf(*failure).front(), "mMain.AskForTarvoPath");
}

TEST_F(mMainTest, GameVersionIsProductNameAndVersionOrTheGamesName) {
    EXPECT_EQ(mMain::GetTarvolinFile_VersionInfo(""), "Tarvolin");
    EXPECT_EQ(mMain::GetTarvolinFile_VersionInfo(dir.Write("tarvolin.exe", "#!/bin/sh\n")), "Tarvolin");
    EXPECT_EQ(mMain::GetTarvolinFile_VersionInfo(dir.File("missing.exe")), "Tarvolin");
    const std::string game = std::string(PAVONEL_SOURCE_DIR) + "/tests/fileinfo/fixtures/version64.exe";
    EXPECT_EQ(mMain::GetTarvolinFile_VersionInfo(game), "Tarvolin 1.4 Gold");
}

TEST_F(mMainTest, ErrorReportNamesTheActiveProfilesGame) {
    Profile& active = g_cApp->Profiles().Add("profile_A", "profile_A");
    active.SetTarvolinPath("/games/Tarvolin/tarvolin.exe");
    g_cApp->SetActiveProfile(&active);
    const std::string text = ComposeErrorReport(Failure(5, "x")).text;
    EXPECT_NE(text.find("\r\nTarvolin-Version: Tarvolin\r\nTarvolin-Path: /games/Tarvolin/tarvolin.exe"),
              std::string::npos);
}

}  // namespace
