#include "app/Options.h"

#include "base/mString.h"
#include "error/mError.h"

void Options::LoadData() try {
    iniFile::Load load = m_settings.BeginLoad();
    m_loaded = false;
    m_editorPath = m_settings.Read_EditorPath();
    m_language = m_settings.Read_Language();
    m_showStartTarvolinDialog = m_settings.Read_ShowStartTarvolinDialog();
    m_loaded = true;
} catch (...) {
    mError::PassOn("Options.LoadData");
}

platform::WriteFault Options::SaveData() try {
    iniFile::Update save = m_settings.BeginSave();
    m_settings.Write_EditorPath(m_editorPath);
    m_settings.Write_Language(m_language);
    m_settings.Write_ShowStartTarvolinDialog(m_showStartTarvolinDialog);
    const platform::WriteFault fault = save.Commit();
    if (fault == platform::WriteFault::None)
        m_dataChanged = false;
    return fault;
} catch (...) {
    mError::PassOn("Options.SaveData");
}

void Options::SetEditorPath(const std::string& value) {
    if (value == m_editorPath)
        return;
    m_editorPath = value;
    m_dataChanged = true;
}

std::string Options::Language() const {
    return mString::UCase(m_language);
}

void Options::SetLanguage(std::string& value) {
    value = mString::UCase(value);
    if (value == m_language)
        return;
    m_language = value;
    m_dataChanged = true;
}

void Options::SetShowStartTarvolinDialog(bool value) {
    if (value == m_showStartTarvolinDialog)
        return;
    m_showStartTarvolinDialog = value;
    m_dataChanged = true;
}
