#include <gtest/gtest.h>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "support/AppFixture.h"

namespace {

class ApplicationLoadTest : public AppFixture {};

TEST_F(ApplicationLoadTest, RemembersTheLastActiveProfile) {
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

TEST_F(ApplicationLoadTest, LetsTheUserChooseWhenTheRememberedProfileIsGone) {
    WriteIni("[PROFILES]\r\nLASTACTIVEPROFILE=profile_Gone\r\n[profile_A]\r\n[profile_B]\r\n");
    ui.loadProfile = [] { return &g_cApp->Profiles().Item("profile_B"); };
    ASSERT_TRUE(g_cApp->LoadData());
    EXPECT_EQ(ui.loadProfileDialogs, 1);
    EXPECT_EQ(g_cApp->ActiveProfile()->ProfileName(), "profile_B");
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(ApplicationLoadTest, WithoutAChosenProfileTheProgramCannotGoOn) {
    WriteIni("[profile_A]\r\n");
    EXPECT_FALSE(g_cApp->LoadData());
    EXPECT_EQ(g_cApp->ActiveProfile(), nullptr);
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].prompt, "You have to load a profile, if you want to use this application.");
    EXPECT_EQ(ui.messages[0].style, vbOKOnly);
}

TEST_F(ApplicationLoadTest, FirstStartMakesTheStandardProfileActive) {
    ASSERT_TRUE(g_cApp->LoadData());
    EXPECT_EQ(g_cApp->ActiveProfile()->ProfileName(), "PROFILE_DEFAULT");
    EXPECT_TRUE(g_cApp->Profiles().DataChanged());
}

TEST_F(ApplicationLoadTest, OnlyADifferentProfileCountsAsAChangeOfTheActiveOne) {
    Profile& a = g_cApp->Profiles().Add("profile_A", "profile_A");
    g_cApp->SetActiveProfile(nullptr);
    EXPECT_FALSE(g_cApp->DataChanged()) << "the same (no) profile again";
    g_cApp->SetActiveProfile(&a);
    EXPECT_TRUE(g_cApp->DataChanged());
    EXPECT_FALSE(g_cApp->Profiles().DataChanged());
}

TEST_F(ApplicationLoadTest, SavingGoesThroughTheSaveDialog) {
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

}  // namespace
