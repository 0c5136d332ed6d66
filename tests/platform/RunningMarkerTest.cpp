// The running marker as another program sees it: a lock file that cannot be locked exclusively while a
// launcher holds it, and can be once every launcher has ended, however it ended.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "platform/ChildProcessTest.h"
#include "platform/posix/RunningMarker.h"

namespace fs = std::filesystem;

namespace {

// Unique per test and per run, so that tests never meet a lock left by another one.
std::string UniqueName() {
    static int counter = 0;
    return "PavonelTest_" + std::to_string(getpid()) + "_" + std::to_string(++counter);
}

// What an installer does: try an exclusive lock without waiting, and let it go at once.
bool SomeoneHolds(const std::string& path) {
    const int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return false;
    const bool held = flock(fd, LOCK_EX | LOCK_NB) != 0;
    close(fd);
    return held;
}

// Child processes stand for other copies of the launcher; the fixture reaps them and whatever they start.
class RunningMarkerTest : public ChildProcessTest {
protected:
    void SetUp() override {
        ChildProcessTest::SetUp();
        m_environment.Set("XDG_RUNTIME_DIR", m_dir.Path().string());
    }

    std::string Path() const { return platform::RunningMarkerPath(m_name); }

    const std::string m_name = UniqueName();
};

TEST_F(RunningMarkerTest, IsHeldWhileTheProcessRuns) {
    EXPECT_FALSE(SomeoneHolds(Path()));

    ASSERT_TRUE(m_platform.CreateNamedMutex(m_name));

    EXPECT_EQ(Path(), m_dir.File(m_name + ".lock"));
    EXPECT_TRUE(SomeoneHolds(Path()));
}

TEST_F(RunningMarkerTest, ASecondCopyCreatesItAgain) {
    ASSERT_TRUE(m_platform.CreateNamedMutex(m_name));

    EXPECT_TRUE(PosixPlatform().CreateNamedMutex(m_name));
    EXPECT_TRUE(SomeoneHolds(Path()));
}

TEST_F(RunningMarkerTest, TheDocumentedCommandSeesIt) {
    if (std::system("command -v flock > /dev/null") != 0)
        GTEST_SKIP() << "flock(1) is not installed";
    const std::string test = "flock -n -x '" + Path() + "' true";
    ASSERT_TRUE(m_platform.CreateNamedMutex(m_name));

    EXPECT_NE(std::system(test.c_str()), 0);
}

TEST_F(RunningMarkerTest, WithoutARuntimeFolderItLivesInTmpPerUser) {
    const std::string expected = "/tmp/" + m_name + "-" + std::to_string(getuid()) + ".lock";
    for (const char* runtime : {"", "relative/run", "/nonexistent/run"}) {
        m_environment.Set("XDG_RUNTIME_DIR", runtime);
        EXPECT_EQ(Path(), expected) << runtime;
    }
    m_environment.Unset("XDG_RUNTIME_DIR");
    EXPECT_EQ(Path(), expected);

    ASSERT_TRUE(m_platform.CreateNamedMutex(m_name));
    EXPECT_TRUE(SomeoneHolds(expected));
    fs::remove(expected);
}

TEST_F(RunningMarkerTest, ANameThatCannotBeAFileIsRefused) {
    for (const std::string& name : {std::string(), std::string("."), std::string(".."),
                                    std::string("Pavonel/MTX"), std::string("Pavonel\0MTX", 11)}) {
        EXPECT_FALSE(m_platform.CreateNamedMutex(name)) << name;
    }
    EXPECT_TRUE(fs::is_empty(m_dir.Path()));
}

TEST_F(RunningMarkerTest, AMarkerThatCannotBeCreatedIsReported) {
    fs::create_directory(m_dir.File(m_name + ".lock"));

    EXPECT_FALSE(m_platform.CreateNamedMutex(m_name));
}

// A launcher in a child process, ended by `end` once the marker is seen held.
class RunningMarkerEndTest : public RunningMarkerTest, public ::testing::WithParamInterface<int> {};

TEST_P(RunningMarkerEndTest, EndsWithTheProcess) {
    int ready[2];
    int go[2];
    ASSERT_EQ(pipe(ready), 0);
    ASSERT_EQ(pipe(go), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        close(go[1]);
        const char created = platform::HoldRunningMarker(m_name) ? 'y' : 'n';
        char nothing = 0;
        const bool told = write(ready[1], &created, 1) == 1 && read(go[0], &nothing, 1) >= 0;
        _exit(told ? 0 : 1);
    }
    char created = 0;
    ASSERT_EQ(read(ready[0], &created, 1), 1);
    EXPECT_EQ(created, 'y');
    EXPECT_TRUE(SomeoneHolds(Path()));

    if (GetParam() != 0)
        kill(child, GetParam());
    close(go[1]);  // the end of file lets a child that was not signalled end by itself
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    EXPECT_FALSE(SomeoneHolds(Path()));
    for (const int fd : {ready[0], ready[1], go[0]})
        close(fd);
}

INSTANTIATE_TEST_SUITE_P(Ends, RunningMarkerEndTest, ::testing::Values(0, SIGKILL, SIGTERM),
                         [](const ::testing::TestParamInfo<int>& info) {
                             return info.param == 0 ? std::string("NormalExit")
                                                    : "Signal" + std::to_string(info.param);
                         });

// The game outlives the launcher that started it, and must not keep the marker alive.
TEST_F(RunningMarkerTest, AProgramItStartsDoesNotInheritIt) {
    int done[2];
    ASSERT_EQ(pipe2(done, O_CLOEXEC), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        const pid_t program = platform::HoldRunningMarker(m_name) ? fork() : -1;
        if (program == 0) {
            execl("/bin/sleep", "sleep", "10", static_cast<char*>(nullptr));
            _exit(1);
        }
        _exit(write(done[1], &program, sizeof program) == sizeof program ? 0 : 1);
    }
    close(done[1]);
    pid_t program = -1;
    ASSERT_EQ(read(done[0], &program, sizeof program), static_cast<ssize_t>(sizeof program));
    ASSERT_GT(program, 0);
    char nothing = 0;
    // End of file once the launcher has ended and the program has gone through exec.
    EXPECT_EQ(read(done[0], &nothing, 1), 0);
    close(done[0]);
    ASSERT_EQ(waitpid(child, nullptr, 0), child);

    EXPECT_EQ(kill(program, 0), 0);
    EXPECT_FALSE(SomeoneHolds(Path()));
    kill(program, SIGKILL);
}

}  // namespace
