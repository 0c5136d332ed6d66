#include "profiles/Profile.h"

#include <gtest/gtest.h>

#include <tuple>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "mainwindow/frmMainRules.h"
#include "support/AppFixture.h"
#include "support/FailureMatchers.h"
#include "support/Portable.h"
#include "translate/cTranslate.h"

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

// A profile's settings (the defaults of a new one where a case gives none) and its command line, which
// the main window composes alike from what it shows and gives back alike when it writes that back.
struct CommandLineCase {
    bool log = true, standard = true, freeplay = false;
    int16_t resolution = 2, width = 640, height = 480, refresh = 1;
    const char* scenario = "";
    const char* pak = "";
    const char* expected;
};

TEST_F(ProfileTest, CommandLineHasTheGamesArgumentsInItsOrder) {
    const CommandLineCase cases[] = {
        {.log = false, .resolution = 3, .refresh = 0, .expected = "-res 3"},
        {.log = false,
         .standard = false,
         .freeplay = true,
         .width = 800,
         .height = 600,
         .refresh = 0,
         .expected = "-screensize 800x600 -freeplay"},
        {.refresh = -4, .expected = "-log -res 2"},
        // The scenario runs into the graphic pak, and paths with blanks are not quoted.
        {.log = false,
         .refresh = 0,
         .scenario = "demo.sve",
         .pak = "pak128",
         .expected = "-res 2 -scenario demo.sve-graphicpack pak128"},
        {.refresh = 0,
         .scenario = "scenarios/Große Fahrt.sve ",
         .expected = "-log -res 2 -scenario scenarios/Große Fahrt.sve"},
        {.pak = "pak64", .expected = "-log -res 2 -refresh 1 -graphicpack pak64"}};
    for (const CommandLineCase& c : cases) {
        Profile p;
        p.SetLogMessages(c.log);
        p.SetUsePreDefinedResolution(c.standard);
        p.SetFreeplay(c.freeplay);
        p.SetPreDefinedResolution(c.resolution);
        p.SetResolutionWidth(c.width);
        p.SetResolutionHeight(c.height);
        p.SetRefresh(c.refresh);
        p.SetScenarioPath(c.scenario);
        p.SetGraphicPakPath(c.pak);
        EXPECT_EQ(p.GetCmdLineParameters(), c.expected);
        EXPECT_EQ(frmMainRules::GetCmdLineParameters(frmMainRules::ValuesOf(p)), c.expected);
        Profile written;  // what the window writes back of what it showed
        frmMainRules::WriteInto(frmMainRules::ValuesOf(p), written);
        EXPECT_EQ(written.GetCmdLineParameters(), c.expected);
    }
    EXPECT_EQ(Profile().GetCmdLineParameters(), "-log -res 2 -refresh 1") << "a new profile";
}

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
    EXPECT_EQ(std::tuple(profile.LogMessages(), profile.Freeplay(), profile.UsePreDefinedResolution(),
                         profile.PreDefinedResolution(), profile.ResolutionWidth(),
                         profile.ResolutionHeight(), profile.Refresh()),
              std::tuple(false, true, false, 99, 1920, 1080, -1));
    EXPECT_EQ(profile.ScenarioPath() + "|" + profile.GraphicPakPath() + "|" + profile.TarvolinPath() + "|" +
                  profile.ProfileDescription(),
              "Überland.sve|pak.nordisch|/spiele/Tarvolin/tarvolin.exe|Schnell & weit");
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

// Texts handed in with line breaks are kept on one line.
TEST_F(ProfileTest, SavesEverySettingAndKeepsItsNewState) {
    profile.SetProfileName("profile_Ünïcode");
    profile.SetIsNewProfile(true);
    profile.SetFreeplay(true);
    profile.SetTarvolinPath("/opt/Spiele mit Leer/tarvolin.exe\r\n");
    profile.SetProfileDescription("Beschreibung –\r\n\nmit Gedankenstrich");
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

class ProfileLaunchTest : public AppFixture {
protected:
    ProfileLaunchTest() {
        profile.SetTarvolinPath(Native("/games/Tar volin/tarvolin.exe"));
        profile.SetRefresh(0);
    }

    Profile profile;
};

// Without the confirmation the game starts at once in its own folder, or in none for a bare name; with it,
// the confirmation shows the command line and can stop the start.
TEST_F(ProfileLaunchTest, StartsInTheGamesFolderAfterTheConfirmation) {
    ui.startAnswers = {false, true};
    profile.StartTarvolin(0);
    EXPECT_TRUE(platform.calls.empty());
    profile.StartTarvolin(77);
    EXPECT_EQ(ui.startDialogs, (std::vector<std::string>{"-log -res 2", "-log -res 2"}));
    g_cApp->Options().SetShowStartTarvolinDialog(false);
    profile.SetTarvolinPath("tarvolin.exe");
    profile.StartTarvolin(0);
    EXPECT_EQ(ui.startDialogs.size(), 2u);
    EXPECT_EQ(platform.calls, (std::vector<ShellCall>{{77, "open", Native("/games/Tar volin/tarvolin.exe"),
                                                       "-log -res 2", Native("/games/Tar volin/"), 1},
                                                      {0, "open", "tarvolin.exe", "-log -res 2", "", 1}}));
    EXPECT_TRUE(ui.messages.empty());
}

// The shell's answer decides which message the user gets; each names the path that was tried.
TEST_F(ProfileLaunchTest, AGameThatCannotStartIsExplained) {
    g_cApp->Options().SetShowStartTarvolinDialog(false);
    const std::pair<int32_t, const char*> cases[] = {{kSeErrFileNotFound, "ERR_GameNotFound"},
                                                     {kSeErrPathNotFound, "ERR_GameNotFound"},
                                                     {kSeErrAccessDenied, "ERR_GameNotExecutable"},
                                                     {kSeErrBadFormat, "ERR_GameNotExecutable"},
                                                     {kSeErrNoAssociation, "ERR_WineMissing"}};
    for (const auto& [result, key] : cases) {
        platform.shellResult = result;
        ui.messages.clear();
        profile.StartTarvolin(0);
        ASSERT_EQ(ui.messages.size(), 1u) << key;
        EXPECT_EQ(ui.messages[0].prompt,
                  g_cTranslate->TranslateEx("ERROR_MESSAGES", key, profile.TarvolinPath()));
        EXPECT_NE(ui.messages[0].prompt.find(Native("/games/Tar volin/tarvolin.exe")), std::string::npos);
    }
    UseLanguage("DE");
    profile.StartTarvolin(0);
    EXPECT_NE(ui.messages.back().prompt.find("Wine"), std::string::npos);
    EXPECT_EQ(ui.messages.back().prompt.find("please install"), std::string::npos) << "shown in German";
}

}  // namespace
