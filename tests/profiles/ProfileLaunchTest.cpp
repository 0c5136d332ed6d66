#include <gtest/gtest.h>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "profiles/Profile.h"
#include "support/AppFixture.h"
#include "support/Portable.h"
#include "translate/cTranslate.h"

namespace {

class ProfileLaunchTest : public AppFixture {
protected:
    ProfileLaunchTest() {
        profile.SetTarvolinPath(Native("/games/Tar volin/tarvolin.exe"));
        profile.SetRefresh(0);
    }

    Profile profile;
};

TEST_F(ProfileLaunchTest, StartsAtOnceWhenTheConfirmationIsOff) {
    g_cApp->Options().SetShowStartTarvolinDialog(false);
    profile.StartTarvolin(77);
    ASSERT_EQ(platform.calls.size(), 1u);
    EXPECT_EQ(platform.calls[0], (ShellCall{77, "open", Native("/games/Tar volin/tarvolin.exe"),
                                            "-log -res 2", Native("/games/Tar volin/"), 1}));
    EXPECT_TRUE(ui.startDialogs.empty());
    EXPECT_TRUE(ui.messages.empty());
}

TEST_F(ProfileLaunchTest, ConfirmationShowsTheCommandLineAndCanStopTheStart) {
    ui.startAnswers = {false, true};
    profile.StartTarvolin(0);
    EXPECT_TRUE(platform.calls.empty());
    EXPECT_TRUE(g_cApp->Options().ShowStartTarvolinDialog());
    profile.StartTarvolin(0);
    EXPECT_EQ(platform.calls.size(), 1u);
    EXPECT_EQ(ui.startDialogs, (std::vector<std::string>{"-log -res 2", "-log -res 2"}));
}

TEST_F(ProfileLaunchTest, PathWithoutSeparatorStartsWithoutWorkingDirectory) {
    g_cApp->Options().SetShowStartTarvolinDialog(false);
    profile.SetTarvolinPath("tarvolin.exe");
    profile.StartTarvolin(0);
    ASSERT_EQ(platform.calls.size(), 1u);
    EXPECT_EQ(platform.calls[0].directory, "");
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
