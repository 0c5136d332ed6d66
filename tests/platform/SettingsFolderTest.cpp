#include "platform/SettingsFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/NativePath.h"

namespace {

TEST(SettingsFolderTest, OnlyAWritableCopyThatIsNotInstalledKeepsItsSettingsBesideItself) {
    const std::filesystem::path root = std::filesystem::temp_directory_path();
    const std::string program = platform::TextOf(root / "program"), user = platform::TextOf(root / "user");
    const std::string userSettings = platform::TextOf(root / "user" / "Pavonel");
    struct Case {
        bool installed, writable;
        std::string user, expected;
    };
    for (const Case& c : {Case{false, true, user, program}, Case{false, false, user, userSettings},
                          Case{true, true, user, userSettings}, Case{true, false, "", program}}) {
        int asked = 0;
        const auto writable = [&] { return ++asked, c.writable; };
        EXPECT_EQ(platform::ChooseSettingsFolder(program, c.user, c.installed, writable), c.expected)
            << c.installed << c.writable << c.user;
        // Windows finds out whether the folder may be written by writing there; an installed copy never does.
        EXPECT_EQ(asked, c.installed || c.user.empty() ? 0 : 1);
    }
}

}  // namespace
