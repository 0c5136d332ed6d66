// Where things are on a freedesktop system: the special folders, with every variable they depend on chosen
// by the test, the program's own folders, and the text editor it proposes.
#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <tuple>

#include "platform/ScopedEnvironment.h"
#include "platform/posix/PosixPlatform.h"
#include "platform/posix/ShellTarget.h"
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
// folder beside share/pavonel is installed, even where it may write, and takes its texts from there.
TEST(SpecialFolderTest, AnInstalledProgramHasItsSettingsAndDataInTheirOwnFolders) {
    struct At : PosixPlatform {
        std::string folder;
        std::string ProgramDirectory() override { return folder; }
    } installed;
    const TempDir dir;
    installed.folder = dir.File("usr/bin");
    const std::string config = dir.File("config/Pavonel"), share = dir.File("usr/share/pavonel");
    ScopedEnvironment environment;
    environment.Set("XDG_CONFIG_HOME", dir.File("config"));
    auto folders = [&] { return installed.SettingsDirectory() + " " + installed.DataDirectory(); };
    fs::create_directories(installed.folder);
    EXPECT_EQ(folders(), installed.folder + " " + installed.folder);
    fs::create_directories(share);
    EXPECT_EQ(folders(), config + " " + share);
    fs::remove_all(dir.Path() / "usr" / "share");
    fs::permissions(installed.folder,
                    fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    EXPECT_EQ(folders(), config + " " + installed.folder);
}

TEST(ProgramDirectoryTest, IsTheFolderOfTheRunningExecutable) {
    EXPECT_EQ(PosixPlatform().ProgramDirectory(),
              fs::canonical(program_invocation_name).parent_path().string());
}

// The options window proposes this editor for the log file: an installed desktop editor, in the order of
// the list, else the desktop's own handler.
TEST(TextEditorTest, TheFirstInstalledEditorIsProposed) {
    TempDir bin;
    EXPECT_EQ(platform::InstalledTextEditor(bin.Path().string()), "xdg-open");
    for (const char* name : {"mousepad", "kate", "gedit"}) {
        bin.Write(name, "#!/bin/sh\n");
        if (name != std::string("gedit"))
            fs::permissions(bin.Path() / name, fs::perms::owner_exec, fs::perm_options::add);
    }
    EXPECT_EQ(platform::InstalledTextEditor(bin.Path().string()), "kate");
}

}  // namespace
