#include "storage/cIni_Profiles.h"

#include "error/mError.h"

cIni_Profiles::cIni_Profiles() : cIni_Base("cIni_Profiles", "PROFILES") {}

void cIni_Profiles::Write_ActiveProfileName(const std::string& value) const {
    mError::WithTrail("cIni_Profiles.Write_ActiveProfileName",
                      [&] { WriteToIni("LASTACTIVEPROFILE", value); });
}

std::string cIni_Profiles::Read_ActiveProfileName() const {
    // The default is the standard profile's fixed section name, never a translation.
    return mError::WithTrail("cIni_Profiles.Read_ActiveProfileName",
                             [&] { return ReadFromIni("LASTACTIVEPROFILE", "PROFILE_DEFAULT"); });
}
