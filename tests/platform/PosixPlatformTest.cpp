#include "platform/posix/PosixPlatform.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "support/TempDir.h"

namespace fs = std::filesystem;

namespace {

// What a stand-in program found when it ran.
struct Report {
    std::string directory;
    std::string input;
    std::string session;
    std::vector<std::string> arguments;
};

// A script that records its working directory, standard input, session and then its arguments, one a
// line. It writes beside `report` and renames, so a report that exists is complete.
std::string RecorderScript(const std::string& report) {
    return "#!/bin/sh\nout='" + report + "'\n" + R"({
    pwd -P
    readlink /proc/$$/fd/0
    read -r _ _ _ _ _ sid _ < /proc/$$/stat
    echo "$sid"
    for a in "$@"; do printf '%s\n' "$a"; done
} > "$out.part"
mv "$out.part" "$out"
)";
}

std::optional<Report> ParseReport(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    if (lines.size() < 3) {
        return std::nullopt;
    }
    return Report{lines[0], lines[1], lines[2], {lines.begin() + 3, lines.end()}};
}

std::optional<std::string> WaitForFile(const TempDir& dir, const std::string& name) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (std::chrono::steady_clock::now() < deadline) {
        if (fs::exists(dir.File(name))) {
            return dir.Read(name);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return std::nullopt;
}

std::optional<Report> WaitForReport(const TempDir& dir, const std::string& name) {
    const std::optional<std::string> text = WaitForFile(dir, name);
    return text ? ParseReport(*text) : std::nullopt;
}

std::string WriteExecutable(const TempDir& dir, const std::string& name, const std::string& bytes) {
    const std::string path = dir.Write(name, bytes);
    fs::permissions(path, fs::perms::owner_all, fs::perm_options::add);
    return path;
}

std::string Canonical(const fs::path& path) {
    return fs::canonical(path).string();
}

// Runs `undo` when the scope ends: each test puts back the process state it changed.
class Restore {
public:
    explicit Restore(std::function<void()> undo) : m_undo(std::move(undo)) {}
    ~Restore() { m_undo(); }
    Restore(const Restore&) = delete;
    Restore& operator=(const Restore&) = delete;

private:
    std::function<void()> m_undo;
};

Restore SetPath(const std::string& value) {
    const char* old = std::getenv("PATH");
    std::optional<std::string> saved = old != nullptr ? std::optional<std::string>(old) : std::nullopt;
    setenv("PATH", value.c_str(), 1);
    return Restore([saved] { saved ? setenv("PATH", saved->c_str(), 1) : unsetenv("PATH"); });
}

// Standard input other than /dev/null, so that the started program's /dev/null is known to come from the
// launcher and not from whoever runs the tests.
Restore SetInput(const std::string& file) {
    const int saved = dup(STDIN_FILENO);
    const int input = open(file.c_str(), O_RDONLY);
    dup2(input, STDIN_FILENO);
    close(input);
    return Restore([saved] {
        dup2(saved, STDIN_FILENO);
        close(saved);
    });
}

std::string PathWithFirst(const fs::path& folder) {
    const char* old = std::getenv("PATH");
    return folder.string() + ":" + (old != nullptr ? old : "/usr/bin:/bin");
}

std::string ReadText(const std::string& path) {
    std::ifstream in(path);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// Children of this process that still carry its name: a starter that was not reaped, or one that never
// went on to exec.
int ChildrenNamedLikeThisProcess() {
    const std::string self = ReadText("/proc/self/comm");
    std::istringstream children(ReadText("/proc/self/task/" + std::to_string(getpid()) + "/children"));
    int count = 0;
    for (pid_t child = 0; children >> child;) {
        count += ReadText("/proc/" + std::to_string(child) + "/comm") == self ? 1 : 0;
    }
    return count;
}

// Started programs are orphans by design. The test process adopts them for the duration of a test and
// reaps them afterwards, so that none is left behind however the machine's init treats orphans.
class PosixPlatformTest : public ::testing::Test {
protected:
    void SetUp() override {
        prctl(PR_GET_CHILD_SUBREAPER, &m_wasSubreaper);
        prctl(PR_SET_CHILD_SUBREAPER, 1);
    }

    void TearDown() override {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
        for (pid_t pid = 0; pid >= 0 && std::chrono::steady_clock::now() < deadline;) {
            pid = waitpid(-1, nullptr, WNOHANG);
            if (pid == 0) {
                std::this_thread::sleep_for(std::chrono::milliseconds(10));
            }
        }
        prctl(PR_SET_CHILD_SUBREAPER, m_wasSubreaper);
    }

    int32_t Open(const std::string& file, const std::string& parameters = "",
                 const std::string& directory = "", const std::string& verb = "open") {
        return m_platform.ShellExec(0, verb, file, parameters, directory, kSwShowNormal);
    }

    std::string WriteRecorder(const std::string& name, const std::string& report) {
        return WriteExecutable(m_dir, name, RecorderScript(m_dir.File(report)));
    }

    std::string MakeFolder(const std::string& name) {
        fs::create_directories(m_dir.File(name));
        return m_dir.File(name);
    }

    TempDir m_dir;
    PosixPlatform m_platform;
    int m_wasSubreaper = 0;
};

TEST_F(PosixPlatformTest, ProgramDirectoryIsTheFolderOfTheRunningExecutable) {
    EXPECT_EQ(m_platform.ProgramDirectory(), fs::canonical(program_invocation_name).parent_path().string());
}

TEST_F(PosixPlatformTest, StartsAnExecutableDetachedWithItsArgumentsAndWorkingDirectory) {
    const std::string program = WriteRecorder("game", "report");
    const std::string work = MakeFolder("work dir");
    const Restore input = SetInput(m_dir.Write("input", "typed"));

    ASSERT_EQ(Open(program, R"(-scenario "C:\my maps\a b.sve" -res 3 "" a\\\"b)", work), kShellExecOk);
    EXPECT_EQ(ChildrenNamedLikeThisProcess(), 0);

    const std::optional<Report> report = WaitForReport(m_dir, "report");
    ASSERT_TRUE(report.has_value());
    const std::vector<std::string> expected = {"-scenario", R"(C:\my maps\a b.sve)", "-res", "3", "",
                                               R"(a\"b)"};
    EXPECT_EQ(report->arguments, expected);
    EXPECT_EQ(report->directory, Canonical(work));
    EXPECT_EQ(report->input, "/dev/null");
    EXPECT_NE(report->session, std::to_string(getsid(0)));
}

TEST_F(PosixPlatformTest, WithoutWorkingDirectoryTheProgramRunsInTheCurrentOne) {
    ASSERT_EQ(Open(WriteRecorder("game", "report"), "x"), kShellExecOk);

    const std::optional<Report> report = WaitForReport(m_dir, "report");
    ASSERT_TRUE(report.has_value());
    EXPECT_EQ(report->arguments, std::vector<std::string>{"x"});
    EXPECT_EQ(report->directory, Canonical(fs::current_path()));
}

TEST_F(PosixPlatformTest, RelativeFileIsLookedForInTheWorkingDirectory) {
    const std::string tools = MakeFolder("tools");
    WriteExecutable(m_dir, "tools/editor.exe", RecorderScript(m_dir.File("report")));

    ASSERT_EQ(Open("editor.exe", "", tools), kShellExecOk);

    const std::optional<Report> report = WaitForReport(m_dir, "report");
    ASSERT_TRUE(report.has_value());
    EXPECT_EQ(report->directory, Canonical(tools));
}

template <class Case>
std::string CaseName(const ::testing::TestParamInfo<Case>& info) {
    return info.param.name;
}

struct VerbCase {
    std::string name;
    std::string verb;
    int32_t expected;
    friend void PrintTo(const VerbCase& c, std::ostream* out) { *out << c.name; }
};

class ShellExecVerbTest : public PosixPlatformTest, public ::testing::WithParamInterface<VerbCase> {};

TEST_P(ShellExecVerbTest, OnlyOpenIsKnown) {
    const std::string program = WriteRecorder("game", "report");

    EXPECT_EQ(Open(program, "", "", GetParam().verb), GetParam().expected);
    if (GetParam().expected == kShellExecOk) {
        EXPECT_TRUE(WaitForReport(m_dir, "report").has_value());
    }
}

INSTANTIATE_TEST_SUITE_P(Verbs, ShellExecVerbTest,
                         ::testing::Values(VerbCase{"Empty", "", kShellExecOk},
                                           VerbCase{"OpenInCapitals", "OPEN", kShellExecOk},
                                           VerbCase{"Print", "print", kSeErrNoAssociation},
                                           VerbCase{"LongerThanOpen", "opened", kSeErrNoAssociation}),
                         CaseName<VerbCase>);

// Names are inside the test's folder; an empty name stays empty.
struct MissingCase {
    std::string name;
    std::string file;
    std::string directory;
    int32_t expected;
    friend void PrintTo(const MissingCase& c, std::ostream* out) { *out << c.name; }
};

class ShellExecMissingTest : public PosixPlatformTest, public ::testing::WithParamInterface<MissingCase> {
protected:
    std::string Inside(const std::string& name) { return name.empty() ? name : m_dir.File(name); }
};

TEST_P(ShellExecMissingTest, ReportsWhatIsMissing) {
    WriteRecorder("game", "report");
    MakeFolder("folder");

    EXPECT_EQ(Open(Inside(GetParam().file), "", Inside(GetParam().directory)), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Targets, ShellExecMissingTest,
    ::testing::Values(MissingCase{"File", "absent.exe", "", kSeErrFileNotFound},
                      MissingCase{"FileInExistingFolder", "folder/absent.exe", "folder", kSeErrFileNotFound},
                      MissingCase{"FileAndItsFolder", "nowhere/absent.exe", "", kSeErrPathNotFound},
                      MissingCase{"WorkingDirectory", "game", "nowhere", kSeErrPathNotFound},
                      MissingCase{"WorkingDirectoryIsAFile", "game", "game", kSeErrPathNotFound},
                      MissingCase{"WorkingDirectoryWithNul", "game", std::string("folder\0x", 8),
                                  kSeErrPathNotFound},
                      MissingCase{"EmptyFile", "", "", kSeErrFileNotFound},
                      MissingCase{"FileWithNul", std::string("game\0x", 6), "", kSeErrFileNotFound}),
    CaseName<MissingCase>);

struct ExecFailureCase {
    std::string name;
    std::string content;
    int32_t expected;
    friend void PrintTo(const ExecFailureCase& c, std::ostream* out) { *out << c.name; }
};

class ShellExecFailureTest : public PosixPlatformTest,
                             public ::testing::WithParamInterface<ExecFailureCase> {};

TEST_P(ShellExecFailureTest, AnExecutableThatCannotRunIsReported) {
    EXPECT_EQ(Open(WriteExecutable(m_dir, "game.exe", GetParam().content)), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Contents, ShellExecFailureTest,
    ::testing::Values(
        ExecFailureCase{"Garbage", std::string("MZ\x90\0\x03\0garbage", 13), kSeErrAccessDenied},
        ExecFailureCase{"Empty", "", kSeErrAccessDenied},
        ExecFailureCase{"MissingInterpreter", "#!/nonexistent/interpreter\n", kSeErrFileNotFound}),
    CaseName<ExecFailureCase>);

// A fake xdg-open first on PATH records what it was asked to open.
class ShellExecHandlerTest : public PosixPlatformTest {
protected:
    ShellExecHandlerTest() { WriteExecutable(m_dir, "bin/xdg-open", RecorderScript(m_dir.File("report"))); }

    Restore m_path = SetPath(PathWithFirst(MakeFolder("bin")));
};

struct HandlerCase {
    std::string name;
    std::string target;
    bool inside;  // the target is a file or folder in the test's folder
    friend void PrintTo(const HandlerCase& c, std::ostream* out) { *out << c.name; }
};

class ShellExecHandlerTargetTest : public ShellExecHandlerTest,
                                   public ::testing::WithParamInterface<HandlerCase> {};

TEST_P(ShellExecHandlerTargetTest, OpensTheTargetWithTheDesktopHandler) {
    m_dir.Write("notes.txt", "text");
    MakeFolder("game folder");
    const std::string work = MakeFolder("work");
    const std::string target = GetParam().inside ? m_dir.File(GetParam().target) : GetParam().target;

    ASSERT_EQ(Open(target, "ignored parameters", work), kShellExecOk);

    const std::optional<Report> report = WaitForReport(m_dir, "report");
    ASSERT_TRUE(report.has_value());
    EXPECT_EQ(report->arguments, std::vector<std::string>{target});
    EXPECT_EQ(report->directory, Canonical(work));
}

INSTANTIATE_TEST_SUITE_P(
    Targets, ShellExecHandlerTargetTest,
    ::testing::Values(HandlerCase{"Document", "notes.txt", true}, HandlerCase{"Folder", "game folder", true},
                      HandlerCase{"Mail", "mailto:someone@example.org", false},
                      HandlerCase{"Web", "https://example.org/update.txt?a=1&b=2", false},
                      HandlerCase{"UpperCaseScheme", "HTTP://example.org/", false}),
    CaseName<HandlerCase>);

TEST_F(ShellExecHandlerTest, RelativeDocumentReachesTheHandlerWithItsFullPath) {
    const std::string docs = MakeFolder("doc");
    m_dir.Write("doc/FAQ_EN.txt", "faq");

    ASSERT_EQ(Open("FAQ_EN.txt", "", docs), kShellExecOk);

    const std::optional<Report> report = WaitForReport(m_dir, "report");
    ASSERT_TRUE(report.has_value());
    EXPECT_EQ(report->arguments, std::vector<std::string>{m_dir.File("doc/FAQ_EN.txt")});
}

TEST_F(ShellExecHandlerTest, TextsThatOnlyLookLikeAddressesAreFiles) {
    EXPECT_EQ(Open("C://Games/tarvolin.exe"), kSeErrPathNotFound);
    EXPECT_EQ(Open("1http://example.org/"), kSeErrPathNotFound);
    EXPECT_EQ(Open("see mailto:someone@example.org"), kSeErrFileNotFound);
}

TEST_F(ShellExecHandlerTest, AHandlerThatCannotRunMeansNoAssociation) {
    WriteExecutable(m_dir, "bin/xdg-open", "#!/nonexistent/interpreter\n");

    EXPECT_EQ(Open("mailto:someone@example.org"), kSeErrNoAssociation);
}

TEST_F(PosixPlatformTest, WithoutAHandlerOnPathDocumentsAndAddressesHaveNoAssociation) {
    const Restore path = SetPath(MakeFolder("empty"));
    m_dir.Write("notes.txt", "text");

    EXPECT_EQ(Open(m_dir.File("notes.txt")), kSeErrNoAssociation);
    EXPECT_EQ(Open("https://example.org/"), kSeErrNoAssociation);
}

}  // namespace
