// The special folders on a freedesktop system, with every variable they depend on chosen by the test.
#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <tuple>

#include "platform/ScopedEnvironment.h"
#include "platform/posix/PosixPlatform.h"
#include "support/TempDir.h"

namespace fs = std::filesystem;

namespace {

using Variable = std::optional<std::string>;

// In variables, file content and expectations, "{tmp}" stands for the test's folder.
Variable Expand(Variable text, const std::string& temp) {
    constexpr std::string_view kTemp = "{tmp}";
    for (size_t at = text ? text->find(kTemp) : std::string::npos; at != std::string::npos;
         at = text->find(kTemp, at + temp.size()))
        text->replace(at, kTemp.size(), temp);
    return text;
}

const std::string kDesktop = "# written by xdg-user-dirs-update\nXDG_DESKTOP_DIR=";

// The folder, XDG_DATA_HOME, XDG_CONFIG_HOME, the content of user-dirs.dirs and the path, with HOME at
// {tmp}/home/. user-dirs.dirs is written to XDG_CONFIG_HOME when that is absolute, else to ~/.config.
const std::tuple<int32_t, Variable, Variable, std::string, std::string> kCases[] = {
    {kCsidlAppData, "{tmp}/data/", {}, "", "{tmp}/data"},
    {kCsidlAppData, {}, {}, "", "{tmp}/home/.local/share"},
    {kCsidlAppData, "data", {}, "", "{tmp}/home/.local/share"},
    {kCsidlAppData, "", {}, "", "{tmp}/home/.local/share"},
    {kCsidlStartMenu, "{tmp}/data", {}, "", "{tmp}/data/applications"},
    {kCsidlStartMenu, {}, {}, "", "{tmp}/home/.local/share/applications"},
    {kCsidlDrives, {}, {}, "", "/"},
    {5, {}, {}, "", ""},
    {kCsidlDesktop, {}, {}, "", "{tmp}/home/Desktop"},
    {kCsidlDesktop, {}, {}, kDesktop + "\"$HOME/Schreibtisch\"\n", "{tmp}/home/Schreibtisch"},
    {kCsidlDesktop, {}, {}, kDesktop + "\"${HOME}/Bureau\"\n", "{tmp}/home/Bureau"},
    {kCsidlDesktop, {}, {}, kDesktop + "\"{tmp}/elsewhere/\"\n", "{tmp}/elsewhere"},
    {kCsidlDesktop, {}, {}, kDesktop + "\"$HOME/My \\\"Desk\\\"\"\n", "{tmp}/home/My \"Desk\""},
    {kCsidlDesktop, {}, {}, kDesktop + "\"$HOME/\"\n", "{tmp}/home"},
    {kCsidlDesktop, {}, {}, kDesktop + "\"$HOME/1\"\n  XDG_DESKTOP_DIR=\"$HOME/2\"\r\n", "{tmp}/home/2"},
    {kCsidlDesktop, {}, {}, "#XDG_DESKTOP_DIR=\"$HOME/old\"\n", "{tmp}/home/Desktop"},
    {kCsidlDesktop, {}, {}, kDesktop + "\"Desktop2\"\n", "{tmp}/home/Desktop"},
    {kCsidlDesktop, {}, {}, kDesktop + "\"$HOMEDIR/x\"\n", "{tmp}/home/Desktop"},
    {kCsidlDesktop, {}, {}, "XDG_DOWNLOAD_DIR=\"$HOME/Downloads\"\n", "{tmp}/home/Desktop"},
    {kCsidlDesktop, {}, "{tmp}/settings/", kDesktop + "\"$HOME/Büro\"\n", "{tmp}/home/Büro"},
    {kCsidlDesktop, {}, "settings", kDesktop + "\"$HOME/Pulpit\"\n", "{tmp}/home/Pulpit"},
};

TEST(SpecialFolderTest, FollowsTheUsersFreedesktopFolders) {
    for (const auto& [csidl, dataHome, configHome, userDirs, expected] : kCases) {
        SCOPED_TRACE(expected + " from " + userDirs);
        const TempDir dir;
        const std::string temp = dir.Path().string();
        ScopedEnvironment environment;
        environment.Set("HOME", temp + "/home/");
        environment.Set("XDG_DATA_HOME", Expand(dataHome, temp));
        environment.Set("XDG_CONFIG_HOME", Expand(configHome, temp));
        if (!userDirs.empty()) {
            const fs::path config = configHome && configHome->starts_with("{tmp}/")
                                        ? fs::path(*Expand(configHome, temp))
                                        : dir.Path() / "home/.config";
            fs::create_directories(config);
            std::ofstream(config / "user-dirs.dirs") << *Expand(userDirs, temp);
        }
        EXPECT_EQ(PosixPlatform().SpecialFolder(csidl), *Expand(expected, temp));
    }
}

TEST(SpecialFolderTest, WithoutAUsableHomeTheAccountsHomeFolderIsUsed) {
    const passwd* account = getpwuid(getuid());
    ASSERT_NE(account, nullptr);
    for (const Variable& home : {Variable(), Variable(""), Variable("relative/home")}) {
        ScopedEnvironment environment;
        environment.Set("XDG_DATA_HOME", std::nullopt);
        environment.Set("HOME", home);
        EXPECT_EQ(PosixPlatform().SpecialFolder(kCsidlAppData),
                  std::string(account->pw_dir) + "/.local/share")
            << home.value_or("unset");
    }
}

// A program folder nobody may write keeps the settings in the user's config folder; a program in a "bin"
// folder beside share/pavonel takes its texts from there.
TEST(SpecialFolderTest, AnInstalledProgramHasItsSettingsAndDataInTheirOwnFolders) {
    class At : public PosixPlatform {
    public:
        explicit At(std::string folder) : m_folder(std::move(folder)) {}
        std::string ProgramDirectory() override { return m_folder; }

    private:
        std::string m_folder;
    };
    const TempDir dir;
    ScopedEnvironment environment;
    environment.Set("XDG_CONFIG_HOME", dir.File("config"));
    fs::create_directories(dir.Path() / "usr" / "bin");
    At installed(dir.File("usr/bin"));
    EXPECT_EQ(installed.SettingsDirectory(), dir.File("usr/bin"));
    EXPECT_EQ(installed.DataDirectory(), dir.File("usr/bin"));
    fs::create_directories(dir.Path() / "usr" / "share" / "pavonel");
    EXPECT_EQ(installed.SettingsDirectory(),
              dir.File("config/Pavonel"));  // installed, even where it may write
    fs::remove_all(dir.Path() / "usr" / "share");
    fs::permissions(dir.Path() / "usr" / "bin",
                    fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    EXPECT_EQ(installed.SettingsDirectory(), dir.File("config/Pavonel"));  // a copy nobody may write beside
    fs::create_directories(dir.Path() / "usr" / "share" / "pavonel");
    EXPECT_EQ(installed.DataDirectory(), dir.File("usr/share/pavonel"));
    fs::permissions(dir.Path() / "usr" / "bin", fs::perms::owner_write, fs::perm_options::add);
}

}  // namespace
