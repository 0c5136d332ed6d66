// The program-wide settings that belong to no profile: the text editor for the game's log file, the
// language of the user interface, and whether a start of the game is confirmed first.
#pragma once

#include <string>

#include "storage/cIni_Options.h"

class Options {
public:
    bool DataChanged() const { return m_dataChanged; }
    void SetDataChanged(bool value) { m_dataChanged = value; }

    // Reads the three settings straight into the fields: the language keeps the case it is stored in and
    // nothing counts as changed.
    void LoadData();

    // Writes the three settings as one update of the settings file and says why they did not reach it; they
    // then stay changed.
    platform::WriteFault SaveData();

    const std::string& EditorPath() const { return m_editorPath; }
    void SetEditorPath(const std::string& value);

    // The language abbreviation, always in upper case. The setter upper-cases the caller's text too.
    std::string Language() const;
    void SetLanguage(std::string& value);

    bool ShowStartTarvolinDialog() const { return m_showStartTarvolinDialog; }
    void SetShowStartTarvolinDialog(bool value);

private:
    bool m_dataChanged = false;
    cIni_Options m_settings;
    std::string m_editorPath;
    bool m_showStartTarvolinDialog = true;
    bool m_loaded = false;
    std::string m_language;
};
