#include "storage/cIni_Application.h"

namespace {

constexpr IniKey<const char*> kFileVersion{"FILEVERSION", "1"};
constexpr IniKey<const char*> kAppVersion{"APPVERSION", "1"};

}  // namespace

cIni_Application::cIni_Application() : cIni_Base("cIni_Application", "APPLICATION") {}

std::string cIni_Application::Read_FileVersion() const {
    return Read(kFileVersion, "Read_FileVersion");
}
void cIni_Application::Write_FileVersion(const std::string& value) const {
    Write(kFileVersion, value, "Write_FileVersion");
}
std::string cIni_Application::Read_AppVersion() const {
    return Read(kAppVersion, "Read_AppVersion");
}
void cIni_Application::Write_AppVersion(const std::string& value) const {
    Write(kAppVersion, value, "Write_AppVersion");
}
