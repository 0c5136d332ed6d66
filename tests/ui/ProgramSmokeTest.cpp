// The built executable as a user's session meets it: started on the offscreen platform in a program folder
// of its own, told to end from outside, it ends normally and leaves its settings written.
#include <gtest/gtest.h>
#include <signal.h>

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

// The test's own environment gives the program the offscreen platform.
TEST(ProgramSmokeTest, StartsAndEndsNormallyWhenToldFromOutside) {
    TempDir program;
    fs::copy_file(PAVONEL_EXECUTABLE, program.Path() / "pavonel");
    fs::copy(fs::path(PAVONEL_SOURCE_DIR) / "config", program.Path() / "config");
    const std::string game = program.Write("game/tarvolin.exe", "MZ");
    program.Write("Pavonel.ini",
                  "[PROFILES]\r\nLASTACTIVEPROFILE=profile_A\r\n[profile_A]\r\nTARVOPATH=" + game + "\r\n");
    QProcess pavonel;
    pavonel.setProcessChannelMode(QProcess::ForwardedChannels);
    pavonel.start(QString::fromStdString((program.Path() / "pavonel").string()), {});
    ASSERT_TRUE(pavonel.waitForStarted());
    const auto end = std::chrono::steady_clock::now() + 30s;
    while (!CatchesTermination(pavonel.processId()) && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(20ms);
    pavonel.terminate();
    ASSERT_TRUE(pavonel.waitForFinished(30000));
    EXPECT_EQ(pavonel.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(pavonel.exitCode(), 0);
    const std::string settings = program.Read("Pavonel.ini");
    EXPECT_NE(settings.find("[APPLICATION]\r\nFILEVERSION=1.1\r\n"), std::string::npos) << settings;
    EXPECT_NE(settings.find("[OPTIONS]\r\nEDITORPATH=\r\nLANGUAGE=EN\r\n"), std::string::npos) << settings;
}

}  // namespace
