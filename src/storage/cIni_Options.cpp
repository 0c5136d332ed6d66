#include "storage/cIni_Options.h"

#include "error/mError.h"

cIni_Options::cIni_Options() : cIni_Base("cIni_Options", "OPTIONS") {}

void cIni_Options::Write_Language(const std::string& value) const {
    mError::WithTrail("cIni_Options.Write_Language", [&] { WriteToIni("LANGUAGE", value); });
}

std::string cIni_Options::Read_Language() const {
    return mError::WithTrail("cIni_Options.Read_Language", [&] { return ReadFromIni("LANGUAGE", "EN"); });
}

void cIni_Options::Write_EditorPath(const std::string& value) const {
    mError::WithTrail("cIni_Options.Write_EditorPath", [&] { WriteToIni("EDITORPATH", value); });
}

std::string cIni_Options::Read_EditorPath() const {
    return mError::WithTrail("cIni_Options.Read_EditorPath", [&] { return ReadFromIni("EDITORPATH", ""); });
}

void cIni_Options::Write_ShowStartTarvolinDialog(bool value) const {
    mError::WithTrail("cIni_Options.Write_ShowStartTarvolinDialog",
                      [&] { WriteBoolToIni("STARTTARVOLINDIALOG", value); });
}

bool cIni_Options::Read_ShowStartTarvolinDialog() const {
    return mError::WithTrail("cIni_Options.Read_ShowStartTarvolinDialog",
                             [&] { return ReadBoolFromIni("STARTTARVOLINDIALOG", true); });
}
