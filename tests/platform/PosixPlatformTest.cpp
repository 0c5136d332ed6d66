// The shell's "open" on Linux with real programs: the stand-in game, fakes of Wine and of the desktop's
// handler, and everything that cannot be started.
#include "platform/posix/PosixPlatform.h"

#include <fcntl.h>
#include <gtest/gtest.h>
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
#include "platform/posix/ShellTarget.h"
#include "support/StandInGame.h"
#include "support/TempDir.h"

namespace fs = std::filesystem;

namespace {

TEST(ProgramDirectoryTest, IsTheFolderOfTheRunningExecutable) {
    EXPECT_EQ(PosixPlatform().ProgramDirectory(),
              fs::canonical(program_invocation_name).parent_path().string());
}

using PosixPlatformTest = ChildProcessTest;

TEST_F(PosixPlatformTest, TheGameGetsItsArgumentsAndWorkingDirectory) {
    // The game's folder inside the test's folder, whether it is its working directory (else there is none,
    // so it runs in the launcher's), its parameters and its arguments.
    const std::tuple<std::string, bool, std::string, std::vector<std::string>> cases[] = {
        {"Tarvolin",
         true,
         "-scenario \"Meine Karte 1.sve\"  \"\" a\\\"b \"x\ny\" b\\\\x\\",
         {"-scenario", "Meine Karte 1.sve", "", "a\"b", "x\ny", "b\\\\x\\"}},
        {"Spiele mit Leerzeichen/Tarvolin \xC3\x9C\x62\x65rsee \xE6\x97\x85",
         true,
         "-freeplay -refresh 2",
         {"-freeplay", "-refresh", "2"}},
        {"NoWorkingDirectory", false, "", {}},
    };
    for (const auto& [name, inGameFolder, parameters, arguments] : cases) {
        SCOPED_TRACE(name);
        const StandInGame game(m_dir.Path() / name);
        const fs::path folder = fs::path(game.Path()).parent_path();

        ASSERT_EQ(Open(game.Path(), parameters, inGameFolder ? folder.string() : ""), kShellExecOk);

        const std::optional<LaunchRecord> record = game.WaitForRecord();
        ASSERT_TRUE(record.has_value());
        EXPECT_EQ(record->arguments, arguments);
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
    const std::string folder = MakeFolder("Game Folder");
    const std::string program = m_dir.Write("Game Folder/TARVOLIN.EXE", std::string("MZ\x90\0\x03\0", 6));
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
    const std::string work = MakeFolder("doc");
    const std::string document = m_dir.Write("doc/FAQ_EN.txt", "faq");
    const std::string folder = MakeFolder("game folder.exe");
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

// By name only, the program is looked for in the working directory, not in the current one.
TEST_F(PosixPlatformTest, OpensAProgramByNameInTheWorkingDirectoryWithTheOpenVerbOnly) {
    const StandInGame game(m_dir.Path() / "game");
    const std::pair<std::string, int32_t> cases[] = {{"", kShellExecOk},
                                                     {"OPEN", kShellExecOk},
                                                     {"print", kSeErrNoAssociation},
                                                     {"opened", kSeErrNoAssociation}};
    for (const auto& [verb, expected] : cases)
        EXPECT_EQ(Open("tarvolin.exe", "", m_dir.File("game"), verb), expected) << verb;
}

// Names are relative to the test's folder, the current one.
TEST_F(PosixPlatformTest, WhatIsMissingDecidesTheCode) {
    m_dir.Write("game", "#!/bin/sh\n");
    MakeFolder("folder");
    // The file, the working directory, and the code; the last three only look like addresses.
    const std::tuple<std::string, std::string, int32_t> cases[] = {
        {"absent.exe", "", kSeErrFileNotFound},
        {"absent.exe", "folder", kSeErrFileNotFound},
        {"nowhere/absent.exe", "", kSeErrPathNotFound},
        {"game", "nowhere", kSeErrPathNotFound},
        {"game", "game", kSeErrPathNotFound},
        {"game", std::string("folder\0x", 8), kSeErrPathNotFound},
        {"", "", kSeErrFileNotFound},
        {std::string("game\0x", 6), "", kSeErrFileNotFound},
        {"C://Games/tarvolin.exe", "", kSeErrPathNotFound},
        {"1http://example.org/", "", kSeErrPathNotFound},
        {"see mailto:someone@example.org", "", kSeErrFileNotFound},
    };
    for (const auto& [file, directory, expected] : cases)
        EXPECT_EQ(Open(file, "", directory), expected) << file << " in " << directory;
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
    for (const std::string& path : {m_dir.File("broken"), MakeFolder("empty")}) {
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

// The options window proposes this editor for the log file: an installed desktop editor, in the order of
// the list, else the desktop's own handler.
TEST(TextEditorTest, TheFirstInstalledEditorIsProposed) {
    TempDir bin;
    EXPECT_EQ(platform::InstalledTextEditor(bin.Path().string()), "xdg-open");
    for (const char* name : {"mousepad", "kate", "gedit"})
        bin.Write(name, "#!/bin/sh\n");
    fs::permissions(bin.Path() / "mousepad", fs::perms::owner_exec, fs::perm_options::add);
    fs::permissions(bin.Path() / "kate", fs::perms::owner_exec, fs::perm_options::add);
    EXPECT_EQ(platform::InstalledTextEditor(bin.Path().string()), "kate");
}

}  // namespace
