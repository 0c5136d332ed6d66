// The running marker as another program sees it: a lock file that cannot be locked exclusively while a
// launcher holds it, and can be once the launcher has ended.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <iterator>
#include <string>
#include <thread>

#include "platform/ChildProcessTest.h"
#include "platform/posix/RunningMarker.h"

namespace fs = std::filesystem;

namespace {

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

TEST_F(RunningMarkerTest, IsHeldWhileTheProcessRunsAndASecondCopyCreatesItAgain) {
    ASSERT_TRUE(m_platform.CreateNamedMutex(m_name));

    EXPECT_TRUE(SomeoneHolds(m_dir.File(m_name + ".lock")));
    EXPECT_TRUE(PosixPlatform().CreateNamedMutex(m_name));
}

TEST_F(RunningMarkerTest, WithoutARuntimeFolderItLivesInTmpPerUser) {
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
