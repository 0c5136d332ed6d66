// The "PROFILES" section: which profile was active when the program last ended.
#pragma once

#include <string>

#include "storage/cIni_Base.h"

class cIni_Profiles : public cIni_Base {
public:
    cIni_Profiles();

    void Write_ActiveProfileName(const std::string& value) const;
    std::string Read_ActiveProfileName() const;
};
