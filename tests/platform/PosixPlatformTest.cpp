// The shell's "open" on Linux with real programs: the stand-in game, fakes of Wine and of the desktop's
// handler, and everything that cannot be started. Then the running marker as another program sees it: a
// lock file that cannot be locked exclusively while a launcher holds it, and can be once it has ended.
#include "platform/posix/PosixPlatform.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "platform/ChildProcessTest.h"
#include "platform/posix/RunningMarker.h"
#include "platform/posix/ShellTarget.h"
#include "support/StandInGame.h"

namespace fs = std::filesystem;

namespace {

using PosixPlatformTest = ChildProcessTest;

// In its own folder (given as its working directory) or in the launcher's (none given).
TEST_F(PosixPlatformTest, TheGameGetsItsArgumentsAndWorkingDirectory) {
    for (const bool inGameFolder : {true, false}) {
        SCOPED_TRACE(inGameFolder);
        const StandInGame game(m_dir.Path() /
                               (inGameFolder ? "Spiele mit Leerzeichen/\xC3\x9C\x62\x65rsee \xE6\x97\x85"
                                             : "NoWorkingDirectory"));
        const fs::path folder = fs::path(game.Path()).parent_path();
        ASSERT_EQ(Open(game.Path(), "-scenario \"Meine Karte 1.sve\"  \"\" a\\\"b \"x\ny\" b\\\\x\\",
                       inGameFolder ? folder.string() : ""),
                  kShellExecOk);
        const std::optional<LaunchRecord> record = game.WaitForRecord();
        ASSERT_TRUE(record.has_value());
        EXPECT_EQ(record->arguments, (std::vector<std::string>{"-scenario", "Meine Karte 1.sve", "", "a\"b",
                                                               "x\ny", "b\\\\x\\"}));
        EXPECT_EQ(record->directory, fs::canonical(inGameFolder ? folder : m_dir.Path()));
    }
}

// Closing the terminal the launcher runs in must not reach the game, nor must the game read from it. The
// starter in between is reaped, so the program is the test's only child (by adoption).
TEST_F(PosixPlatformTest, AProgramIsStartedDetached) {
    const int saved = dup(STDIN_FILENO);
    const int input = open(m_dir.Write("input", "typed").c_str(), O_RDONLY);
    dup2(input, STDIN_FILENO);
    close(input);
    const int32_t result = Open("/bin/sleep", "3");
    dup2(saved, STDIN_FILENO);
    close(saved);
    ASSERT_EQ(result, kShellExecOk);

    std::ifstream children("/proc/self/task/" + std::to_string(getpid()) + "/children");
    const std::vector<pid_t> started{std::istream_iterator<pid_t>(children), {}};
    ASSERT_EQ(started.size(), 1U);
    const std::string proc = "/proc/" + std::to_string(started[0]);
    std::string name;
    std::ifstream(proc + "/comm") >> name;
    EXPECT_EQ(name, "sleep");
    EXPECT_EQ(fs::read_symlink(proc + "/fd/0"), "/dev/null");
    EXPECT_NE(getsid(started[0]), getsid(0));
    kill(started[0], SIGKILL);
}

// wine64 comes first on PATH, yet wine is preferred while there is one.
TEST_F(PosixPlatformTest, AWindowsProgramIsStartedThroughWineElseWine64) {
    const std::string program = m_dir.Write("Game Folder/TARVOLIN.EXE", std::string("MZ\x90\0\x03\0", 6));
    const std::string folder = m_dir.File("Game Folder");
    const StandInGame wine64(m_dir.Path() / "bin64", "wine64");
    const StandInGame wine(m_dir.Path() / "bin", "wine");
    m_environment.Set("PATH", m_dir.File("bin64") + ":" + m_dir.File("bin"));
    for (const StandInGame* helper : {&wine, &wine64}) {
        SCOPED_TRACE(helper->Path());
        ASSERT_EQ(Open(program, R"(-scenario "a b.sve" -log)", folder), kShellExecOk);

        const std::optional<LaunchRecord> record = helper->WaitForRecord();
        ASSERT_TRUE(record.has_value());
        EXPECT_EQ(record->arguments, (std::vector<std::string>{program, "-scenario", "a b.sve", "-log"}));
        EXPECT_EQ(record->directory, fs::canonical(folder));
        fs::remove(wine.Path());
    }
}

// A game installed in a Wine prefix of its own is found in it, however deep; a "drive_c" without Wine's
// registry beside it is no prefix.
TEST_F(PosixPlatformTest, TheWinePrefixIsTheOneThatHoldsTheGame) {
    for (const char* prefix : {"games/tarvolin", "bottles/a \"b\" 100% $HOME", "outer/drive_c/inner"})
        m_dir.Write(std::string(prefix) + "/system.reg", "WINE REGISTRY Version 2\n");
    m_dir.Write("plain/drive_c/keep", "");
    const std::pair<const char*, const char*> cases[] = {
        {"games/tarvolin/drive_c/Tarvolin/tarvolin.exe", "games/tarvolin"},
        {"games/tarvolin/drive_c/Program Files/A/B/C/tarvolin.exe", "games/tarvolin"},
        {"bottles/a \"b\" 100% $HOME/drive_c/tarvolin.exe", "bottles/a \"b\" 100% $HOME"},
        {"outer/drive_c/inner/drive_c/tarvolin.exe", "outer/drive_c/inner"},
        {"plain/drive_c/tarvolin.exe", nullptr},
        {"games/tarvolin/tarvolin.exe", nullptr},
        {"tarvolin.exe", nullptr}};
    for (const auto& [game, prefix] : cases)
        EXPECT_EQ(platform::WinePrefixOf(m_dir.File(game)), prefix ? m_dir.File(prefix) : "") << game;
}

// Wine runs in the game's own prefix, whatever the launcher was started with; a game outside any prefix
// keeps the launcher's.
TEST_F(PosixPlatformTest, AGameInAPrefixStartsInThatPrefix) {
    InstallRecordingWine();
    m_environment.Set("WINEPREFIX", "/home/player/.wine");
    const std::string prefix = m_dir.File("my games/tarvolin");
    m_dir.Write("my games/tarvolin/system.reg", "");
    for (const auto& [name, expected] :
         {std::pair("my games/tarvolin/drive_c/Tarvolin/tarvolin.exe", prefix),
          std::pair("outside/tarvolin.exe", std::string("/home/player/.wine"))}) {
        const std::string game = m_dir.Write(name, "MZ");
        const std::string folder = game.substr(0, game.rfind('/'));
        ASSERT_EQ(Open(game, "-log", folder), kShellExecOk);
        EXPECT_EQ(TakeWineRecord(), expected + "\n" + folder + "\n" + game + "\n-log\n");
    }
}

// A name is looked for on PATH, a path taken as it is, in the list's order.
TEST_F(PosixPlatformTest, WineIsTheFirstCandidateThatExists) {
    const std::string debian = WriteExecutable("lib/wine/wine64", "#!/bin/sh\n");
    const std::string onPath = WriteExecutable("bin/wine64", "#!/bin/sh\n");
    m_environment.Set("PATH", m_dir.File("bin"));
    EXPECT_EQ(platform::FindWine({"wine", "wine64", debian}), onPath);
    EXPECT_EQ(platform::FindWine({"wine", debian, "wine64"}), debian);
    EXPECT_EQ(platform::FindWine({"wine", m_dir.File("lib/wine/missing")}), "");
    EXPECT_EQ(platform::FindWine({}), "");
}

TEST_F(PosixPlatformTest, DocumentsFoldersAndAddressesGoToTheDesktopHandler) {
    const StandInGame handler(m_dir.Path() / "bin", "xdg-open");
    m_environment.Set("PATH", m_dir.File("bin"));
    const std::string document = m_dir.Write("doc/FAQ_EN.txt", "faq");
    const std::string work = m_dir.File("doc"), folder = m_dir.File("game folder.exe");
    fs::create_directory(folder);
    // What is opened, and what the handler is given: addresses untouched, a file by its full path.
    const std::pair<std::string, std::string> cases[] = {
        {"FAQ_EN.txt", document},
        {folder, folder},
        {"mailto:someone@example.org", "mailto:someone@example.org"},
        {"https://example.org/update.txt?a=1&b=2", "https://example.org/update.txt?a=1&b=2"},
        {"HTTP://example.org/", "HTTP://example.org/"},
    };
    for (const auto& [target, expected] : cases) {
        SCOPED_TRACE(target);
        handler.ForgetRecord();
        ASSERT_EQ(Open(target, "ignored parameters", work), kShellExecOk);
        const std::optional<LaunchRecord> record = handler.WaitForRecord();
        ASSERT_TRUE(record.has_value());
        EXPECT_EQ(record->arguments, std::vector<std::string>{expected});
        EXPECT_EQ(record->directory, fs::canonical(work));
    }
}

// What is missing, and the verb, decide the code. Names are relative to the test's folder, the current one;
// a program named without a folder is looked for in the working directory, not in the current one.
TEST_F(PosixPlatformTest, WhatIsMissingAndTheVerbDecideTheCode) {
    const StandInGame game(m_dir.Path() / "standin");
    m_dir.Write("game", "#!/bin/sh\n");
    fs::create_directory(m_dir.File("folder"));
    // The file, the working directory, the verb and the code; the last three files only look like addresses.
    const std::tuple<std::string, std::string, std::string, int32_t> cases[] = {
        {"tarvolin.exe", "standin", "", kShellExecOk},
        {"tarvolin.exe", "standin", "OPEN", kShellExecOk},
        {"tarvolin.exe", "standin", "print", kSeErrNoAssociation},
        {"tarvolin.exe", "standin", "opened", kSeErrNoAssociation},
        {"absent.exe", "", "open", kSeErrFileNotFound},
        {"absent.exe", "folder", "open", kSeErrFileNotFound},
        {"nowhere/absent.exe", "", "open", kSeErrPathNotFound},
        {"game", "nowhere", "open", kSeErrPathNotFound},
        {"game", "game", "open", kSeErrPathNotFound},
        {"game", std::string("folder\0x", 8), "open", kSeErrPathNotFound},
        {"", "", "open", kSeErrFileNotFound},
        {std::string("game\0x", 6), "", "open", kSeErrFileNotFound},
        {"C://Games/tarvolin.exe", "", "open", kSeErrPathNotFound},
        {"1http://example.org/", "", "open", kSeErrPathNotFound},
        {"see mailto:someone@example.org", "", "open", kSeErrFileNotFound},
    };
    for (const auto& [file, directory, verb, expected] : cases)
        EXPECT_EQ(Open(file, "", directory, verb), expected) << verb << " " << file << " in " << directory;
}

// Once with a Wine and a desktop handler that cannot run, once with neither on PATH.
TEST_F(PosixPlatformTest, AFileThatCannotBeStartedGetsTheShellsCode) {
    const std::string noInterpreter = "#!/nonexistent/interpreter\n";
    WriteExecutable("broken/wine", noInterpreter);
    WriteExecutable("broken/xdg-open", noInterpreter);
    // The start of a 64-bit ELF header: native by its first bytes, but nothing the kernel can load.
    const std::string elf = std::string("\x7f") + "ELF\x02\x01\x01";
    const StandInGame standIn(m_dir.Path() / "standin");
    const std::string game = m_dir.Read("standin/tarvolin.exe");
    // The file's name, its content, whether it may be executed, and the code; "game" is the real one.
    const std::tuple<std::string, std::string, bool, int32_t> cases[] = {
        {"game.exe", "MZ", false, kSeErrNoAssociation},
        {"game.exe", "garbage", true, kSeErrBadFormat},
        {"game.exe", "garbage", false, kSeErrBadFormat},
        {"Game.Exe", "", false, kSeErrBadFormat},
        {"game.exe", elf, true, kSeErrBadFormat},
        {"game", "garbage", true, kSeErrBadFormat},
        {"game.exe", "#!/bin/sh\n", false, kSeErrAccessDenied},
        {"tarvolin.exe", game, false, kSeErrAccessDenied},
        {"game.exe", noInterpreter, true, kSeErrFileNotFound},
        {"game.txt", "#!/bin/sh\n", false, kSeErrNoAssociation},
    };
    fs::create_directory(m_dir.File("empty"));
    for (const std::string& path : {m_dir.File("broken"), m_dir.File("empty")}) {
        m_environment.Set("PATH", path);
        int index = 0;
        for (const auto& [file, content, executable, expected] : cases) {
            const std::string name = std::to_string(++index) + file;
            EXPECT_EQ(Open(executable ? WriteExecutable(name, content) : m_dir.Write(name, content)),
                      expected)
                << name << " with PATH=" << path;
        }
    }
}

// What an installer does (flock -n -x): try an exclusive lock without waiting, and let it go at once.
bool SomeoneHolds(const std::string& path) {
    const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool held = flock(fd, LOCK_EX | LOCK_NB) != 0;
    close(fd);
    return held;
}

// Each test has a runtime folder of its own, so it never meets a marker that an earlier one still holds.
// Child processes stand for other copies of the launcher; the fixture reaps them and whatever they start.
class RunningMarkerTest : public ChildProcessTest {
protected:
    void SetUp() override {
        ChildProcessTest::SetUp();
        m_environment.Set("XDG_RUNTIME_DIR", m_dir.Path().string());
    }

    const std::string m_name = "PavonelTest_" + std::to_string(getpid());
};

// In the runtime folder, else in /tmp per user; a second copy of the launcher creates it again.
TEST_F(RunningMarkerTest, IsHeldWhileTheProcessRunsInTheRuntimeFolderElseInTmp) {
    ASSERT_TRUE(m_platform.CreateNamedMutex(m_name));
    EXPECT_TRUE(SomeoneHolds(m_dir.File(m_name + ".lock")));
    EXPECT_TRUE(PosixPlatform().CreateNamedMutex(m_name));

    const std::string expected = "/tmp/" + m_name + "-" + std::to_string(getuid()) + ".lock";
    for (const char* runtime : {"", "relative/run", "/nonexistent/run"}) {
        m_environment.Set("XDG_RUNTIME_DIR", runtime);
        EXPECT_EQ(platform::RunningMarkerPath(m_name), expected) << runtime;
    }
    m_environment.Set("XDG_RUNTIME_DIR", std::nullopt);
    ASSERT_TRUE(m_platform.CreateNamedMutex(m_name));
    EXPECT_TRUE(SomeoneHolds(expected));
    fs::remove(expected);
}

TEST_F(RunningMarkerTest, AMarkerThatCannotBeAFileIsRefused) {
    fs::create_directory(m_dir.File(m_name + ".lock"));

    for (const std::string& name : {std::string(), std::string("."), std::string(".."),
                                    std::string("Pavonel/MTX"), std::string("Pavonel\0MTX", 11), m_name}) {
        EXPECT_FALSE(m_platform.CreateNamedMutex(name)) << name;
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(m_dir.Path()), fs::directory_iterator()), 1);
}

// The game outlives the launcher that started it: the marker ends with the launcher, not with the game.
TEST_F(RunningMarkerTest, EndsWithTheLauncherAndNotWithAProgramItStarted) {
    int done[2];
    ASSERT_EQ(pipe2(done, O_CLOEXEC), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        close(done[0]);
        const pid_t program = platform::HoldRunningMarker(m_name) ? fork() : -1;
        if (program == 0) {
            execl("/bin/sleep", "sleep", "10", static_cast<char*>(nullptr));
            _exit(1);
        }
        _exit(write(done[1], &program, sizeof program) == sizeof program ? 0 : 1);
    }
    close(done[1]);
    pid_t program = -1;
    EXPECT_EQ(read(done[0], &program, sizeof program), static_cast<ssize_t>(sizeof program));
    char nothing = 0;
    // End of file once the launcher has ended and the program has gone through exec.
    EXPECT_EQ(read(done[0], &nothing, 1), 0);
    close(done[0]);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    ASSERT_GT(program, 0);

    EXPECT_EQ(kill(program, 0), 0);
    // The kernel may drop the marker's last reference a moment after the exec that closed it.
    for (int tries = 0; tries < 100 && SomeoneHolds(m_dir.File(m_name + ".lock")); ++tries)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_FALSE(SomeoneHolds(m_dir.File(m_name + ".lock")));
    kill(program, SIGKILL);
}

}  // namespace
