// The built executable as a user's session meets it: started on the offscreen platform in a program folder
// of its own, told to end from outside, it ends normally and leaves its settings written.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QProcess>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

#include "support/TempDir.h"

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

// True once `pid` catches SIGTERM itself: from then on the request reaches the program.
bool CatchesTermination(qint64 pid) {
    std::ifstream status("/proc/" + std::to_string(pid) + "/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.rfind("SigCgt:", 0) == 0)
            return (std::stoull(line.substr(7), nullptr, 16) >> (SIGTERM - 1) & 1) != 0;
    }
    return false;
}

// Starts the built program in a folder of its own, with a game whose file it reads for the version line.
class ProgramSmokeTest : public ::testing::Test {
protected:
    ProgramSmokeTest() {
        fs::copy_file(PAVONEL_EXECUTABLE, program.Path() / "pavonel");
        fs::copy(fs::path(PAVONEL_SOURCE_DIR) / "config", program.Path() / "config");
    }

    // The test's own environment gives the program the offscreen platform.
    void Start() {
        pavonel.setProcessChannelMode(QProcess::ForwardedChannels);
        pavonel.start(QString::fromStdString((program.Path() / "pavonel").string()), {});
        ASSERT_TRUE(pavonel.waitForStarted());
        const auto end = std::chrono::steady_clock::now() + 30s;
        while (!CatchesTermination(pavonel.processId()) && std::chrono::steady_clock::now() < end)
            std::this_thread::sleep_for(20ms);
    }

    void EndsNormallyWhenTold() {
        pavonel.terminate();
        ASSERT_TRUE(pavonel.waitForFinished(10000));
        EXPECT_EQ(pavonel.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(pavonel.exitCode(), 0);
    }

    TempDir program;
    const std::string game = program.Write("game/tarvolin.exe", "MZ");
    QProcess pavonel;
};

// Told to end once its window exists (it has read the game's file for the version line by then), the
// program ends normally and leaves its settings written.
TEST_F(ProgramSmokeTest, StartsAndEndsNormallyWhenToldFromOutside) {
    program.Write("Pavonel.ini",
                  "[PROFILES]\r\nLASTACTIVEPROFILE=profile_A\r\n[profile_A]\r\nTARVOPATH=" + game + "\r\n");
    const int watch = inotify_init1(IN_CLOEXEC);
    ASSERT_GE(inotify_add_watch(watch, game.c_str(), IN_CLOSE_NOWRITE), 0);
    Start();
    inotify_event event{};
    ASSERT_GT(read(watch, &event, sizeof event), 0);
    close(watch);
    EndsNormallyWhenTold();
    const std::string settings = program.Read("Pavonel.ini");
    EXPECT_NE(settings.find("[APPLICATION]\r\nFILEVERSION=1.1\r\n"), std::string::npos) << settings;
    EXPECT_NE(settings.find("[OPTIONS]\r\nEDITORPATH=\r\nLANGUAGE=EN\r\n"), std::string::npos) << settings;
}

// A pipe in the settings file's place is not waited for, and a request to end, whenever it comes, ends the
// program normally: at once while it starts, after trying to save once its window exists.
TEST_F(ProgramSmokeTest, APipeAsTheSettingsFileNeverHoldsTheProgram) {
    ASSERT_EQ(mkfifo((program.Path() / "Pavonel.ini").c_str(), 0644), 0);
    Start();
    EndsNormallyWhenTold();
    EXPECT_TRUE(fs::is_fifo(program.Path() / "Pavonel.ini"));
}

}  // namespace
