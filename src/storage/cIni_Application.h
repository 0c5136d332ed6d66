// The "APPLICATION" section: which file format and program version wrote the settings file.
#pragma once

#include <string>

#include "storage/cIni_Base.h"

class cIni_Application : public cIni_Base {
public:
    cIni_Application();

    std::string Read_FileVersion() const;
    void Write_FileVersion(const std::string& value) const;
    std::string Read_AppVersion() const;
    void Write_AppVersion(const std::string& value) const;
};
