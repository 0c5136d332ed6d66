#include "storage/cIni_Profile.h"

namespace {

// The key names are the settings file's own, "GRAPICPAK" included.
constexpr IniKey<bool> kLogMessages{"LOGMESSAGES", true};
constexpr IniKey<bool> kFreeplay{"FREEPLAY", true};
constexpr IniKey<bool> kUsePreDefinedResolution{"USESTANDARDRESOLUTION", true};
constexpr IniKey<int16_t> kPreDefinedResolution{"RESOLUTION", 1};
constexpr IniKey<int16_t> kResolutionWidth{"RES_WIDTH", 640};
constexpr IniKey<int16_t> kResolutionHeight{"RES_HEIGHT", 480};
constexpr IniKey<const char*> kScenarioPath{"SCENARIO", ""};
constexpr IniKey<const char*> kGraphicPakPath{"GRAPICPAK", ""};
constexpr IniKey<const char*> kTarvolinPath{"TARVOPATH", ""};
constexpr IniKey<const char*> kProfileDescription{"DESCRIPTION", ""};
constexpr IniKey<int16_t> kRefresh{"REFRESH", 1};

}  // namespace

cIni_Profile::cIni_Profile() : cIni_Base("cIni_Profile", "") {}

bool cIni_Profile::Read_LogMessages() const {
    return Read(kLogMessages, "Read_LogMessages");
}
void cIni_Profile::Write_LogMessages(bool value) const {
    Write(kLogMessages, value, "Write_LogMessages");
}
bool cIni_Profile::Read_Freeplay() const {
    return Read(kFreeplay, "Read_Freeplay");
}
void cIni_Profile::Write_Freeplay(bool value) const {
    Write(kFreeplay, value, "Write_Freeplay");
}
bool cIni_Profile::Read_UsePreDefinedResolution() const {
    return Read(kUsePreDefinedResolution, "Read_UsePreDefinedResolution");
}
void cIni_Profile::Write_UsePreDefinedResolution(bool value) const {
    Write(kUsePreDefinedResolution, value, "Write_UsePreDefinedResolution");
}
int16_t cIni_Profile::Read_PreDefinedResolution() const {
    return Read(kPreDefinedResolution, "Read_PreDefinedResolution");
}
void cIni_Profile::Write_PreDefinedResolution(int16_t value) const {
    Write(kPreDefinedResolution, value, "Write_PreDefinedResolution");
}
int16_t cIni_Profile::Read_ResolutionWidth() const {
    return Read(kResolutionWidth, "Read_ResolutionWidth");
}
void cIni_Profile::Write_ResolutionWidth(int16_t value) const {
    Write(kResolutionWidth, value, "Write_ResolutionWidth");
}
int16_t cIni_Profile::Read_ResolutionHeight() const {
    return Read(kResolutionHeight, "Read_ResolutionHeight");
}
void cIni_Profile::Write_ResolutionHeight(int16_t value) const {
    Write(kResolutionHeight, value, "Write_ResolutionHeight");
}
std::string cIni_Profile::Read_ScenarioPath() const {
    return Read(kScenarioPath, "Read_ScenarioPath");
}
void cIni_Profile::Write_ScenarioPath(const std::string& value) const {
    Write(kScenarioPath, value, "Write_ScenarioPath");
}
std::string cIni_Profile::Read_GraphicPakPath() const {
    return Read(kGraphicPakPath, "Read_GraphicPakPath");
}
void cIni_Profile::Write_GraphicPakPath(const std::string& value) const {
    Write(kGraphicPakPath, value, "Write_GraphicPakPath");
}
std::string cIni_Profile::Read_TarvolinPath() const {
    return Read(kTarvolinPath, "Read_TarvolinPath");
}
void cIni_Profile::Write_TarvolinPath(const std::string& value) const {
    Write(kTarvolinPath, value, "Write_TarvolinPath");
}
std::string cIni_Profile::Read_ProfileDescription() const {
    return Read(kProfileDescription, "Read_ProfileDescription");
}
void cIni_Profile::Write_ProfileDescription(const std::string& value) const {
    Write(kProfileDescription, value, "Write_ProfileDescription");
}
int16_t cIni_Profile::Read_Refresh() const {
    return Read(kRefresh, "Read_Refresh");
}
void cIni_Profile::Write_Refresh(int16_t value) const {
    Write(kRefresh, value, "Write_Refresh");
}
