#include "profiles/Profiles.h"

#include <gtest/gtest.h>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "platform/FileLock.h"
#include "storage/IniStore.h"
#include "storage/iniFile.h"
#include "support/AppFixture.h"
#include "support/FailureMatchers.h"

namespace {

class ProfilesTest : public AppFixture {
protected:
    std::vector<std::string> Names() const {
        std::vector<std::string> names;
        for (const Profile& profile : profiles)
            names.push_back(profile.ProfileName());
        return names;
    }

    Profiles profiles;
};

TEST_F(ProfilesTest, WithoutSettingsFileThereIsExactlyTheStandardProfile) {
    profiles.LoadData();
    ASSERT_EQ(profiles.Count(), 1);
    Profile& standard = profiles.Item(1);
    EXPECT_EQ(standard.ProfileName(), "PROFILE_DEFAULT");
    EXPECT_EQ(standard.ProfileCaption(), "DEFAULT");
    EXPECT_EQ(standard.ProfileDescription(), "The standard settings for Tarvolin");
    EXPECT_TRUE(standard.DataChanged());
    EXPECT_TRUE(profiles.DataChanged());
    EXPECT_EQ(&profiles.Item("profile_default"), &standard);
}

TEST_F(ProfilesTest, ProfileSectionsAreFoundByTheirPrefixAlone) {
    WriteIni(
        "[APPLICATION]\r\nFILEVERSION=1.1\r\n[PROFILES]\r\nLASTACTIVEPROFILE=x\r\n"
        "   [Profile_Race]   \r\nREFRESH=3\r\n[profile_]\n[profile_\r\n[PROFILE_DEFAULT]\r"
        "[ profile_Spaced]\r\n[Profile_Größe]\r\n[OPTIONS]\r\n");
    profiles.LoadData();
    EXPECT_EQ(Names(), (std::vector<std::string>{"Profile_Race", "profile_", "profile", "PROFILE_DEFAULT",
                                                 "Profile_Größe"}));
    EXPECT_EQ(profiles.Item("PROFILE_RACE").Refresh(), 3);
    EXPECT_EQ(profiles.Item("profile_").ProfileCaption(), "");
    EXPECT_EQ(profiles.Item(2).Key, "profile_");
    EXPECT_FALSE(profiles.DataChanged());
}

TEST_F(ProfilesTest, SecondSectionDifferingOnlyInCaseEndsTheLoading) {
    WriteIni("[profile_A]\r\n[PROFILE_a]\r\n[profile_B]\r\n");
    const auto failure = FailureOf([&] { profiles.LoadData(); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Number(), mError::kDuplicateKey);
    EXPECT_EQ(TrailOf(*failure), (std::vector<std::string>{"Profiles.LoadData", "Profiles.Add"}));
    EXPECT_EQ(Names(), (std::vector<std::string>{"profile_A"}));
}

TEST_F(ProfilesTest, CollectionLooksUpByPositionAndByNameWithoutCase) {
    profiles.Add("k1", "profile_One").SetProfileName("profile_One");
    profiles.Add("k2", "").SetProfileName("profile_Keyless");
    profiles.Add("k3", "").SetProfileName("profile_Keyless2");
    profiles.Add("k4", "profile_Two").SetProfileName("profile_Two");
    EXPECT_EQ(profiles.Count(), 4);
    EXPECT_EQ(profiles.Item("PROFILE_two").Key, "k4");
    EXPECT_EQ(profiles.Item(2).Key, "k2");
    EXPECT_TRUE(profiles.DoesProfileExist("Profile_KEYLESS")) << "the name counts, not the key";
    EXPECT_EQ(FailureOf([&] { profiles.Add("again", "Profile_one"); })->Number(), mError::kDuplicateKey);
    EXPECT_EQ(FailureOf([&] { profiles.Item("profile_Keyless"); })->Number(), mError::kInvalidProcedureCall);
    EXPECT_EQ(FailureOf([&] { profiles.Item(5); })->Number(), mError::kSubscriptOutOfRange);
    EXPECT_EQ(FailureOf([&] { profiles.Item(0); })->Number(), mError::kSubscriptOutOfRange);
    profiles.Remove("profile_ONE");
    profiles.Remove(1);
    EXPECT_EQ(Names(), (std::vector<std::string>{"profile_Keyless2", "profile_Two"}));
    EXPECT_EQ(FailureOf([&] { profiles.Remove("profile_One"); })->Number(), mError::kInvalidProcedureCall);
}

TEST_F(ProfilesTest, SavesTheListedProfilesInOrderAndStopsAtAnUnknownOne) {
    for (const char* name : {"profile_A", "profile_B", "profile_C"})
        profiles.Add(name, name).SetProfileName(name);
    profiles.SaveData("");
    EXPECT_EQ(ReadIni(), "");
    profiles.SaveData("profile_B;profile_A");
    const std::string saved = ReadIni();
    EXPECT_LT(saved.find("[profile_B]"), saved.find("[profile_A]"));
    const auto failure = FailureOf([&] { profiles.SaveData("profile_C;profile_Gone;profile_A"); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(TrailOf(*failure), (std::vector<std::string>{"Profiles.SaveData", "Profiles.Item"}));
    EXPECT_NE(ReadIni().find("[profile_C]"), std::string::npos) << "names before the unknown one are saved";
}

TEST_F(ProfilesTest, RemembersTheActiveProfile) {
    EXPECT_EQ(profiles.ReadFromIni_ActiveProfileName(), "PROFILE_DEFAULT");
    EXPECT_EQ(FailureOf([&] { profiles.SaveWhichProfileIsActive(); })->Number(),
              mError::kObjectVariableNotSet);
    Profile& race = g_cApp->Profiles().Add("profile_Race", "profile_Race");
    race.SetProfileName("profile_Race");
    g_cApp->SetActiveProfile(&race);
    profiles.SaveWhichProfileIsActive();
    EXPECT_EQ(ReadIni(), "[PROFILES]\r\nLASTACTIVEPROFILE=profile_Race\r\n");
    EXPECT_EQ(profiles.ReadFromIni_ActiveProfileName(), "profile_Race");
}

// A new profile from the edit dialog becomes active; one whose name is taken in any case is refused.
TEST_F(ProfilesTest, NewProfileFromTheEditDialogBecomesActiveUnlessItsNameIsTaken) {
    Profiles& all = g_cApp->Profiles();
    all.CreateStandardProfile();
    EXPECT_EQ(all.ShowAddNewDialog(), nullptr) << "cancelled";
    std::string name = "profile_Race";
    ui.editProfile = [&name](int32_t mode, Profile& profile) {
        EXPECT_EQ(mode, 1);
        profile.SetProfileName(name);
        return true;
    };
    Profile* added = all.ShowAddNewDialog();
    ASSERT_NE(added, nullptr);
    EXPECT_EQ(g_cApp->ActiveProfile(), added);
    EXPECT_EQ(added->Key, "profile_Race");
    EXPECT_TRUE(added->IsNewProfile() && added->DataChanged());
    name = "PROFILE_race";
    EXPECT_EQ(all.ShowAddNewDialog(), nullptr);
    EXPECT_EQ(all.Count(), 2);
    EXPECT_EQ(g_cApp->ActiveProfile(), added);
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].prompt,
              "A profile named \"race\" already exists.\r\nPlease choose a different name.");
    EXPECT_EQ(ui.messages[0].style, vbOKOnly);
}

// Every caption the edit window lets through comes back from the settings file as the same profile; the
// window refuses the others.
TEST_F(ProfilesTest, StorableCaptionsComeBackUnchanged) {
    const std::string longest(246, 'x');
    for (const std::string& caption : {std::string("Race"), std::string("Größe (2) [x"), longest}) {
        EXPECT_TRUE(Profile::IsStorableCaption(caption)) << caption;
        Profile saved;
        saved.SetProfileName(Profile::kNamePrefix + caption);
        saved.SetProfileDescription("d " + caption);
        saved.SaveData();
    }
    profiles.LoadData();
    for (const std::string& caption : {std::string("Race"), std::string("Größe (2) [x"), longest})
        EXPECT_EQ(profiles.Item(Profile::kNamePrefix + caption).ProfileDescription(), "d " + caption);
    for (const char* refused : {"", " Race", "Race ", "a]b", "a;b", "a=b", "a\r\nb", "a\tb", "a\x7F"})
        EXPECT_FALSE(Profile::IsStorableCaption(refused)) << refused;
    EXPECT_FALSE(Profile::IsStorableCaption(longest + "x"));
}

// Another copy hangs holding the settings file's lock: nothing is written, and the profiles stay changed,
// so the user is asked again before the program ends.
TEST_F(ProfilesTest, ASaveThatDoesNotReachTheFileKeepsTheProfilesChanged) {
    WriteIni("[profile_A]\r\nREFRESH=1\r\n");
    profiles.LoadData();
    profiles.Item("profile_A").SetRefresh(2);
    iniFile::Store().SetLockPatience(std::chrono::milliseconds(50));
    {
        const auto frozen = platform::FileLock::Acquire(g_cApp->IniPath(), std::chrono::milliseconds(0));
        ASSERT_TRUE(frozen);
        profiles.SaveData("profile_A");
        EXPECT_TRUE(profiles.Item("profile_A").DataChanged());
        profiles.Item("profile_A").SaveData();
        EXPECT_TRUE(profiles.Item("profile_A").DataChanged());
    }
    iniFile::Store().SetLockPatience(IniStore::kDefaultLockPatience);
    EXPECT_EQ(ReadIni(), "[profile_A]\r\nREFRESH=1\r\n");
    profiles.SaveData("profile_A");
    EXPECT_FALSE(profiles.Item("profile_A").DataChanged());
}

}  // namespace
