#include "storage/cIni_Application.h"

#include "error/mError.h"

cIni_Application::cIni_Application() : cIni_Base("cIni_Application", "APPLICATION") {}

std::string cIni_Application::Read_FileVersion() const {
    return mError::WithTrail("cIni_Application.Read_FileVersion",
                             [&] { return ReadFromIni("FILEVERSION", "1"); });
}

void cIni_Application::Write_FileVersion(const std::string& value) const {
    mError::WithTrail("cIni_Application.Write_FileVersion", [&] { WriteToIni("FILEVERSION", value); });
}

std::string cIni_Application::Read_AppVersion() const {
    return mError::WithTrail("cIni_Application.Read_AppVersion",
                             [&] { return ReadFromIni("APPVERSION", "1"); });
}

void cIni_Application::Write_AppVersion(const std::string& value) const {
    mError::WithTrail("cIni_Application.Write_AppVersion", [&] { WriteToIni("APPVERSION", value); });
}
