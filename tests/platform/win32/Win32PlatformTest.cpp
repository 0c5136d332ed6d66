// The Windows platform files against the real Windows functions, as Wine or Windows provides them: a
// stand-in game started by ShellExecuteA, a mutex that another process finds, the prefix's folders, and
// shell links written and read back through the shell's own link object, one opened as a double click does.
#include "platform/win32/Win32Platform.h"

#include <gtest/gtest.h>
#include <windows.h>
// The shell's headers need the definitions of windows.h first.
#include <commctrl.h>
#include <shellapi.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <ostream>
#include <string>
#include <system_error>
#include <tuple>
#include <vector>

#include "app/mPath.h"
#include "fileinfo/CFileInfo.h"
#include "platform/FileSystem.h"
#include "platform/NativePath.h"
#include "storage/iniFile.h"
#include "support/StandInGame.h"
#include "support/TempDir.h"
#include "support/TrialProcess.h"

void PrintTo(const ShellLink& link, std::ostream* out) {
    *out << "{" << link.target << " | " << link.arguments << " | " << link.workingDirectory << " | "
         << link.description << " | " << link.iconPath << "," << link.iconIndex << " | " << link.showCommand
         << " | " << link.hotkey << "}";
}

namespace {

namespace fs = std::filesystem;

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

TEST(Win32PlatformTest, ShellExecuteStartsTheGameWithItsParametersInItsFolder) {
    const TempDir dir;
    const std::filesystem::path folder =
        dir.Path() / platform::PathOf("Spiele mit Leerzeichen") / platform::PathOf("Größe ü");
    const StandInGame game(folder);
    const std::string directory = platform::TextOf(folder);
    EXPECT_GT(Win32Platform().ShellExec(0, "open", game.Path(),
                                        "-scenario \"Meine Karte 1.sve\" a\\\"b \"\" -res 2", directory,
                                        kSwShowNormal),
              kShellExecSuccessAbove);
    const std::optional<LaunchRecord> record = game.WaitForRecord(std::chrono::seconds(30));
    ASSERT_TRUE(record);
    EXPECT_EQ(record->directory, directory);
    EXPECT_EQ(record->arguments,
              (std::vector<std::string>{"-scenario", "Meine Karte 1.sve", "a\"b", "", "-res", "2"}));
}

TEST(Win32PlatformTest, ShellExecuteReportsWhatCannotBeStarted) {
    const TempDir dir;
    const std::string garbage = dir.Write("tarvolin.exe", "neither a program nor anything else");
    const std::string folder = platform::TextOf(dir.Path());
    EXPECT_EQ(Win32Platform().ShellExec(0, "open", dir.File("missing.exe"), "", folder, kSwShowNormal),
              kSeErrFileNotFound);
    EXPECT_EQ(Win32Platform().ShellExec(0, "open", garbage, "", folder, kSwShowNormal), kSeErrBadFormat);
}

TEST(Win32PlatformTest, TheMutexIsSeenByAnotherProcessWhileThisOneRuns) {
    const std::string name =
        "Pavonel_MTX-test-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(GetTickCount64());
    EXPECT_EQ(TrialProcess(PAVONEL_MUTEX_PROBE, {name}).Wait(), 1);
    ASSERT_TRUE(Win32Platform().CreateNamedMutex(name));
    EXPECT_EQ(TrialProcess(PAVONEL_MUTEX_PROBE, {name}).Wait(), 0);
    // A second copy of the launcher creates the same marker without complaint.
    EXPECT_TRUE(Win32Platform().CreateNamedMutex(name));
}

TEST(Win32PlatformTest, SpecialFoldersAreTheUsersFoldersOfThisWindows) {
    Win32Platform platform;
    const std::string profile = Environment("USERPROFILE");
    const std::string appData = Environment("APPDATA");
    ASSERT_FALSE(profile.empty());
    ASSERT_FALSE(appData.empty());
    EXPECT_EQ(platform.SpecialFolder(kCsidlDesktop), profile + "\\Desktop");
    EXPECT_EQ(platform.SpecialFolder(kCsidlAppData), appData);
    EXPECT_EQ(platform.SpecialFolder(kCsidlStartMenu), appData + "\\Microsoft\\Windows\\Start Menu");
    // The drive list is a folder of the shell's own, with no path on disk; an unknown number is no folder.
    EXPECT_EQ(platform.SpecialFolder(kCsidlDrives), "");
    EXPECT_EQ(platform.SpecialFolder(0x7777), "");
}

// The file information shows the attribute bits Windows keeps, and a settings file marked read-only stays
// as it is.
TEST(Win32PlatformTest, FileAttributesAreTheWindowsOnes) {
    const TempDir dir;
    const std::string file = dir.Write("Pavonel.ini", "[S]\r\nk=old\r\n");
    const std::string folder = dir.File("Ordner");
    ASSERT_TRUE(CreateDirectoryA(folder.c_str(), nullptr));
    ASSERT_TRUE(SetFileAttributesA(file.c_str(), FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN));
    ASSERT_TRUE(SetFileAttributesA(folder.c_str(), FILE_ATTRIBUTE_HIDDEN));
    CFileInfo info;
    info.SetFullPathName(file);
    EXPECT_EQ(info.AttributesText(), "Read-only, Hidden");
    EXPECT_EQ(info.Size(), 12u);
    info.SetFullPathName(folder);
    EXPECT_EQ(info.AttributesText(), "Directory, Hidden");
    EXPECT_EQ(iniFile::Write(file, "S", "k", "new"), platform::WriteFault::ReadOnlyFile);
    EXPECT_EQ(dir.Read("Pavonel.ini"), "[S]\r\nk=old\r\n");
    SetFileAttributesA(file.c_str(), FILE_ATTRIBUTE_NORMAL);
}

// A copy unpacked anywhere keeps its settings beside itself; the installer's uninstaller beside the program
// marks an installed one, whose settings go to the user's application data.
TEST(Win32PlatformTest, AnInstalledProgramKeepsItsSettingsInTheUsersApplicationData) {
    struct At : Win32Platform {
        std::string folder;
        std::string ProgramDirectory() override { return folder; }
    } copy;
    const TempDir dir;
    copy.folder = platform::TextOf(dir.Path());
    EXPECT_EQ(copy.SettingsDirectory(), copy.folder);
    EXPECT_TRUE(fs::is_empty(dir.Path()));
    dir.Write(platform::kUninstallerName, "");
    EXPECT_EQ(copy.SettingsDirectory(), Environment("APPDATA") + "\\Pavonel");
    EXPECT_EQ(copy.DataDirectory(), copy.folder);
}

TEST(Win32PlatformTest, ProgramAndWindowsDirectoriesAreWhereWindowsSays) {
    Win32Platform platform;
    const std::string program = platform.ProgramDirectory();
    EXPECT_NE(program.back(), '\\');
    EXPECT_TRUE(mPath::FileExists(program + "\\pavonel_core_tests.exe")) << program;
    const std::string windows = platform.WindowsDirectory();
    EXPECT_EQ(windows, Environment("SystemRoot"));
    EXPECT_TRUE(mPath::FileExists(windows + "\\notepad.exe")) << windows;
}

constexpr int32_t kNewFolder = -1;  // a folder of the test's own that does not exist yet

// A link as the shortcut wizard writes it: started in the target's folder, shown as it was last.
ShellLink LinkTo(const std::string& target, const std::string& arguments) {
    return {target, arguments, platform::FolderOf(target) + "\\", "ShellLink Sample", "", 0, 5, 0};
}

// The show command in the link file's header (bytes 60 to 63). Wine's loader does not read it back (its
// GetShowCmd answers SW_SHOWNORMAL after every load), so the tests look for it in the file.
int32_t StoredShowCommand(const std::string& file) {
    std::ifstream in(platform::PathOf(file), std::ios::binary);
    int32_t show = -1;
    in.seekg(60).read(reinterpret_cast<char*>(&show), sizeof show);
    return show;
}

TEST(ShellLinkTest, ReplacesTheOldLinkAndReadsBackEveryField) {
    // The folder (kCsidl... or kNewFolder), the target and the arguments.
    const std::tuple<int32_t, const char*, const char*> cases[] = {
        {kCsidlDesktop, "tarvolin.exe", "-log -res 2"},
        {kCsidlStartMenu, "Spiele mit Leerzeichen/Größe/tarvolin.exe", ""},
        {kNewFolder, "Größe/tarvolin.exe", "-scenario \"Meine Karte.sve\" -x Größe \"\""}};
    for (const auto& [csidl, target, arguments] : cases) {
        SCOPED_TRACE(target);
        const TempDir dir;
        Win32Platform platform;
        const std::string folder =
            csidl == kNewFolder ? dir.File("neu/Verknüpfungen") : platform.SpecialFolder(csidl);
        fs::create_directories(platform::PathOf(folder));
        const std::string file = folder + "\\Pavonel-Test-" + std::to_string(GetCurrentProcessId()) + ".lnk";
        // The target exists, as the wizard's does, so that Resolve finds it where the link says.
        ShellLink link = LinkTo(dir.Write(target, "MZ"), arguments);
        const bool old = platform.WriteShellLink(file, LinkTo(link.target, "-alt"));
        link.iconPath = link.target;
        link.iconIndex = 2;
        link.hotkey = MAKEWORD('T', HOTKEYF_CONTROL | HOTKEYF_ALT);
        const bool written = platform.WriteShellLink(file, link);
        std::optional<ShellLink> read = platform.ReadShellLink(file);
        const int32_t show = StoredShowCommand(file);
        // Wine's menu builder may still be reading a new start-menu link for a moment.
        std::error_code error;
        for (int tries = 0; tries < 100 && (fs::remove(platform::PathOf(file), error), error); ++tries)
            Sleep(20);
        EXPECT_TRUE(old && written);
        EXPECT_EQ(show, 5);
        if (read)
            read->showCommand = show;
        EXPECT_EQ(read, link);
    }
}

TEST(ShellLinkTest, MakesNoFolderAndReadsNothingFromAnotherFile) {
    const TempDir dir;
    Win32Platform platform;
    EXPECT_FALSE(
        platform.WriteShellLink(dir.File("fehlt/a.lnk"), LinkTo(dir.Write("tarvolin.exe", "MZ"), "")));
    EXPECT_FALSE(fs::exists(platform::PathOf(dir.File("fehlt"))));
    EXPECT_EQ(platform.ReadShellLink(dir.Write("kein.lnk", "[InternetShortcut]\r\n")), std::nullopt);
}

TEST(ShellLinkTest, OpeningTheLinkStartsTheGameWithItsArgumentsInItsFolder) {
    const TempDir dir;
    const StandInGame game(platform::PathOf(dir.File("Spiele/Größe ü")));
    const std::string file = dir.File("Tarvolin starten.lnk");
    ASSERT_TRUE(
        Win32Platform().WriteShellLink(file, LinkTo(game.Path(), "-scenario \"Meine Karte.sve\" -res 2")));
    EXPECT_GT(reinterpret_cast<INT_PTR>(
                  ShellExecuteA(nullptr, "open", file.c_str(), nullptr, nullptr, SW_SHOWNORMAL)),
              kShellExecSuccessAbove);
    const std::optional<LaunchRecord> record = game.WaitForRecord(std::chrono::seconds(30));
    ASSERT_TRUE(record);
    EXPECT_EQ(record->directory, platform::FolderOf(game.Path()));
    EXPECT_EQ(record->arguments, (std::vector<std::string>{"-scenario", "Meine Karte.sve", "-res", "2"}));
}

}  // namespace
