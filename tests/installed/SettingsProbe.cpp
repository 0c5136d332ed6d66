// The program's start as far as its files go, for checking an installed copy without its windows: run from
// the program's folder, it finds its settings file and texts as the program does, saves the program's own
// settings and prints the settings file and the language folder, one a line.
// Exit status 0 once the settings are saved and the English language file was found, else 1.
#include <cstdio>
#include <memory>
#include <string>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/mPath.h"
#include "translate/cTranslate.h"

int main() {
    g_cApp = std::make_unique<Application>();
    g_cTranslate = std::make_unique<cTranslate>();
    const bool texts = mPath::FileExists(g_cApp->GetLanguageDirectory() + "LNG_EN.ini");
    const bool saved = g_cApp->SaveAppSettings() == platform::WriteFault::None;
    std::printf("%s\n%s\n", g_cApp->IniPath().c_str(), g_cApp->GetLanguageDirectory().c_str());
    return texts && saved ? 0 : 1;
}
