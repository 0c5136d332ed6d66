// Every setting a profile keeps in its section of the settings file, declared once: its place among the
// profile's values, its key and type, the value a read gives when the key is missing, the value a profile
// made in the program starts with, and the names its reads and writes carry on a failure's trail. The two
// defaults differ on purpose: a section without the key reads as the file format has always said (free
// play on, resolution 1), while a new profile starts as most players play (free play off, 800 x 600).
// Loading, saving, the change tracking and the companion's reads and writes all run over this table.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>

#include "storage/cIni_Base.h"

// How a setting of type T is declared: texts as constant character strings.
template <class T>
struct DeclaredAs {
    using type = T;
};
template <>
struct DeclaredAs<std::string> {
    using type = const char*;
};

template <class T>
struct ProfileSetting {
    std::size_t index;
    IniKey<typename DeclaredAs<T>::type> key;
    typename DeclaredAs<T>::type newProfile;
    const char* readTrail;
    const char* writeTrail;
};

namespace ProfileSettings {

// The key names are the settings file's own, "GRAPICPAK" included.
inline constexpr ProfileSetting<bool> kLogMessages{
    0, {"LOGMESSAGES", true}, true, "Read_LogMessages", "Write_LogMessages"};
inline constexpr ProfileSetting<bool> kFreeplay{
    1, {"FREEPLAY", true}, false, "Read_Freeplay", "Write_Freeplay"};
inline constexpr ProfileSetting<bool> kUsePreDefinedResolution{2,
                                                               {"USESTANDARDRESOLUTION", true},
                                                               true,
                                                               "Read_UsePreDefinedResolution",
                                                               "Write_UsePreDefinedResolution"};
inline constexpr ProfileSetting<int16_t> kPreDefinedResolution{
    3, {"RESOLUTION", 1}, 2, "Read_PreDefinedResolution", "Write_PreDefinedResolution"};
inline constexpr ProfileSetting<int16_t> kResolutionWidth{
    4, {"RES_WIDTH", 640}, 640, "Read_ResolutionWidth", "Write_ResolutionWidth"};
inline constexpr ProfileSetting<int16_t> kResolutionHeight{
    5, {"RES_HEIGHT", 480}, 480, "Read_ResolutionHeight", "Write_ResolutionHeight"};
inline constexpr ProfileSetting<std::string> kScenarioPath{
    6, {"SCENARIO", ""}, "", "Read_ScenarioPath", "Write_ScenarioPath"};
inline constexpr ProfileSetting<std::string> kGraphicPakPath{
    7, {"GRAPICPAK", ""}, "", "Read_GraphicPakPath", "Write_GraphicPakPath"};
inline constexpr ProfileSetting<int16_t> kRefresh{8, {"REFRESH", 1}, 1, "Read_Refresh", "Write_Refresh"};
inline constexpr ProfileSetting<std::string> kTarvolinPath{
    9, {"TARVOPATH", ""}, "", "Read_TarvolinPath", "Write_TarvolinPath"};
inline constexpr ProfileSetting<std::string> kProfileDescription{
    10, {"DESCRIPTION", ""}, "", "Read_ProfileDescription", "Write_ProfileDescription"};

using Any = std::variant<const ProfileSetting<bool>*, const ProfileSetting<int16_t>*,
                         const ProfileSetting<std::string>*>;
using Value = std::variant<bool, int16_t, std::string>;

// Every setting, in the order a profile reads and writes them.
inline constexpr std::array<Any, 11> kAll{
    &kLogMessages,          &kFreeplay,          &kUsePreDefinedResolution,
    &kPreDefinedResolution, &kResolutionWidth,   &kResolutionHeight,
    &kScenarioPath,         &kGraphicPakPath,    &kRefresh,
    &kTarvolinPath,         &kProfileDescription};

constexpr bool EachStandsAtItsIndex() {
    for (std::size_t i = 0; i < kAll.size(); ++i) {
        if (std::visit([](const auto* setting) { return setting->index; }, kAll[i]) != i)
            return false;
    }
    return true;
}
static_assert(EachStandsAtItsIndex(), "a setting's index is its place in kAll");

using Values = std::array<Value, kAll.size()>;

// The values a profile made in the program starts with.
Values NewProfileValues();

}  // namespace ProfileSettings
