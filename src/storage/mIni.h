// Typed access to settings and language files. An argument that is absent (as opposed to empty) is a
// programming error and raises "Invalid value"; a missing or read-only file is not an error at all.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace mIni {

using IniArg = std::optional<std::string_view>;

// Reads go through a buffer of this many characters, so a value comes back with at most 254 of them.
inline constexpr std::size_t kReadBufferSize = 255;

// The stored value, or `defaultValue` when the file, section or key is missing.
std::string ReadFromIni(IniArg file, IniArg section, IniArg key, std::string_view defaultValue);
void WriteToIni(IniArg file, IniArg section, IniArg key, std::string_view value);

// Booleans are stored as "1" and "0"; only "1" (blanks around it allowed) reads as true, and an empty or
// missing value gives the default.
bool ReadBoolFromIni(IniArg file, IniArg section, IniArg key, bool defaultValue);
bool BoolFromText(const std::string& text, bool defaultValue);

// What a read gives for a value found elsewhere than in a file (a profile handed in as text): `stored`, or
// `defaultValue` when there is none, as through the program's buffer.
std::string AsRead(const std::optional<std::string>& stored, std::string_view defaultValue);
void WriteBoolToIni(IniArg file, IniArg section, IniArg key, bool value);

}  // namespace mIni
