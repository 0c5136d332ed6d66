// The base of the tests that start real programs through PosixPlatform. Started programs are orphans by
// design; the test process adopts them for the duration of a test and reaps them afterwards, so that none
// is left behind however the machine's init treats orphans.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/ScopedEnvironment.h"
#include "platform/posix/PosixPlatform.h"
#include "support/TempDir.h"

// What a recorder script found when it ran.
struct Report {
    std::string directory;  // pwd -P
    std::string input;      // what its standard input is
    std::string session;    // its session id
    std::vector<std::string> arguments;
};

// A path with every link resolved, as a started program's `pwd -P` reports it.
std::string Canonical(const std::filesystem::path& path);

class ChildProcessTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    int32_t Open(const std::string& file, const std::string& parameters = "",
                 const std::string& directory = "", const std::string& verb = "open");

    std::string MakeFolder(const std::string& name);

    // Writes `bytes` to `name` in the test's folder (making its folder) with execute permission; returns the
    // full path.
    std::string WriteExecutable(const std::string& name, const std::string& bytes);

    // A script `name` that writes its Report to `report` in the test's folder, one field a line and then its
    // arguments one a line, through a temporary file and a rename so that a report that exists is complete.
    // It finds its tools itself, so it runs whatever PATH it gets.
    std::string WriteRecorder(const std::string& name, const std::string& report);

    std::optional<Report> WaitForReport(const std::string& report) const;

    // The present PATH with `folder` in front.
    static std::string PathWithFirst(const std::string& folder);

    TempDir m_dir;
    PosixPlatform m_platform;
    ScopedEnvironment m_environment;

private:
    int m_wasSubreaper = 0;
};
