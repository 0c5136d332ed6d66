#include "storage/cIni_Profiles.h"

namespace {

// The default is the standard profile's fixed section name, never a translation.
constexpr IniKey<const char*> kActiveProfileName{"LASTACTIVEPROFILE", "PROFILE_DEFAULT"};

}  // namespace

cIni_Profiles::cIni_Profiles() : cIni_Base("cIni_Profiles", "PROFILES") {}

void cIni_Profiles::Write_ActiveProfileName(const std::string& value) const {
    Write(kActiveProfileName, value, "Write_ActiveProfileName");
}

std::string cIni_Profiles::Read_ActiveProfileName() const {
    return Read(kActiveProfileName, "Read_ActiveProfileName");
}
