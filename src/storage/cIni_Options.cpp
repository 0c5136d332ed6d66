#include "storage/cIni_Options.h"

namespace {

constexpr IniKey<const char*> kLanguage{"LANGUAGE", "EN"};
constexpr IniKey<const char*> kEditorPath{"EDITORPATH", ""};
constexpr IniKey<bool> kShowStartTarvolinDialog{"STARTTARVOLINDIALOG", true};

}  // namespace

cIni_Options::cIni_Options() : cIni_Base("cIni_Options", "OPTIONS") {}

void cIni_Options::Write_Language(const std::string& value) const {
    Write(kLanguage, value, "Write_Language");
}
std::string cIni_Options::Read_Language() const {
    return Read(kLanguage, "Read_Language");
}
void cIni_Options::Write_EditorPath(const std::string& value) const {
    Write(kEditorPath, value, "Write_EditorPath");
}
std::string cIni_Options::Read_EditorPath() const {
    return Read(kEditorPath, "Read_EditorPath");
}
void cIni_Options::Write_ShowStartTarvolinDialog(bool value) const {
    Write(kShowStartTarvolinDialog, value, "Write_ShowStartTarvolinDialog");
}
bool cIni_Options::Read_ShowStartTarvolinDialog() const {
    return Read(kShowStartTarvolinDialog, "Read_ShowStartTarvolinDialog");
}
