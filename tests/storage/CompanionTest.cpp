// The settings companions against a real settings file in the program folder.
#include <gtest/gtest.h>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "profiles/Profile.h"
#include "storage/cIni_Application.h"
#include "storage/cIni_Options.h"
#include "storage/cIni_Profiles.h"
#include "support/AppFixture.h"
#include "support/FailureMatchers.h"

namespace {

using CompanionTest = AppFixture;

std::string Other(const std::string& text) {
    return text + "x";
}
int16_t Other(int16_t number) {
    return static_cast<int16_t>(number + 7);
}
bool Other(bool flag) {
    return !flag;
}

// A fresh program folder gives the file format's defaults (not a new profile's); every profile setting then
// comes back as it was saved.
TEST_F(CompanionTest, FreshProgramFolderGivesTheDefaultsAndEverySettingComesBack) {
    Profile profile;
    profile.SetProfileName("profile_New");
    profile.LoadData();
    EXPECT_TRUE(profile.LogMessages() && profile.Freeplay() && profile.UsePreDefinedResolution());
    EXPECT_EQ((std::vector<int>{profile.PreDefinedResolution(), profile.ResolutionWidth(),
                                profile.ResolutionHeight(), profile.Refresh()}),
              (std::vector<int>{1, 640, 480, 1}));
    EXPECT_EQ(profile.ScenarioPath() + profile.GraphicPakPath() + profile.TarvolinPath() +
                  profile.ProfileDescription(),
              "");
    EXPECT_EQ(cIni_Profiles().Read_ActiveProfileName() + " " + cIni_Application().Read_FileVersion() + " " +
                  cIni_Application().Read_AppVersion(),
              "PROFILE_DEFAULT 1 1");
    EXPECT_FALSE(std::filesystem::exists(g_cApp->IniPath()));

    for (const ProfileSettings::Any& setting : ProfileSettings::kAll)
        std::visit([&](const auto* declared) { profile.Set(*declared, Other(profile.Get(*declared))); },
                   setting);
    profile.SaveData();
    Profile again;
    again.SetProfileName("profile_New");
    again.LoadData();
    for (const ProfileSettings::Any& setting : ProfileSettings::kAll) {
        std::visit(
            [&](const auto* declared) {
                EXPECT_EQ(again.Get(*declared), profile.Get(*declared)) << declared->key.name;
            },
            setting);
    }
}

// The program's own settings, with the versions and options saved as one update of the file.
TEST_F(CompanionTest, OtherSectionsLandUnderTheirNames) {
    WriteIni("; keep me\r\n");
    cIni_Profiles().Write_ActiveProfileName("profile_Race");
    UseLanguage("de");
    g_cApp->Options().SetEditorPath("/usr/bin/gedit");
    g_cApp->Options().SetShowStartTarvolinDialog(false);
    g_cApp->SaveAppSettings();
    EXPECT_EQ(
        ReadIni(),
        "; keep me\r\n[PROFILES]\r\nLASTACTIVEPROFILE=profile_Race\r\n[APPLICATION]\r\nFILEVERSION=1.1\r\n"
        "APPVERSION=" +
            Application::AppVersionText() +
            "\r\n[OPTIONS]\r\nEDITORPATH=/usr/bin/gedit\r\nLANGUAGE=DE\r\nSTARTTARVOLINDIALOG=0\r\n");
}

TEST_F(CompanionTest, WithoutTheApplicationTheFileIsAbsent) {
    g_cApp.reset();
    std::optional<Failure> failure = FailureOf([] { cIni_Options().Read_Language(); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Description(), "Invalid value");
    EXPECT_EQ(TrailOf(*failure), (std::vector<std::string>{"cIni_Options.Read_Language",
                                                           "cIni_Options.ReadFromIni", "mIni.ReadFromIni"}));
}

}  // namespace
