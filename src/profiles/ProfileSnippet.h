// A profile as text, to be moved between two copies of the program through the clipboard or a file: its
// section of the settings file, as a save writes it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "storage/IniDocument.h"

class Profile;

namespace ProfileSnippet {

// More than this is no profile that the program wrote: it is refused before it is read.
inline constexpr std::size_t kLongest = 64 * 1024;

// The profile's section header and every setting it stores, in the order a save writes them, each line
// ended by CR LF.
std::string Format(const Profile& profile);

// What a text handed in as a profile holds.
struct Parsed {
    // Why the text is no profile, as a key of "ERROR_MESSAGES", or nullptr when it is one.
    const char* problem = nullptr;
    std::string detail;  // what the message names: the setting and value that are no 16-bit number
    IniDocument document;
    std::string section;                   // the one section's name
    std::vector<std::string> unknownKeys;  // keys that are no setting of a profile, left out
};

// Reads `bytes` in any encoding a settings file may have. A profile is exactly one section with at least one
// setting of ours, and every number in it fits 16 bits; the loading rules then give its values.
Parsed Parse(std::string_view bytes);

}  // namespace ProfileSnippet
