#include "storage/cIni_Base.h"

#include <utility>

#include "base/mString.h"
#include "error/mError.h"
#include "storage/mIni.h"

namespace {

cIni_Base::PathSource g_pathSource = nullptr;

}  // namespace

void cIni_Base::InstallPathSource(PathSource source) noexcept {
    g_pathSource = source;
}

cIni_Base::cIni_Base(std::string module, std::string section)
    : m_module(std::move(module)), m_section(std::move(section)) {}

std::optional<std::string_view> cIni_Base::IniPath(bool forWriting) {
    return g_pathSource != nullptr ? g_pathSource(forWriting) : std::nullopt;
}

std::string cIni_Base::ReadFromIni(std::string_view key, std::string_view defaultValue) const try {
    return mIni::ReadFromIni(IniPath(), m_section, key, defaultValue);
} catch (...) {
    mError::PassOn(Procedure("ReadFromIni"));
}

void cIni_Base::WriteToIni(std::string_view key, std::string_view value) const try {
    mIni::WriteToIni(IniPath(true), m_section, key, value);
} catch (...) {
    mError::PassOn(Procedure("WriteToIni"));
}

bool cIni_Base::ReadBoolFromIni(std::string_view key, bool defaultValue) const try {
    return mIni::ReadBoolFromIni(IniPath(), m_section, key, defaultValue);
} catch (...) {
    mError::PassOn(Procedure("ReadBoolFromIni"));
}

void cIni_Base::WriteBoolToIni(std::string_view key, bool value) const try {
    mIni::WriteBoolToIni(IniPath(true), m_section, key, value);
} catch (...) {
    mError::PassOn(Procedure("WriteBoolToIni"));
}

std::string cIni_Base::ReadIntegerFromIni(std::string_view key, int16_t defaultValue) const try {
    return mIni::ReadFromIni(IniPath(), m_section, key, std::to_string(defaultValue));
} catch (...) {
    mError::PassOn(Procedure("ReadIntegerFromIni"));
}

void cIni_Base::WriteIntegerToIni(std::string_view key, int16_t value) const try {
    mIni::WriteToIni(IniPath(true), m_section, key, std::to_string(value));
} catch (...) {
    mError::PassOn(Procedure("WriteIntegerToIni"));
}

template <class Body>
auto cIni_Base::Traced(const char* procedure, Body&& body) const -> decltype(body()) {
    try {
        return body();
    } catch (...) {
        mError::PassOn(Procedure(procedure));
    }
}

std::string cIni_Base::Read(const IniKey<const char*>& key, const char* procedure) const {
    return Traced(procedure, [&] { return ReadFromIni(key.name, key.defaultValue); });
}

bool cIni_Base::Read(const IniKey<bool>& key, const char* procedure) const {
    return Traced(procedure, [&] { return ReadBoolFromIni(key.name, key.defaultValue); });
}

int16_t cIni_Base::Read(const IniKey<int16_t>& key, const char* procedure) const {
    return Traced(procedure,
                  [&] { return mString::ToInt16(ReadIntegerFromIni(key.name, key.defaultValue)); });
}

void cIni_Base::Write(const IniKey<const char*>& key, const std::string& value, const char* procedure) const {
    Traced(procedure, [&] { WriteToIni(key.name, value); });
}

void cIni_Base::Write(const IniKey<bool>& key, bool value, const char* procedure) const {
    Traced(procedure, [&] { WriteBoolToIni(key.name, value); });
}

void cIni_Base::Write(const IniKey<int16_t>& key, int16_t value, const char* procedure) const {
    Traced(procedure, [&] { WriteIntegerToIni(key.name, value); });
}

std::string cIni_Base::WritablePath() {
    const std::optional<std::string_view> path = IniPath(true);
    if (!path)
        mError::RaiseError(mError::kInvalidValueWrite, "Invalid value");
    return std::string(*path);
}

platform::WriteFault cIni_Base::DeleteSection() const try {
    return iniFile::Write(WritablePath(), m_section, std::nullopt, std::nullopt);
} catch (...) {
    mError::PassOn(Procedure("DeleteSection"));
}

platform::WriteFault cIni_Base::RenameSection(const std::string& to) const try {
    return iniFile::RenameSection(WritablePath(), m_section, to);
} catch (...) {
    mError::PassOn(Procedure("RenameSection"));
}

iniFile::Update cIni_Base::BeginSave() const {
    return iniFile::Update(std::string(IniPath(true).value_or(std::string_view())));
}

iniFile::Load cIni_Base::BeginLoad() const {
    return iniFile::Load(std::string(IniPath().value_or(std::string_view())));
}
