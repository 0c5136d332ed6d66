// What the four settings companions share: one section of the settings file, whose path they ask the
// application object for on every access, and the generic typed reads and writes into it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "storage/iniFile.h"

class cIni_Base {
public:
    std::string ReadFromIni(std::string_view key, std::string_view defaultValue) const;
    void WriteToIni(std::string_view key, std::string_view value) const;
    bool ReadBoolFromIni(std::string_view key, bool defaultValue) const;
    void WriteBoolToIni(std::string_view key, bool value) const;

    // Opens one update of the settings file: an owner's save becomes a single write of the file.
    iniFile::Update BeginSave() const;
    // Opens one load of the settings file: an owner's reads check the file once.
    iniFile::Load BeginLoad() const;

protected:
    cIni_Base(std::string module, std::string section);

    // Reads an integer key as text (its default formatted as decimal); the key operation converts it.
    std::string ReadIntegerFromIni(std::string_view key, int16_t defaultValue) const;
    void WriteIntegerToIni(std::string_view key, int16_t value) const;

    void SetSection(std::string section) { m_section = std::move(section); }
    const std::string& Section() const { return m_section; }

    // "module.procedure", the name a procedure of this companion puts on a failure's trail.
    std::string Procedure(const char* name) const { return m_module + "." + name; }

private:
    // The settings file of the application object; absent when there is none.
    static std::optional<std::string> IniPath();

    std::string m_module;
    std::string m_section;
};
