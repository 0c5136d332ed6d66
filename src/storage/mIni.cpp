#include "storage/mIni.h"

#include "base/mString.h"
#include "error/mError.h"
#include "storage/iniFile.h"

namespace mIni {
namespace {

void CheckArguments(const IniArg& file, const IniArg& section, const IniArg& key, int32_t number) {
    if (!file || !section || !key)
        mError::RaiseError(number, "Invalid value");
}

}  // namespace

std::string ReadFromIni(IniArg file, IniArg section, IniArg key, std::string_view defaultValue) try {
    CheckArguments(file, section, key, mError::kInvalidValueRead);
    return mString::StripAtNul(iniFile::Read(*file, *section, *key, defaultValue, kReadBufferSize));
} catch (...) {
    mError::PassOn("mIni.ReadFromIni");
}

void WriteToIni(IniArg file, IniArg section, IniArg key, std::string_view value) try {
    CheckArguments(file, section, key, mError::kInvalidValueWrite);
    iniFile::Write(std::string(*file), *section, *key, value);
} catch (...) {
    mError::PassOn("mIni.WriteToIni");
}

bool ReadBoolFromIni(IniArg file, IniArg section, IniArg key, bool defaultValue) try {
    return BoolFromText(ReadFromIni(file, section, key, ""), defaultValue);
} catch (...) {
    mError::PassOn("mIni.ReadBoolFromIni");
}

bool BoolFromText(const std::string& text, bool defaultValue) {
    return text.empty() ? defaultValue : mString::Trim(text) == "1";
}

std::string AsRead(const std::optional<std::string>& stored, std::string_view defaultValue) {
    std::string text = mString::StripAtNul(stored ? *stored : mString::TrimRight(defaultValue));
    if (text.size() >= kReadBufferSize)
        text.resize(kReadBufferSize - 1);
    return text;
}

void WriteBoolToIni(IniArg file, IniArg section, IniArg key, bool value) try {
    WriteToIni(file, section, key, value ? "1" : "0");
} catch (...) {
    mError::PassOn("mIni.WriteBoolToIni");
}

}  // namespace mIni
