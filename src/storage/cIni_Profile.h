// One profile's section ("profile_" followed by its caption, or "PROFILE_DEFAULT"), named by its owner.
#pragma once

#include <cstdint>
#include <string>

#include "storage/cIni_Base.h"

class cIni_Profile : public cIni_Base {
public:
    cIni_Profile();

    void SetProfileName(const std::string& name) { SetSection(name); }
    const std::string& ProfileName() const { return Section(); }

    bool Read_LogMessages() const;
    void Write_LogMessages(bool value) const;
    bool Read_Freeplay() const;
    void Write_Freeplay(bool value) const;
    bool Read_UsePreDefinedResolution() const;
    void Write_UsePreDefinedResolution(bool value) const;
    int16_t Read_PreDefinedResolution() const;
    void Write_PreDefinedResolution(int16_t value) const;
    int16_t Read_ResolutionWidth() const;
    void Write_ResolutionWidth(int16_t value) const;
    int16_t Read_ResolutionHeight() const;
    void Write_ResolutionHeight(int16_t value) const;
    std::string Read_ScenarioPath() const;
    void Write_ScenarioPath(const std::string& value) const;
    std::string Read_GraphicPakPath() const;
    void Write_GraphicPakPath(const std::string& value) const;
    std::string Read_TarvolinPath() const;
    void Write_TarvolinPath(const std::string& value) const;
    std::string Read_ProfileDescription() const;
    void Write_ProfileDescription(const std::string& value) const;
    int16_t Read_Refresh() const;
    void Write_Refresh(int16_t value) const;

    using cIni_Base::ReadIntegerFromIni;
    using cIni_Base::WriteIntegerToIni;
};
