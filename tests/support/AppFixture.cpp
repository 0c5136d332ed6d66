#include "support/AppFixture.h"

#include <filesystem>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "platform/NativePath.h"
#include "storage/IniStore.h"
#include "storage/iniFile.h"
#include "translate/cTranslate.h"

AppFixture::AppFixture() : platform(platform::TextOf(dir.Path())) {
    iniFile::Store().Clear();
    InstallPlatform(&platform);
    InstallUserInterface(&ui);
    std::filesystem::create_directory(dir.Path() / "config");
    std::filesystem::create_directory(dir.Path() / "doc");
    for (const char* language : {"LNG_EN.ini", "LNG_DE.ini"}) {
        std::filesystem::copy_file(std::filesystem::path(PAVONEL_SOURCE_DIR) / "config" / language,
                                   dir.Path() / "config" / language);
    }
    g_cApp = std::make_unique<Application>();
    g_cTranslate = std::make_unique<cTranslate>();
}

AppFixture::~AppFixture() {
    g_cTranslate.reset();
    g_cApp.reset();
    InstallUserInterface(nullptr);
    InstallPlatform(nullptr);
    iniFile::Store().Clear();
}

void AppFixture::WriteIni(const std::string& content) const {
    dir.Write("Pavonel.ini", content);
}

std::string AppFixture::ReadIni() const {
    return dir.Read("Pavonel.ini");
}

void AppFixture::WriteLanguage(const std::string& abbrev, const std::string& content) const {
    dir.Write("config/LNG_" + abbrev + ".ini", content);
}

void AppFixture::UseLanguage(std::string abbrev) {
    g_cApp->Options().SetLanguage(abbrev);
}
