// The "OPTIONS" section: the program-wide options.
#pragma once

#include <string>

#include "storage/cIni_Base.h"

class cIni_Options : public cIni_Base {
public:
    cIni_Options();

    void Write_Language(const std::string& value) const;
    std::string Read_Language() const;
    void Write_EditorPath(const std::string& value) const;
    std::string Read_EditorPath() const;
    void Write_ShowStartTarvolinDialog(bool value) const;
    bool Read_ShowStartTarvolinDialog() const;
};
