#include "app/ErrorReport.h"

#include <filesystem>
#include <system_error>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/mMain.h"
#include "base/mString.h"
#include "platform/NativePath.h"
#include "platform/Platform.h"

namespace {

using mString::kCrLf;

struct Context {
    std::string iniPath;
    std::string gameVersion;
    std::string gamePath;
};

Context GatherContext() {
    if (!g_cApp)
        return {"(g_cApp not defined)", "(g_cApp not defined)", "(g_cApp not defined)"};
    const Profile* active = g_cApp->ActiveProfile();
    if (active == nullptr)
        return {g_cApp->IniPath(), "(g_cApp.ActiveProfile not defined)",
                "(g_cApp.ActiveProfile not defined)"};
    const std::string& gamePath = active->TarvolinPath();
    return {g_cApp->IniPath(), mMain::GetTarvolinFile_VersionInfo(gamePath), gamePath};
}

std::string CurrentDirectory() {
    std::error_code ignored;
    return platform::TextOf(std::filesystem::current_path(ignored));
}

}  // namespace

int32_t PlainErrorNumber(int32_t number) {
    return number & 0x7FFBFFFF;
}

ErrorReport ComposeErrorReport(const Failure& failure) {
    Context context = GatherContext();
    std::string text;
    text += "Pavonel-Version: " + Application::VersionText() + kCrLf + kCrLf;
    text += "Description:" + std::string(kCrLf) + failure.Description() + kCrLf + kCrLf;
    text += "Err.-Number: " + std::to_string(failure.Number()) + " (" +
            std::to_string(PlainErrorNumber(failure.Number())) + ")" + kCrLf + kCrLf;
    text += "Err.-Source: " + std::string(kCrLf) + failure.Source() + kCrLf + kCrLf;
    text += "App-Path: " + Os().ProgramDirectory() + kCrLf;
    text += "Cur.Path: " + CurrentDirectory() + kCrLf;
    text += "Ini.Path: " + context.iniPath + kCrLf + kCrLf;
    text += "Tarvolin-Version: " + context.gameVersion + kCrLf;
    text += "Tarvolin-Path: " + context.gamePath;
    return ErrorReport{failure.Number(), failure.Description(), failure.Source(), text};
}

void ShowErrorReport(const Failure& failure) {
    Ui().ShowErrorReport(ComposeErrorReport(failure));
}
