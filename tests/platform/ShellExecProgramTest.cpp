// Starting programs the way the launcher starts the game: the stand-in game for real, a Windows program
// through a recording fake Wine, and every kind of file that cannot be started.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <system_error>
#include <vector>

#include "platform/ChildProcessTest.h"
#include "support/StandInGame.h"

namespace fs = std::filesystem;

namespace {

template <class Case>
std::string CaseName(const ::testing::TestParamInfo<Case>& info) {
    return info.param.name;
}

// The test process's own working directory, moved into the test's folder: a game started without a working
// directory runs there and writes its log there.
class ScopedCurrentDirectory {
public:
    explicit ScopedCurrentDirectory(const fs::path& folder) : m_saved(fs::current_path()) {
        fs::current_path(folder);
    }
    ~ScopedCurrentDirectory() {
        std::error_code ignored;
        fs::current_path(m_saved, ignored);
    }
    ScopedCurrentDirectory(const ScopedCurrentDirectory&) = delete;
    ScopedCurrentDirectory& operator=(const ScopedCurrentDirectory&) = delete;

private:
    fs::path m_saved;
};

std::string ReadFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

using ProgramStartTest = ChildProcessTest;

enum class WorkIn { kGameFolder, kNothing };

struct GameCase {
    std::string name;
    std::string folder;  // the game's folder inside the test's folder
    std::string parameters;
    WorkIn work;
    std::vector<std::string> arguments;
    friend void PrintTo(const GameCase& c, std::ostream* out) { *out << c.name; }
};

class GameStartTest : public ChildProcessTest, public ::testing::WithParamInterface<GameCase> {};

TEST_P(GameStartTest, TheGameGetsItsArgumentsAndWorkingDirectory) {
    const StandInGame game(m_dir.Path() / GetParam().folder);
    const std::string gameFolder = fs::path(game.Path()).parent_path().string();
    const bool inGameFolder = GetParam().work == WorkIn::kGameFolder;
    const ScopedCurrentDirectory current(MakeFolder("current"));
    const fs::path work = inGameFolder ? fs::path(gameFolder) : fs::current_path();

    ASSERT_EQ(Open(game.Path(), GetParam().parameters, inGameFolder ? gameFolder : ""), kShellExecOk);

    const std::optional<LaunchRecord> record = game.WaitForRecord();
    ASSERT_TRUE(record.has_value());
    EXPECT_EQ(record->arguments, GetParam().arguments);
    EXPECT_EQ(record->directory, Canonical(work));
    EXPECT_NE(ReadFile(work / "tarvo.log").find("stand-in started"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(
    Starts, GameStartTest,
    ::testing::Values(
        GameCase{"CommandLineWithQuotedSpaces",
                 "Tarvolin",
                 R"(-screensize 3 -scenario "Meine Karte 1.sve" -graphicpack "pak 64"  -log)",
                 WorkIn::kGameFolder,
                 {"-screensize", "3", "-scenario", "Meine Karte 1.sve", "-graphicpack", "pak 64", "-log"}},
        GameCase{"FolderWithSpacesAndNonAsciiNames",
                 "Spiele mit Leerzeichen/Tarvolin \xC3\x9C\x62\x65rsee \xE6\x97\x85",
                 "-freeplay -refresh 2",
                 WorkIn::kGameFolder,
                 {"-freeplay", "-refresh", "2"}},
        GameCase{"EmptyWorkingDirectoryKeepsTheCurrentOne", "Tarvolin", "-log", WorkIn::kNothing, {"-log"}},
        GameCase{"EscapedQuotesEmptyArgumentsAndLineBreaks",
                 "Tarvolin",
                 "a\\\"b \"\" \"line 1\nline 2\" back\\\\slash\\",
                 WorkIn::kGameFolder,
                 {"a\"b", "", "line 1\nline 2", "back\\\\slash\\"}},
        GameCase{"NoParameters", "Tarvolin", "", WorkIn::kGameFolder, {}}),
    CaseName<GameCase>);

TEST_F(ProgramStartTest, EveryStartOfTheGameIsLoggedInItsWorkingDirectory) {
    const StandInGame game(m_dir.Path() / "Tarvolin");
    const std::string folder = fs::path(game.Path()).parent_path().string();

    for (int start = 0; start < 2; ++start) {
        game.ForgetRecord();
        ASSERT_EQ(Open(game.Path(), "-log", folder), kShellExecOk);
        ASSERT_TRUE(game.WaitForRecord().has_value());
    }

    const std::string line = "Tarvolin stand-in started with 1 arguments\n";
    EXPECT_EQ(m_dir.Read("Tarvolin/tarvo.log"), line + line);
}

// A Windows program and the Wine helpers that PATH holds; the test's PATH holds nothing else.
struct WineCase {
    std::string name;
    std::string program;               // inside "Game Folder"
    std::vector<std::string> helpers;  // fake helpers on PATH, each reporting to "<helper>.report"
    std::string expectedHelper;        // "" when the start must fail
    friend void PrintTo(const WineCase& c, std::ostream* out) { *out << c.name; }
};

class WineStartTest : public ChildProcessTest, public ::testing::WithParamInterface<WineCase> {
protected:
    void SetUp() override {
        ChildProcessTest::SetUp();
        for (const std::string& helper : GetParam().helpers)
            WriteRecorder("bin/" + helper, helper + ".report");
        m_environment.Set("PATH", MakeFolder("bin"));
    }
};

TEST_P(WineStartTest, AWindowsProgramIsStartedThroughWine) {
    const std::string folder = MakeFolder("Game Folder");
    const std::string program =
        m_dir.Write("Game Folder/" + GetParam().program, std::string("MZ\x90\0\x03\0", 6));

    const int32_t result = Open(program, R"(-scenario "a b.sve" -log)", folder);

    if (GetParam().expectedHelper.empty()) {
        EXPECT_EQ(result, kSeErrNoAssociation);
        return;
    }
    ASSERT_EQ(result, kShellExecOk);
    const std::optional<Report> report = WaitForReport(GetParam().expectedHelper + ".report");
    ASSERT_TRUE(report.has_value());
    const std::vector<std::string> expected = {program, "-scenario", "a b.sve", "-log"};
    EXPECT_EQ(report->arguments, expected);
    EXPECT_EQ(report->directory, Canonical(folder));
}

INSTANTIATE_TEST_SUITE_P(
    Helpers, WineStartTest,
    ::testing::Values(WineCase{"Wine", "tarvolin.exe", {"wine"}, "wine"},
                      WineCase{"OnlyWine64", "tarvolin.exe", {"wine64"}, "wine64"},
                      WineCase{"WineBeforeWine64", "tarvolin.exe", {"wine64", "wine"}, "wine"},
                      WineCase{"UpperCaseName", "TARVOLIN.EXE", {"wine"}, "wine"},
                      WineCase{"NoWine", "tarvolin.exe", {}, ""}),
    CaseName<WineCase>);

TEST_F(ProgramStartTest, AWineThatCannotRunMeansNoAssociation) {
    WriteExecutable("bin/wine", "#!/nonexistent/interpreter\n");
    m_environment.Set("PATH", MakeFolder("bin"));

    EXPECT_EQ(Open(m_dir.Write("tarvolin.exe", "MZ")), kSeErrNoAssociation);
}

// Files that cannot be started, with PATH empty: neither Wine nor a desktop handler can take them over.
struct BadProgramCase {
    std::string name;
    std::string file;
    std::string content;
    bool executeBit;
    int32_t expected;
    friend void PrintTo(const BadProgramCase& c, std::ostream* out) { *out << c.name; }
};

class BadProgramTest : public ChildProcessTest, public ::testing::WithParamInterface<BadProgramCase> {};

TEST_P(BadProgramTest, IsReportedWithTheShellsCode) {
    m_environment.Set("PATH", MakeFolder("empty"));
    const std::string path = m_dir.Write(GetParam().file, GetParam().content);
    if (GetParam().executeBit)
        fs::permissions(path, fs::perms::owner_all, fs::perm_options::add);

    EXPECT_EQ(Open(path), GetParam().expected);
}

// The start of a 64-bit ELF header: native by its first bytes, but nothing the kernel can load.
std::string ElfHeader() {
    return "\x7f"
           "ELF\x02\x01\x01";
}

INSTANTIATE_TEST_SUITE_P(
    Files, BadProgramTest,
    ::testing::Values(
        BadProgramCase{"WindowsProgramWithoutWine", "game.exe", "MZ", false, kSeErrNoAssociation},
        BadProgramCase{"GarbageExe", "game.exe", "garbage", true, kSeErrBadFormat},
        BadProgramCase{"GarbageExeWithoutExecuteBit", "game.exe", "garbage", false, kSeErrBadFormat},
        BadProgramCase{"EmptyExe", "Game.Exe", "", false, kSeErrBadFormat},
        BadProgramCase{"TruncatedElfExe", "game.exe", ElfHeader(), true, kSeErrBadFormat},
        BadProgramCase{"GarbageWithoutExeName", "game", "garbage", true, kSeErrBadFormat},
        BadProgramCase{"ElfExeWithoutExecuteBit", "game.exe", ElfHeader(), false, kSeErrAccessDenied},
        BadProgramCase{"ScriptExeWithoutExecuteBit", "game.exe", "#!/bin/sh\n", false, kSeErrAccessDenied},
        BadProgramCase{"MissingInterpreter", "game.exe", "#!/nonexistent/interpreter\n", true,
                       kSeErrFileNotFound},
        BadProgramCase{"DocumentWithoutHandler", "game.txt", "#!/bin/sh\n", false, kSeErrNoAssociation}),
    CaseName<BadProgramCase>);

TEST_F(ProgramStartTest, AGameWithoutExecutePermissionIsNotStarted) {
    const StandInGame game(m_dir.Path() / "Tarvolin");
    fs::permissions(game.Path(), fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec,
                    fs::perm_options::remove);

    EXPECT_EQ(Open(game.Path()), kSeErrAccessDenied);
}

}  // namespace
