// The test fixture for everything above the storage engine: a fresh program folder with the shipped
// language files, recording fakes for the user interface and the platform, and the two program-wide
// objects created on it.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "support/FakePlatform.h"
#include "support/FakeUserInterface.h"
#include "support/TempDir.h"

class AppFixture : public ::testing::Test {
protected:
    AppFixture();
    ~AppFixture() override;

    // Writes the settings file Pavonel.ini of the program folder.
    void WriteIni(const std::string& content) const;
    std::string ReadIni() const;

    // Chooses the language of the texts, as the language menu does.
    static void UseLanguage(std::string abbrev);

    // Writes config/LNG_<abbrev>.ini of the program folder.
    void WriteLanguage(const std::string& abbrev, const std::string& content) const;

    TempDir dir;
    FakePlatform platform;
    FakeUserInterface ui;
};
