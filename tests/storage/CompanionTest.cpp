// The settings companions against a real settings file in the program folder.
#include <gtest/gtest.h>

#include "Version.h"
#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "storage/cIni_Application.h"
#include "storage/cIni_Options.h"
#include "storage/cIni_Profile.h"
#include "storage/cIni_Profiles.h"
#include "support/AppFixture.h"
#include "support/FailureMatchers.h"

namespace {

class CompanionTest : public AppFixture {
protected:
    cIni_Profile Profile(const std::string& name) const {
        cIni_Profile profile;
        profile.SetProfileName(name);
        return profile;
    }
};

TEST_F(CompanionTest, FreshProgramFolderGivesTheDefaults) {
    cIni_Profile profile = Profile("profile_New");
    EXPECT_TRUE(profile.Read_LogMessages());
    EXPECT_TRUE(profile.Read_Freeplay());
    EXPECT_TRUE(profile.Read_UsePreDefinedResolution());
    EXPECT_EQ(profile.Read_PreDefinedResolution(), 1);
    EXPECT_EQ(profile.Read_ResolutionWidth(), 640);
    EXPECT_EQ(profile.Read_ResolutionHeight(), 480);
    EXPECT_EQ(profile.Read_ScenarioPath(), "");
    EXPECT_EQ(profile.Read_GraphicPakPath(), "");
    EXPECT_EQ(profile.Read_TarvolinPath(), "");
    EXPECT_EQ(profile.Read_ProfileDescription(), "");
    EXPECT_EQ(profile.Read_Refresh(), 1);
    EXPECT_EQ(cIni_Profiles().Read_ActiveProfileName(), "PROFILE_DEFAULT");
    EXPECT_EQ(cIni_Options().Read_Language(), "EN");
    EXPECT_EQ(cIni_Options().Read_EditorPath(), "");
    EXPECT_TRUE(cIni_Options().Read_ShowStartTarvolinDialog());
    EXPECT_EQ(cIni_Application().Read_FileVersion(), "1");
    EXPECT_EQ(cIni_Application().Read_AppVersion(), "1");
    EXPECT_FALSE(std::filesystem::exists(g_cApp->IniPath()));
}

TEST_F(CompanionTest, ProfileKeysLandUnderTheirNames) {
    cIni_Profile profile = Profile("profile_Race");
    {
        iniFile::Update save = profile.BeginSave();
        profile.Write_LogMessages(false);
        profile.Write_Freeplay(true);
        profile.Write_UsePreDefinedResolution(false);
        profile.Write_PreDefinedResolution(3);
        profile.Write_ResolutionWidth(1280);
        profile.Write_ResolutionHeight(-1);
        profile.Write_ScenarioPath("scenarios\\demo");
        profile.Write_GraphicPakPath("pak128.pak");
        profile.Write_Refresh(0);
        profile.Write_TarvolinPath("/games/Tarvolin/tarvolin.exe");
        profile.Write_ProfileDescription("Grand Prix");
    }
    EXPECT_EQ(ReadIni(),
              "[profile_Race]\r\nLOGMESSAGES=0\r\nFREEPLAY=1\r\nUSESTANDARDRESOLUTION=0\r\nRESOLUTION=3\r\n"
              "RES_WIDTH=1280\r\nRES_HEIGHT=-1\r\nSCENARIO=scenarios\\demo\r\nGRAPICPAK=pak128.pak\r\n"
              "REFRESH=0\r\nTARVOPATH=/games/Tarvolin/tarvolin.exe\r\nDESCRIPTION=Grand Prix\r\n");
    EXPECT_FALSE(profile.Read_LogMessages());
    EXPECT_EQ(profile.Read_ResolutionHeight(), -1);
    EXPECT_EQ(profile.Read_GraphicPakPath(), "pak128.pak");
}

TEST_F(CompanionTest, OtherSectionsLandUnderTheirNames) {
    cIni_Options().Write_Language("DE");
    cIni_Options().Write_EditorPath("/usr/bin/gedit");
    cIni_Options().Write_ShowStartTarvolinDialog(false);
    cIni_Profiles().Write_ActiveProfileName("profile_Race");
    cIni_Application().Write_FileVersion("1.1");
    cIni_Application().Write_AppVersion("1.0.0");
    EXPECT_EQ(ReadIni(),
              "[OPTIONS]\r\nLANGUAGE=DE\r\nEDITORPATH=/usr/bin/gedit\r\nSTARTTARVOLINDIALOG=0\r\n"
              "[PROFILES]\r\nLASTACTIVEPROFILE=profile_Race\r\n"
              "[APPLICATION]\r\nFILEVERSION=1.1\r\nAPPVERSION=1.0.0\r\n");
}

struct BadInteger {
    const char* text;
    int32_t number;
};

class CompanionIntegerTest : public CompanionTest, public ::testing::WithParamInterface<BadInteger> {};

TEST_P(CompanionIntegerTest, BadIntegerFailsWithTheKeyOperationOnTheTrail) {
    WriteIni(std::string("[profile_X]\r\nRES_WIDTH=") + GetParam().text + "\r\n");
    std::optional<Failure> failure = FailureOf([&] { Profile("profile_X").Read_ResolutionWidth(); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Number(), GetParam().number);
    EXPECT_EQ(TrailOf(*failure).front(), "cIni_Profile.Read_ResolutionWidth");
}

INSTANTIATE_TEST_SUITE_P(Values, CompanionIntegerTest,
                         ::testing::Values(BadInteger{"wide", mError::kTypeMismatch},
                                           BadInteger{"12px", mError::kTypeMismatch},
                                           BadInteger{"40000", mError::kOverflow},
                                           BadInteger{"-32769", mError::kOverflow}));

TEST_F(CompanionTest, IntegersAsTheGameWritesThem) {
    WriteIni("[profile_X]\r\nRES_WIDTH= 800 \r\nRES_HEIGHT=-32768\r\nREFRESH=2.5\r\nRESOLUTION=007\r\n");
    cIni_Profile profile = Profile("profile_x");
    EXPECT_EQ(profile.Read_ResolutionWidth(), 800);
    EXPECT_EQ(profile.Read_ResolutionHeight(), -32768);
    EXPECT_EQ(profile.Read_Refresh(), 2);
    EXPECT_EQ(profile.Read_PreDefinedResolution(), 7);
}

TEST_F(CompanionTest, WithoutTheApplicationTheFileIsAbsent) {
    g_cApp.reset();
    std::optional<Failure> failure = FailureOf([] { cIni_Options().Read_Language(); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Description(), "Invalid value");
    EXPECT_EQ(TrailOf(*failure), (std::vector<std::string>{"cIni_Options.Read_Language",
                                                           "cIni_Options.ReadFromIni", "mIni.ReadFromIni"}));
}

TEST_F(CompanionTest, SaveAppSettingsWritesVersionsAndOptionsInOneUpdate) {
    WriteIni("; keep me\r\n");
    g_cApp->Options().SetLanguage("de");
    g_cApp->SaveAppSettings();
    std::string expected =
        "; keep me\r\n[APPLICATION]\r\nFILEVERSION=1.1\r\nAPPVERSION=" + std::to_string(Version::kMinor) +
        "." + std::to_string(Version::kMajor) + "." + std::to_string(Version::kRevision) +
        "\r\n[OPTIONS]\r\nEDITORPATH=\r\nLANGUAGE=DE\r\nSTARTTARVOLINDIALOG=1\r\n";
    EXPECT_EQ(ReadIni(), expected);
}

}  // namespace
