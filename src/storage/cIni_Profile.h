// One profile's section ("profile_" followed by its caption, or "PROFILE_DEFAULT"), named by its owner. The
// profile's settings are declared with their keys, defaults and trail names in profiles/ProfileSettings.h;
// each is read and written here under this companion's name on a failure's trail.
#pragma once

#include <cstdint>
#include <string>

#include "storage/cIni_Base.h"

class cIni_Profile : public cIni_Base {
public:
    cIni_Profile();

    void SetProfileName(const std::string& name) { SetSection(name); }
    const std::string& ProfileName() const { return Section(); }

    using cIni_Base::Read;
    using cIni_Base::ReadIntegerFromIni;
    using cIni_Base::Write;
    using cIni_Base::WriteIntegerToIni;
};
