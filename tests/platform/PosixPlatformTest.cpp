#include "platform/posix/PosixPlatform.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "platform/ChildProcessTest.h"

namespace fs = std::filesystem;

namespace {

// Standard input other than /dev/null, so that the started program's /dev/null is known to come from the
// launcher and not from whoever runs the tests.
class ScopedInput {
public:
    explicit ScopedInput(const std::string& file) : m_saved(dup(STDIN_FILENO)) {
        const int input = open(file.c_str(), O_RDONLY);
        dup2(input, STDIN_FILENO);
        close(input);
    }
    ~ScopedInput() {
        dup2(m_saved, STDIN_FILENO);
        close(m_saved);
    }
    ScopedInput(const ScopedInput&) = delete;
    ScopedInput& operator=(const ScopedInput&) = delete;

private:
    int m_saved;
};

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
    for (pid_t child = 0; children >> child;)
        count += ReadText("/proc/" + std::to_string(child) + "/comm") == self ? 1 : 0;
    return count;
}

using PosixPlatformTest = ChildProcessTest;

TEST_F(PosixPlatformTest, ProgramDirectoryIsTheFolderOfTheRunningExecutable) {
    EXPECT_EQ(m_platform.ProgramDirectory(), fs::canonical(program_invocation_name).parent_path().string());
}

TEST_F(PosixPlatformTest, StartsAnExecutableDetachedWithItsArgumentsAndWorkingDirectory) {
    const std::string program = WriteRecorder("game", "report");
    const std::string work = MakeFolder("work dir");
    const ScopedInput input(m_dir.Write("input", "typed"));

    ASSERT_EQ(Open(program, R"(-scenario "C:\my maps\a b.sve" -res 3 "" a\\\"b)", work), kShellExecOk);
    EXPECT_EQ(ChildrenNamedLikeThisProcess(), 0);

    const std::optional<Report> report = WaitForReport("report");
    ASSERT_TRUE(report.has_value());
    const std::vector<std::string> expected = {"-scenario", R"(C:\my maps\a b.sve)", "-res", "3", "",
                                               R"(a\"b)"};
    EXPECT_EQ(report->arguments, expected);
    EXPECT_EQ(report->directory, Canonical(work));
    EXPECT_EQ(report->input, "/dev/null");
    EXPECT_NE(report->session, std::to_string(getsid(0)));
}

TEST_F(PosixPlatformTest, RelativeFileIsLookedForInTheWorkingDirectory) {
    const std::string tools = MakeFolder("tools");
    WriteRecorder("tools/editor.exe", "report");

    ASSERT_EQ(Open("editor.exe", "", tools), kShellExecOk);

    const std::optional<Report> report = WaitForReport("report");
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
        EXPECT_TRUE(WaitForReport("report").has_value());
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

// A fake xdg-open first on PATH records what it was asked to open.
class ShellExecHandlerTest : public PosixPlatformTest {
protected:
    void SetUp() override {
        PosixPlatformTest::SetUp();
        WriteRecorder("bin/xdg-open", "report");
        m_environment.Set("PATH", PathWithFirst(MakeFolder("bin")));
    }
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
    MakeFolder("game folder.exe");
    const std::string work = MakeFolder("work");
    const std::string target = GetParam().inside ? m_dir.File(GetParam().target) : GetParam().target;

    ASSERT_EQ(Open(target, "ignored parameters", work), kShellExecOk);

    const std::optional<Report> report = WaitForReport("report");
    ASSERT_TRUE(report.has_value());
    EXPECT_EQ(report->arguments, std::vector<std::string>{target});
    EXPECT_EQ(report->directory, Canonical(work));
}

INSTANTIATE_TEST_SUITE_P(Targets, ShellExecHandlerTargetTest,
                         ::testing::Values(HandlerCase{"Document", "notes.txt", true},
                                           HandlerCase{"FolderNamedLikeAProgram", "game folder.exe", true},
                                           HandlerCase{"Mail", "mailto:someone@example.org", false},
                                           HandlerCase{"Web", "https://example.org/update.txt?a=1&b=2",
                                                       false},
                                           HandlerCase{"UpperCaseScheme", "HTTP://example.org/", false}),
                         CaseName<HandlerCase>);

TEST_F(ShellExecHandlerTest, RelativeDocumentReachesTheHandlerWithItsFullPath) {
    const std::string docs = MakeFolder("doc");
    m_dir.Write("doc/FAQ_EN.txt", "faq");

    ASSERT_EQ(Open("FAQ_EN.txt", "", docs), kShellExecOk);

    const std::optional<Report> report = WaitForReport("report");
    ASSERT_TRUE(report.has_value());
    EXPECT_EQ(report->arguments, std::vector<std::string>{m_dir.File("doc/FAQ_EN.txt")});
}

TEST_F(ShellExecHandlerTest, TextsThatOnlyLookLikeAddressesAreFiles) {
    EXPECT_EQ(Open("C://Games/tarvolin.exe"), kSeErrPathNotFound);
    EXPECT_EQ(Open("1http://example.org/"), kSeErrPathNotFound);
    EXPECT_EQ(Open("see mailto:someone@example.org"), kSeErrFileNotFound);
}

TEST_F(ShellExecHandlerTest, AHandlerThatCannotRunMeansNoAssociation) {
    WriteExecutable("bin/xdg-open", "#!/nonexistent/interpreter\n");

    EXPECT_EQ(Open("mailto:someone@example.org"), kSeErrNoAssociation);
}

TEST_F(PosixPlatformTest, WithoutAHandlerOnPathDocumentsAndAddressesHaveNoAssociation) {
    m_environment.Set("PATH", MakeFolder("empty"));
    m_dir.Write("notes.txt", "text");

    EXPECT_EQ(Open(m_dir.File("notes.txt")), kSeErrNoAssociation);
    EXPECT_EQ(Open("https://example.org/"), kSeErrNoAssociation);
}

}  // namespace
