// The built executable as a user's session meets it: started on the offscreen platform in a program folder
// of its own, told to end from outside, it ends normally and leaves its settings written.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include "support/TempDir.h"

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

// True once `pid` catches SIGTERM itself: from then on the request reaches the program.
bool CatchesTermination(pid_t pid) {
    std::ifstream status("/proc/" + std::to_string(pid) + "/status");
    std::string line;
    while (std::getline(status, line)) {
        if (line.rfind("SigCgt:", 0) == 0)
            return (std::stoull(line.substr(7), nullptr, 16) >> (SIGTERM - 1) & 1) != 0;
    }
    return false;
}

// The exit status of `pid`, or -1 when it has not ended within `limit` (it is then killed).
int WaitForExit(pid_t pid, std::chrono::seconds limit) {
    const auto end = std::chrono::steady_clock::now() + limit;
    int status = 0;
    while (waitpid(pid, &status, WNOHANG) == 0) {
        if (std::chrono::steady_clock::now() > end) {
            kill(pid, SIGKILL);
            waitpid(pid, &status, 0);
            return -1;
        }
        std::this_thread::sleep_for(20ms);
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(ProgramSmokeTest, StartsAndEndsNormallyWhenToldFromOutside) {
    TempDir program;
    fs::copy_file(PAVONEL_EXECUTABLE, program.Path() / "pavonel");
    fs::copy(fs::path(PAVONEL_SOURCE_DIR) / "config", program.Path() / "config");
    const std::string game = program.Write("game/tarvolin.exe", "MZ");
    program.Write("Pavonel.ini",
                  "[PROFILES]\r\nLASTACTIVEPROFILE=profile_A\r\n[profile_A]\r\nTARVOPATH=" + game + "\r\n");
    const std::string executable = (program.Path() / "pavonel").string();
    const pid_t pid = fork();
    ASSERT_GE(pid, 0);
    if (pid == 0) {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        execl(executable.c_str(), executable.c_str(), nullptr);
        _exit(127);
    }
    const auto end = std::chrono::steady_clock::now() + 30s;
    while (!CatchesTermination(pid) && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(20ms);
    kill(pid, SIGTERM);
    EXPECT_EQ(WaitForExit(pid, 30s), 0);
    const std::string settings = program.Read("Pavonel.ini");
    EXPECT_NE(settings.find("[APPLICATION]\r\nFILEVERSION=1.1\r\n"), std::string::npos) << settings;
    EXPECT_NE(settings.find("[OPTIONS]\r\nEDITORPATH=\r\nLANGUAGE=EN\r\n"), std::string::npos) << settings;
}

}  // namespace
