// The special folders on a freedesktop system, with every variable they depend on chosen by the test.
#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/ScopedEnvironment.h"
#include "platform/posix/PosixPlatform.h"
#include "support/TempDir.h"

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kTemp = "{tmp}";

// In variables, file content and expectations, "{tmp}" stands for the test's folder.
std::string Expand(std::string text, const std::string& temp) {
    for (size_t at = text.find(kTemp); at != std::string::npos; at = text.find(kTemp, at + temp.size()))
        text.replace(at, kTemp.size(), temp);
    return text;
}

struct FolderCase {
    std::string name;
    int32_t csidl;
    // Changes to the starting point HOME={tmp}/home with XDG_DATA_HOME and XDG_CONFIG_HOME unset; nothing
    // for a value unsets the variable.
    std::vector<std::pair<std::string, std::optional<std::string>>> variables;
    std::string userDirs;  // written to user-dirs.dirs in `configFolder` when not empty
    std::string expected;
    std::string configFolder = "home/.config";  // inside the test's folder
    friend void PrintTo(const FolderCase& c, std::ostream* out) { *out << c.name; }
};

class SpecialFolderTest : public ::testing::TestWithParam<FolderCase> {
protected:
    void SetUp() override {
        m_environment.Set("HOME", Temp() + "/home");
        m_environment.Unset("XDG_DATA_HOME");
        m_environment.Unset("XDG_CONFIG_HOME");
        for (const auto& [name, value] : GetParam().variables) {
            if (value)
                m_environment.Set(name, Expand(*value, Temp()));
            else
                m_environment.Unset(name);
        }
        if (!GetParam().userDirs.empty()) {
            fs::create_directories(m_dir.Path() / GetParam().configFolder);
            m_dir.Write(GetParam().configFolder + "/user-dirs.dirs", Expand(GetParam().userDirs, Temp()));
        }
    }

    std::string Temp() const { return m_dir.Path().string(); }

    TempDir m_dir;
    ScopedEnvironment m_environment;
    PosixPlatform m_platform;
};

TEST_P(SpecialFolderTest, FollowsTheUsersFreedesktopFolders) {
    EXPECT_EQ(m_platform.SpecialFolder(GetParam().csidl), Expand(GetParam().expected, Temp()));
}

template <class Case>
std::string CaseName(const ::testing::TestParamInfo<Case>& info) {
    return info.param.name;
}

const std::string kDesktopLine = "# written by xdg-user-dirs-update\nXDG_DESKTOP_DIR=";

INSTANTIATE_TEST_SUITE_P(
    DataFolders, SpecialFolderTest,
    ::testing::Values(
        FolderCase{
            "AppDataFromVariable", kCsidlAppData, {{"XDG_DATA_HOME", "{tmp}/data/"}}, "", "{tmp}/data"},
        FolderCase{"AppDataDefault", kCsidlAppData, {}, "", "{tmp}/home/.local/share"},
        FolderCase{"AppDataRelativeIgnored",
                   kCsidlAppData,
                   {{"XDG_DATA_HOME", "data"}},
                   "",
                   "{tmp}/home/.local/share"},
        FolderCase{
            "AppDataEmptyIgnored", kCsidlAppData, {{"XDG_DATA_HOME", ""}}, "", "{tmp}/home/.local/share"},
        FolderCase{"StartMenuFromVariable",
                   kCsidlStartMenu,
                   {{"XDG_DATA_HOME", "{tmp}/data"}},
                   "",
                   "{tmp}/data/applications"},
        FolderCase{"StartMenuDefault", kCsidlStartMenu, {}, "", "{tmp}/home/.local/share/applications"},
        FolderCase{"Drives", kCsidlDrives, {}, "", "/"}, FolderCase{"UnknownFolder", 5, {}, "", ""},
        FolderCase{"NegativeFolder", -1, {}, "", ""}),
    CaseName<FolderCase>);

INSTANTIATE_TEST_SUITE_P(
    Desktop, SpecialFolderTest,
    ::testing::Values(
        FolderCase{"WithoutUserDirs", kCsidlDesktop, {}, "", "{tmp}/home/Desktop"},
        FolderCase{"UnderHome",
                   kCsidlDesktop,
                   {},
                   kDesktopLine + "\"$HOME/Schreibtisch\"\n",
                   "{tmp}/home/Schreibtisch"},
        FolderCase{
            "HomeInBraces", kCsidlDesktop, {}, kDesktopLine + "\"${HOME}/Bureau\"\n", "{tmp}/home/Bureau"},
        FolderCase{"Absolute", kCsidlDesktop, {}, kDesktopLine + "\"{tmp}/elsewhere/\"\n", "{tmp}/elsewhere"},
        FolderCase{"EscapedQuote",
                   kCsidlDesktop,
                   {},
                   kDesktopLine + "\"$HOME/My \\\"Desk\\\"\"\n",
                   "{tmp}/home/My \"Desk\""},
        FolderCase{"HomeItself", kCsidlDesktop, {}, kDesktopLine + "\"$HOME/\"\n", "{tmp}/home"},
        FolderCase{"LastAssignmentWins",
                   kCsidlDesktop,
                   {},
                   kDesktopLine + "\"$HOME/first\"\n  XDG_DESKTOP_DIR=\"$HOME/second\"\r\n",
                   "{tmp}/home/second"},
        FolderCase{
            "CommentedOut", kCsidlDesktop, {}, "#XDG_DESKTOP_DIR=\"$HOME/old\"\n", "{tmp}/home/Desktop"},
        FolderCase{
            "RelativeValueIgnored", kCsidlDesktop, {}, kDesktopLine + "\"Desktop2\"\n", "{tmp}/home/Desktop"},
        FolderCase{"OtherVariableNotExpanded",
                   kCsidlDesktop,
                   {},
                   kDesktopLine + "\"$HOMEDIR/x\"\n",
                   "{tmp}/home/Desktop"},
        FolderCase{"OtherFoldersOnly",
                   kCsidlDesktop,
                   {},
                   "XDG_DOWNLOAD_DIR=\"$HOME/Downloads\"\n",
                   "{tmp}/home/Desktop"},
        FolderCase{"ConfigHomeFromVariable",
                   kCsidlDesktop,
                   {{"XDG_CONFIG_HOME", "{tmp}/settings/"}, {"HOME", "{tmp}/home/"}},
                   kDesktopLine + "\"$HOME/Arbeitsfläche\"\n",
                   "{tmp}/home/Arbeitsfläche",
                   "settings"},
        FolderCase{"RelativeConfigHomeIgnored",
                   kCsidlDesktop,
                   {{"XDG_CONFIG_HOME", "elsewhere"}},
                   kDesktopLine + "\"$HOME/Pulpit\"\n",
                   "{tmp}/home/Pulpit"}),
    CaseName<FolderCase>);

// Without a usable HOME the account's home folder stands in for it.
class SpecialFolderWithoutHomeTest : public ::testing::TestWithParam<std::optional<std::string>> {};

TEST_P(SpecialFolderWithoutHomeTest, UsesTheAccountsHomeFolder) {
    ScopedEnvironment environment;
    environment.Unset("XDG_DATA_HOME");
    GetParam() ? environment.Set("HOME", *GetParam()) : environment.Unset("HOME");
    const passwd* account = getpwuid(getuid());
    ASSERT_NE(account, nullptr);

    EXPECT_EQ(PosixPlatform().SpecialFolder(kCsidlAppData), std::string(account->pw_dir) + "/.local/share");
}

INSTANTIATE_TEST_SUITE_P(Home, SpecialFolderWithoutHomeTest,
                         ::testing::Values(std::nullopt, std::optional<std::string>(""),
                                           std::optional<std::string>("relative/home")));

}  // namespace
