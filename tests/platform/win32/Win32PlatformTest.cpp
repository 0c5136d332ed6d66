// The Windows platform files against the real Windows functions, as Wine or Windows provides them: a
// stand-in game started by ShellExecuteA, a mutex that another process finds, and the prefix's folders.
#include "platform/win32/Win32Platform.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include "app/mPath.h"
#include "fileinfo/CFileInfo.h"
#include "platform/FileSystem.h"
#include "platform/NativePath.h"
#include "storage/iniFile.h"
#include "support/StandInGame.h"
#include "support/TempDir.h"

namespace {

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

// The exit status of the mutex probe asked about `name`; nothing when it could not be run.
std::optional<DWORD> ProbeExitCode(const std::string& name) {
    std::string commandLine = "\"" PAVONEL_MUTEX_PROBE "\" \"" + name + "\"";
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                        &process))
        return std::nullopt;
    DWORD code = 0;
    const bool ended = WaitForSingleObject(process.hProcess, 30000) == WAIT_OBJECT_0 &&
                       GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return ended ? std::optional<DWORD>(code) : std::nullopt;
}

std::string UniqueName(const char* stem) {
    return std::string(stem) + "-" + std::to_string(GetCurrentProcessId()) + "-" +
           std::to_string(GetTickCount64());
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
    const std::string name = UniqueName("Pavonel_MTX-test");
    EXPECT_EQ(ProbeExitCode(name), 1u);
    ASSERT_TRUE(Win32Platform().CreateNamedMutex(name));
    EXPECT_EQ(ProbeExitCode(name), 0u);
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
    EXPECT_FALSE(platform::CanReplaceFile(file));
    iniFile::Write(file, "S", "k", "new");
    EXPECT_EQ(dir.Read("Pavonel.ini"), "[S]\r\nk=old\r\n");
    SetFileAttributesA(file.c_str(), FILE_ATTRIBUTE_NORMAL);
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

}  // namespace
