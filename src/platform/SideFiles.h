// The names of the files that a replacement of a file keeps beside it: the temporary file each save writes
// before renaming it over the file, and the lock file that makes writers take turns. Both start with a dot
// and the file's own name, so they sort beside it and are hidden where a leading dot hides a file.
#pragma once

#include <string>
#include <string_view>

namespace platform {

// How many letters or digits follow TemporaryPrefix in a temporary file's name.
inline constexpr std::size_t kTemporarySuffixLength = 6;

// ".Pavonel.ini." for "Pavonel.ini".
std::string TemporaryPrefix(std::string_view fileName);

// True for a name that a temporary file of `fileName` may have: the prefix and six letters or digits.
bool IsTemporaryName(std::string_view candidate, std::string_view fileName);

// ".Pavonel.ini.lock" for "Pavonel.ini".
std::string LockFileName(std::string_view fileName);

}  // namespace platform
