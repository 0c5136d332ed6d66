// The settings companions against a real settings file in the program folder.
#include <gtest/gtest.h>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "storage/cIni_Application.h"
#include "storage/cIni_Options.h"
#include "storage/cIni_Profile.h"
#include "storage/cIni_Profiles.h"
#include "support/AppFixture.h"
#include "support/FailureMatchers.h"

namespace {

using CompanionTest = AppFixture;

TEST_F(CompanionTest, FreshProgramFolderGivesTheDefaults) {
    cIni_Profile profile;
    profile.SetProfileName("profile_New");
    EXPECT_TRUE(profile.Read_LogMessages() && profile.Read_Freeplay() &&
                profile.Read_UsePreDefinedResolution());
    EXPECT_EQ((std::vector<int>{profile.Read_PreDefinedResolution(), profile.Read_ResolutionWidth(),
                                profile.Read_ResolutionHeight(), profile.Read_Refresh()}),
              (std::vector<int>{1, 640, 480, 1}));
    EXPECT_EQ(profile.Read_ScenarioPath() + profile.Read_GraphicPakPath() + profile.Read_TarvolinPath() +
                  profile.Read_ProfileDescription(),
              "");
    EXPECT_EQ(cIni_Profiles().Read_ActiveProfileName() + " " + cIni_Application().Read_FileVersion() + " " +
                  cIni_Application().Read_AppVersion(),
              "PROFILE_DEFAULT 1 1");
    EXPECT_FALSE(std::filesystem::exists(g_cApp->IniPath()));
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
