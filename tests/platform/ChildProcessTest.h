// The base of the tests that start real programs. Started programs are orphans by design; the test process
// adopts them for the duration of a test and reaps them afterwards, so that none is left behind. The test
// runs in its own folder, so a program started without a working directory writes nothing outside it.
#pragma once

#include <gtest/gtest.h>
#include <sys/prctl.h>
#include <sys/wait.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>
#include <thread>

#include "platform/ScopedEnvironment.h"
#include "platform/posix/PosixPlatform.h"
#include "support/TempDir.h"

class ChildProcessTest : public ::testing::Test {
protected:
    void SetUp() override {
        prctl(PR_GET_CHILD_SUBREAPER, &m_wasSubreaper);
        prctl(PR_SET_CHILD_SUBREAPER, 1);
        m_savedCurrent = std::filesystem::current_path();
        std::filesystem::current_path(m_dir.Path());
        // Wine only where a test puts it on PATH, also on a machine that has Debian's own.
        m_platform.SetWineCandidates({"wine", "wine64"});
        m_platform.SetTrustMarking(false);
    }

    void TearDown() override {
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
        for (pid_t pid = 0; pid >= 0 && std::chrono::steady_clock::now() < deadline;) {
            pid = waitpid(-1, nullptr, WNOHANG);
            if (pid == 0)
                std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        prctl(PR_SET_CHILD_SUBREAPER, m_wasSubreaper);
        std::error_code ignored;
        std::filesystem::current_path(m_savedCurrent, ignored);
    }

    int32_t Open(const std::string& file, const std::string& parameters = "",
                 const std::string& directory = "", const std::string& verb = "open") {
        return m_platform.ShellExec(0, verb, file, parameters, directory, kSwShowNormal);
    }

    // Writes `bytes` to `name` in the test's folder with execute permission; returns the full path.
    std::string WriteExecutable(const std::string& name, const std::string& bytes) {
        const std::string path = m_dir.Write(name, bytes);
        std::filesystem::permissions(path, std::filesystem::perms::owner_all,
                                     std::filesystem::perm_options::add);
        return path;
    }

    // A `wine` first on PATH that records its WINEPREFIX, its folder and its arguments, one a line.
    void InstallRecordingWine() {
        WriteExecutable("bin/wine",
                        "#!/bin/sh\nprintf '%s\\n' \"$WINEPREFIX\" \"$PWD\" \"$@\" > \"$0.tmp\"\n"
                        "mv \"$0.tmp\" \"$0.record\"\n");
        m_environment.Set("PATH", m_dir.File("bin") + ":/usr/bin:/bin");
    }

    // What the recording Wine wrote at its last start (waiting up to 5 s for it), and forgets it.
    std::string TakeWineRecord() {
        const std::string record = m_dir.File("bin/wine.record");
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
        while (!std::filesystem::exists(record) && std::chrono::steady_clock::now() < deadline)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        const std::string text = m_dir.Read("bin/wine.record");
        std::filesystem::remove(record);
        return text;
    }

    TempDir m_dir;
    PosixPlatform m_platform;
    ScopedEnvironment m_environment;

private:
    std::filesystem::path m_savedCurrent;
    int m_wasSubreaper = 0;
};
