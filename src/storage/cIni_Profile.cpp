#include "storage/cIni_Profile.h"

#include "base/mString.h"
#include "error/mError.h"

// The key names are the settings file's own, "GRAPICPAK" included.

cIni_Profile::cIni_Profile() : cIni_Base("cIni_Profile", "") {}

bool cIni_Profile::Read_LogMessages() const {
    return mError::WithTrail("cIni_Profile.Read_LogMessages",
                             [&] { return ReadBoolFromIni("LOGMESSAGES", true); });
}

void cIni_Profile::Write_LogMessages(bool value) const {
    mError::WithTrail("cIni_Profile.Write_LogMessages", [&] { WriteBoolToIni("LOGMESSAGES", value); });
}

bool cIni_Profile::Read_Freeplay() const {
    return mError::WithTrail("cIni_Profile.Read_Freeplay", [&] { return ReadBoolFromIni("FREEPLAY", true); });
}

void cIni_Profile::Write_Freeplay(bool value) const {
    mError::WithTrail("cIni_Profile.Write_Freeplay", [&] { WriteBoolToIni("FREEPLAY", value); });
}

bool cIni_Profile::Read_UsePreDefinedResolution() const {
    return mError::WithTrail("cIni_Profile.Read_UsePreDefinedResolution",
                             [&] { return ReadBoolFromIni("USESTANDARDRESOLUTION", true); });
}

void cIni_Profile::Write_UsePreDefinedResolution(bool value) const {
    mError::WithTrail("cIni_Profile.Write_UsePreDefinedResolution",
                      [&] { WriteBoolToIni("USESTANDARDRESOLUTION", value); });
}

int16_t cIni_Profile::Read_PreDefinedResolution() const {
    return mError::WithTrail("cIni_Profile.Read_PreDefinedResolution",
                             [&] { return mString::ToInt16(ReadIntegerFromIni("RESOLUTION", 1)); });
}

void cIni_Profile::Write_PreDefinedResolution(int16_t value) const {
    mError::WithTrail("cIni_Profile.Write_PreDefinedResolution",
                      [&] { WriteIntegerToIni("RESOLUTION", value); });
}

int16_t cIni_Profile::Read_ResolutionWidth() const {
    return mError::WithTrail("cIni_Profile.Read_ResolutionWidth",
                             [&] { return mString::ToInt16(ReadIntegerFromIni("RES_WIDTH", 640)); });
}

void cIni_Profile::Write_ResolutionWidth(int16_t value) const {
    mError::WithTrail("cIni_Profile.Write_ResolutionWidth", [&] { WriteIntegerToIni("RES_WIDTH", value); });
}

int16_t cIni_Profile::Read_ResolutionHeight() const {
    return mError::WithTrail("cIni_Profile.Read_ResolutionHeight",
                             [&] { return mString::ToInt16(ReadIntegerFromIni("RES_HEIGHT", 480)); });
}

void cIni_Profile::Write_ResolutionHeight(int16_t value) const {
    mError::WithTrail("cIni_Profile.Write_ResolutionHeight", [&] { WriteIntegerToIni("RES_HEIGHT", value); });
}

std::string cIni_Profile::Read_ScenarioPath() const {
    return mError::WithTrail("cIni_Profile.Read_ScenarioPath", [&] { return ReadFromIni("SCENARIO", ""); });
}

void cIni_Profile::Write_ScenarioPath(const std::string& value) const {
    mError::WithTrail("cIni_Profile.Write_ScenarioPath", [&] { WriteToIni("SCENARIO", value); });
}

std::string cIni_Profile::Read_GraphicPakPath() const {
    return mError::WithTrail("cIni_Profile.Read_GraphicPakPath",
                             [&] { return ReadFromIni("GRAPICPAK", ""); });
}

void cIni_Profile::Write_GraphicPakPath(const std::string& value) const {
    mError::WithTrail("cIni_Profile.Write_GraphicPakPath", [&] { WriteToIni("GRAPICPAK", value); });
}

std::string cIni_Profile::Read_TarvolinPath() const {
    return mError::WithTrail("cIni_Profile.Read_TarvolinPath", [&] { return ReadFromIni("TARVOPATH", ""); });
}

void cIni_Profile::Write_TarvolinPath(const std::string& value) const {
    mError::WithTrail("cIni_Profile.Write_TarvolinPath", [&] { WriteToIni("TARVOPATH", value); });
}

std::string cIni_Profile::Read_ProfileDescription() const {
    return mError::WithTrail("cIni_Profile.Read_ProfileDescription",
                             [&] { return ReadFromIni("DESCRIPTION", ""); });
}

void cIni_Profile::Write_ProfileDescription(const std::string& value) const {
    mError::WithTrail("cIni_Profile.Write_ProfileDescription", [&] { WriteToIni("DESCRIPTION", value); });
}

int16_t cIni_Profile::Read_Refresh() const {
    return mError::WithTrail("cIni_Profile.Read_Refresh",
                             [&] { return mString::ToInt16(ReadIntegerFromIni("REFRESH", 1)); });
}

void cIni_Profile::Write_Refresh(int16_t value) const {
    mError::WithTrail("cIni_Profile.Write_Refresh", [&] { WriteIntegerToIni("REFRESH", value); });
}
