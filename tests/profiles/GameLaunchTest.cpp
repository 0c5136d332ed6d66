// The whole road of one start: the profile's command line through the real platform to the stand-in game.
#include <gtest/gtest.h>

#include <filesystem>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "platform/NativePath.h"
#include "profiles/Profile.h"
#include "support/AppFixture.h"
#include "support/Portable.h"
#include "support/StandInGame.h"

namespace {

class GameLaunchTest : public AppFixture {
protected:
    GameLaunchTest() {
        InstallPlatform(nullptr);
        g_cApp->Options().SetShowStartTarvolinDialog(false);
    }
    ~GameLaunchTest() override { InstallPlatform(&platform); }
};

TEST_F(GameLaunchTest, TheGameReceivesTheProfilesArgumentsInItsOwnFolder) {
    const std::filesystem::path folder =
        dir.Path() / platform::PathOf("Spiele mit Leerzeichen") / platform::PathOf("Tarvolin Größe");
    const StandInGame game(folder);
    Profile profile;
    profile.SetTarvolinPath(game.Path());
    profile.SetFreeplay(true);
    profile.SetScenarioPath("scenarios/Lange Fahrt.sve");
    profile.SetGraphicPakPath("pak128");
    profile.StartTarvolin(0);
    const auto record = game.WaitForRecord();
    ASSERT_TRUE(record);
    EXPECT_EQ(record->directory, platform::TextOf(folder));
    EXPECT_EQ(record->arguments,
              (std::vector<std::string>{"-log", "-res", "2", "-freeplay", "-refresh", "1", "-scenario",
                                        "scenarios/Lange", "Fahrt.sve-graphicpack", "pak128"}));
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(GameLaunchTest, AMissingOrBrokenGameIsExplainedAndNothingStarts) {
    Profile profile;
    profile.SetTarvolinPath(dir.File("verschollen/tarvolin.exe"));
    profile.StartTarvolin(0);
    const std::string broken = dir.Write("tarvolin.exe", "neither a program nor a Windows file");
    Profile brokenProfile;
    brokenProfile.SetTarvolinPath(broken);
    brokenProfile.StartTarvolin(0);
    ASSERT_EQ(ui.messages.size(), 2u);
    EXPECT_EQ(ui.messages[0].prompt.rfind(
                  "Tarvolin could not be started because its program file was not found.", 0),
              0u);
    EXPECT_NE(ui.messages[0].prompt.find(Native("verschollen/tarvolin.exe")), std::string::npos);
    EXPECT_EQ(ui.messages[1].prompt.rfind("The chosen file cannot be started as a program.", 0), 0u);
    EXPECT_FALSE(g_cApp->Profiles().DataChanged());
}

}  // namespace
