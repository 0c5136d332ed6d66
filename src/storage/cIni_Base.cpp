#include "storage/cIni_Base.h"

#include <utility>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "storage/mIni.h"

namespace {

mIni::IniArg Arg(const std::optional<std::string>& text) {
    return text ? mIni::IniArg(*text) : std::nullopt;
}

}  // namespace

cIni_Base::cIni_Base(std::string module, std::string section)
    : m_module(std::move(module)), m_section(std::move(section)) {}

std::optional<std::string> cIni_Base::IniPath() {
    return g_cApp ? std::optional<std::string>(g_cApp->IniPath()) : std::nullopt;
}

std::string cIni_Base::ReadFromIni(std::string_view key, std::string_view defaultValue) const try {
    return mIni::ReadFromIni(Arg(IniPath()), m_section, key, defaultValue);
} catch (...) {
    mError::PassOn(Procedure("ReadFromIni"));
}

void cIni_Base::WriteToIni(std::string_view key, std::string_view value) const try {
    mIni::WriteToIni(Arg(IniPath()), m_section, key, value);
} catch (...) {
    mError::PassOn(Procedure("WriteToIni"));
}

bool cIni_Base::ReadBoolFromIni(std::string_view key, bool defaultValue) const try {
    return mIni::ReadBoolFromIni(Arg(IniPath()), m_section, key, defaultValue);
} catch (...) {
    mError::PassOn(Procedure("ReadBoolFromIni"));
}

void cIni_Base::WriteBoolToIni(std::string_view key, bool value) const try {
    mIni::WriteBoolToIni(Arg(IniPath()), m_section, key, value);
} catch (...) {
    mError::PassOn(Procedure("WriteBoolToIni"));
}

std::string cIni_Base::ReadIntegerFromIni(std::string_view key, int16_t defaultValue) const try {
    return mIni::ReadFromIni(Arg(IniPath()), m_section, key, std::to_string(defaultValue));
} catch (...) {
    mError::PassOn(Procedure("ReadIntegerFromIni"));
}

void cIni_Base::WriteIntegerToIni(std::string_view key, int16_t value) const try {
    mIni::WriteToIni(Arg(IniPath()), m_section, key, std::to_string(value));
} catch (...) {
    mError::PassOn(Procedure("WriteIntegerToIni"));
}

iniFile::Update cIni_Base::BeginSave() const {
    return iniFile::Update(IniPath().value_or(std::string()));
}

iniFile::Load cIni_Base::BeginLoad() const {
    return iniFile::Load(IniPath().value_or(std::string()));
}
