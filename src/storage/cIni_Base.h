// What the four settings companions share: one section of the settings file, whose path they ask the
// installed path source for on every access, and the generic typed reads and writes into it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "storage/iniFile.h"

// One key of a section, declared once: its name in the file, its type, and the default a read gives when
// the key is missing. Text keys have `const char*` defaults, integers are 16-bit.
template <class T>
struct IniKey {
    const char* name;
    T defaultValue;
};

class cIni_Base {
public:
    // Where the settings file is: the application installs a source that names its file, or nothing while
    // there is no application. An absent path is refused as "Invalid value", as every absent argument is.
    // Asked before a write with `forWriting` set, the source makes the file's folder when it is missing.
    using PathSource = std::optional<std::string_view> (*)(bool forWriting);
    static void InstallPathSource(PathSource source) noexcept;

    std::string ReadFromIni(std::string_view key, std::string_view defaultValue) const;
    void WriteToIni(std::string_view key, std::string_view value) const;
    bool ReadBoolFromIni(std::string_view key, bool defaultValue) const;
    void WriteBoolToIni(std::string_view key, bool value) const;

    // Removes the whole section, or gives it the name `to` with its keys and their order kept; each is one
    // write of the settings file, and says why it did not reach the file.
    platform::WriteFault DeleteSection() const;
    platform::WriteFault RenameSection(const std::string& to) const;

    // Opens one update of the settings file: an owner's save becomes a single write of the file.
    iniFile::Update BeginSave() const;
    // Opens one load of the settings file: an owner's reads check the file once.
    iniFile::Load BeginLoad() const;

protected:
    cIni_Base(std::string module, std::string section);

    // Reads an integer key as text (its default formatted as decimal); the key operation converts it.
    std::string ReadIntegerFromIni(std::string_view key, int16_t defaultValue) const;
    void WriteIntegerToIni(std::string_view key, int16_t value) const;

    // The typed key operations: each reads or writes one key and puts "module.procedure" on the trail of a
    // failure. An integer that is no number or does not fit 16 bits fails its read (13 and 6).
    std::string Read(const IniKey<const char*>& key, const char* procedure) const;
    bool Read(const IniKey<bool>& key, const char* procedure) const;
    int16_t Read(const IniKey<int16_t>& key, const char* procedure) const;
    void Write(const IniKey<const char*>& key, const std::string& value, const char* procedure) const;
    void Write(const IniKey<bool>& key, bool value, const char* procedure) const;
    void Write(const IniKey<int16_t>& key, int16_t value, const char* procedure) const;

    void SetSection(std::string section) { m_section = std::move(section); }
    const std::string& Section() const { return m_section; }

    // "module.procedure", the name a procedure of this companion puts on a failure's trail.
    std::string Procedure(const char* name) const { return m_module + "." + name; }

private:
    // Runs `body` and passes a failure on with "module.procedure" in front of its trail.
    template <class Body>
    auto Traced(const char* procedure, Body&& body) const -> decltype(body());

    // The settings file the installed source names; absent when there is none.
    static std::optional<std::string_view> IniPath(bool forWriting = false);
    // The file to write to; "Invalid value" when there is none.
    static std::string WritablePath();

    std::string m_module;
    std::string m_section;
};
