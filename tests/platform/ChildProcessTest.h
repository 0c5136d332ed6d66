// The base of the tests that start real programs. Started programs are orphans by design; the test process
// adopts them for the duration of a test and reaps them afterwards, so that none is left behind. The test
// runs in its own folder, so a program started without a working directory writes nothing outside it.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>

#include "platform/ScopedEnvironment.h"
#include "platform/posix/PosixPlatform.h"
#include "support/TempDir.h"

class ChildProcessTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    int32_t Open(const std::string& file, const std::string& parameters = "",
                 const std::string& directory = "", const std::string& verb = "open");

    std::string MakeFolder(const std::string& name);

    // Writes `bytes` to `name` in the test's folder with execute permission; returns the full path.
    std::string WriteExecutable(const std::string& name, const std::string& bytes);

    TempDir m_dir;
    PosixPlatform m_platform;
    ScopedEnvironment m_environment;

private:
    std::filesystem::path m_savedCurrent;
    int m_wasSubreaper = 0;
};
