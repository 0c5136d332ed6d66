#include "profiles/Profile.h"

#include <gtest/gtest.h>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "support/AppFixture.h"
#include "support/FailureMatchers.h"

namespace {

class ProfileTest : public AppFixture {
protected:
    // A profile pointed at `section` and loaded from the settings file.
    Profile& Loaded(const std::string& section) {
        profile.SetProfileName(section);
        profile.LoadData();
        return profile;
    }

    Profile profile;
};

struct CommandLineCase {
    const char* name;
    void (*setUp)(Profile&);
    const char* expected;
};

class CommandLineTest : public AppFixture, public ::testing::WithParamInterface<CommandLineCase> {};

TEST_P(CommandLineTest, ComposesTheGamesArguments) {
    Profile profile;
    GetParam().setUp(profile);
    EXPECT_EQ(profile.GetCmdLineParameters(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Profile, CommandLineTest,
    ::testing::Values(CommandLineCase{"Defaults", [](Profile&) {}, "-log -res 2 -refresh 1"},
                      CommandLineCase{"AllOff",
                                      [](Profile& p) {
                                          p.SetLogMessages(false);
                                          p.SetPreDefinedResolution(3);
                                          p.SetRefresh(0);
                                      },
                                      "-res 3"},
                      CommandLineCase{"CustomSizeAndFreeplay",
                                      [](Profile& p) {
                                          p.SetUsePreDefinedResolution(false);
                                          p.SetResolutionWidth(800);
                                          p.SetResolutionHeight(600);
                                          p.SetLogMessages(false);
                                          p.SetFreeplay(true);
                                          p.SetRefresh(0);
                                      },
                                      "-screensize 800x600 -freeplay"},
                      CommandLineCase{"NegativeRefreshIsLeftOut", [](Profile& p) { p.SetRefresh(-4); },
                                      "-log -res 2"},
                      CommandLineCase{"ScenarioRunsIntoGraphicPak",
                                      [](Profile& p) {
                                          p.SetLogMessages(false);
                                          p.SetRefresh(0);
                                          p.SetScenarioPath("demo.sve");
                                          p.SetGraphicPakPath("pak128");
                                      },
                                      "-res 2 -scenario demo.sve-graphicpack pak128"},
                      CommandLineCase{"PathsWithBlanksAreNotQuoted",
                                      [](Profile& p) {
                                          p.SetRefresh(0);
                                          p.SetScenarioPath("scenarios/Große Fahrt.sve ");
                                      },
                                      "-log -res 2 -scenario scenarios/Große Fahrt.sve"},
                      CommandLineCase{"GraphicPakAlone", [](Profile& p) { p.SetGraphicPakPath("pak64"); },
                                      "-log -res 2 -refresh 1 -graphicpack pak64"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(ProfileTest, OnlyARealChangeMarksTheProfileChanged) {
    profile.SetProfileName("profile_Race");
    profile.SetScenarioPath("");
    profile.SetRefresh(1);
    profile.SetLogMessages(true);
    EXPECT_FALSE(profile.DataChanged());
    profile.SetScenarioPath("a.sve");
    EXPECT_TRUE(profile.DataChanged());
    profile.SetDataChanged(false);
    profile.SetScenarioPath("A.sve");
    EXPECT_TRUE(profile.DataChanged()) << "case counts";
}

TEST_F(ProfileTest, CaptionDropsTheProfilePrefixInAnyCase) {
    const std::pair<const char*, const char*> cases[] = {{"Profile_X", "X"},
                                                         {"profile_", ""},
                                                         {"MyProfile", "MyProfile"},
                                                         {"PROFILE_DEFAULT", "DEFAULT"},
                                                         {"prof", "prof"}};
    for (const auto& [name, caption] : cases) {
        profile.SetProfileName(name);
        EXPECT_EQ(profile.ProfileCaption(), caption) << name;
    }
}

TEST_F(ProfileTest, LoadsEverySettingWithoutCountingItAsAChange) {
    WriteIni(
        "[profile_Race]\r\nLOGMESSAGES=0\r\nFREEPLAY=1\r\nUSESTANDARDRESOLUTION=0\r\nRESOLUTION=99\r\n"
        "RES_WIDTH=1920\r\nRES_HEIGHT=1080\r\nSCENARIO=Überland.sve\r\nGRAPICPAK=pak.nordisch\r\n"
        "REFRESH=-1\r\nTARVOPATH=/spiele/Tarvolin/tarvolin.exe\r\nDESCRIPTION=Schnell & weit\r\n");
    Loaded("profile_Race");
    EXPECT_FALSE(profile.LogMessages());
    EXPECT_TRUE(profile.Freeplay());
    EXPECT_FALSE(profile.UsePreDefinedResolution());
    EXPECT_EQ(profile.PreDefinedResolution(), 99);
    EXPECT_EQ(profile.ResolutionWidth(), 1920);
    EXPECT_EQ(profile.ResolutionHeight(), 1080);
    EXPECT_EQ(profile.ScenarioPath(), "Überland.sve");
    EXPECT_EQ(profile.GraphicPakPath(), "pak.nordisch");
    EXPECT_EQ(profile.Refresh(), -1);
    EXPECT_EQ(profile.TarvolinPath(), "/spiele/Tarvolin/tarvolin.exe");
    EXPECT_EQ(profile.ProfileDescription(), "Schnell & weit");
    EXPECT_FALSE(profile.DataChanged());
    EXPECT_TRUE(ui.messages.empty()) << "99 is no reason for a warning";
}

TEST_F(ProfileTest, ResolutionBelowOneIsReplacedAfterAWarning) {
    for (const char* stored : {"0", "-3"}) {
        WriteIni(std::string("[profile_A]\r\nRESOLUTION=") + stored + "\r\n");
        ui.messages.clear();
        Profile loaded;
        loaded.SetProfileName("profile_A");
        loaded.LoadData();
        EXPECT_EQ(loaded.PreDefinedResolution(), 1);
        EXPECT_TRUE(loaded.DataChanged());
        ASSERT_EQ(ui.messages.size(), 1u);
        EXPECT_EQ(ui.messages[0].style, vbCritical);
        EXPECT_EQ(
            ui.messages[0].prompt,
            std::string("Warning:\r\nThe configuration file contains the invalid Resolution-ID ") + stored +
                ".\r\nThe resolution 1 (600 x 480 pixel) will be used instead.\r\n\r\nWarning-ID: 20002");
    }
}

TEST_F(ProfileTest, UnreadableNumberFailsWithTheCompanionsTrail) {
    const std::pair<const char*, int32_t> cases[] = {{"12ab", mError::kTypeMismatch},
                                                     {"40000", mError::kOverflow}};
    for (const auto& [width, number] : cases) {
        WriteIni(std::string("[profile_A]\r\nRES_WIDTH=") + width + "\r\nSCENARIO=x\r\n");
        Profile broken;
        broken.SetProfileName("profile_A");
        const auto failure = FailureOf([&] { broken.LoadData(); });
        ASSERT_TRUE(failure) << width;
        EXPECT_EQ(failure->Number(), number);
        EXPECT_EQ(TrailOf(*failure),
                  (std::vector<std::string>{"Profile.LoadData", "cIni_Profile.Read_ResolutionWidth"}));
        EXPECT_EQ(broken.ScenarioPath(), "") << "reading stops at the failure";
    }
}

TEST_F(ProfileTest, SavesEverySettingAndKeepsItsNewState) {
    profile.SetProfileName("profile_Ünïcode");
    profile.SetIsNewProfile(true);
    profile.SetFreeplay(true);
    profile.SetTarvolinPath("/opt/Spiele mit Leer/tarvolin.exe");
    profile.SetProfileDescription("Beschreibung – mit Gedankenstrich");
    profile.SaveData();
    EXPECT_FALSE(profile.DataChanged());
    EXPECT_TRUE(profile.IsNewProfile());
    EXPECT_EQ(
        ReadIni(),
        "[profile_Ünïcode]\r\nLOGMESSAGES=1\r\nFREEPLAY=1\r\nUSESTANDARDRESOLUTION=1\r\nRESOLUTION=2\r\n"
        "RES_WIDTH=640\r\nRES_HEIGHT=480\r\nSCENARIO=\r\nGRAPICPAK=\r\nREFRESH=1\r\n"
        "TARVOPATH=/opt/Spiele mit Leer/tarvolin.exe\r\nDESCRIPTION=Beschreibung – mit Gedankenstrich\r\n");
    Profile again;
    again.SetProfileName("PROFILE_ÜNÏCODE");
    again.LoadData();
    EXPECT_EQ(again.ProfileDescription(), "") << "sections match without regard to ASCII case only";
    again.SetProfileName("profile_Ünïcode");
    again.LoadData();
    EXPECT_EQ(again.TarvolinPath(), "/opt/Spiele mit Leer/tarvolin.exe");
}

TEST_F(ProfileTest, SettingsTextDescribesTheProfileInTheChosenLanguage) {
    EXPECT_EQ(profile.GetSettingsListAsText(),
              "Freeplay: No\r\nLog messages: Yes\r\nRefresh: Standard (60 Hz)\r\n"
              "Graphic pak: standard graphic pak\r\nScenario: none\r\nResolution: 800 x 600");
    UseLanguage("de");
    profile.SetUsePreDefinedResolution(false);
    profile.SetResolutionWidth(1600);
    profile.SetResolutionHeight(900);
    profile.SetScenarioPath("demo.sve");
    profile.SetGraphicPakPath("pak128");
    profile.SetRefresh(0);
    EXPECT_EQ(profile.GetSettingsListAsText(),
              "Freeplay: Nein\r\nLog messages: Ja\r\nRefresh: <NO TEXT AVAILABLE>\r\nGraphic pak: pak128\r\n"
              "Scenario: demo.sve\r\nResolution: 1600 x 900");
    EXPECT_EQ(Profile::GetStandardResolutionDescription(3), "1024 x 768");
    EXPECT_EQ(Profile::GetRefreshDescription(2), "70 Hz");
}

}  // namespace
