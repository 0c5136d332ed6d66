// The freedesktop desktop entry that stands in for a Windows shell link on Linux: a "[Desktop Entry]" of
// type Application whose Exec line starts the program with its arguments. Each argument is quoted by the
// Exec rules (double quotes around one that is empty or holds a reserved character, a backslash before
// `"`, `` ` ``, `$` and `\` inside them, every `%` doubled), and the whole value is then escaped as a
// string value (`\\`, `\n`, `\t`, `\r`, `\s` for a leading blank).
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

struct DesktopEntry {
    std::string name;
    std::string comment;
    std::vector<std::string> exec;  // the program and its arguments, unquoted
    std::string path;               // the working directory, "" for none

    bool operator==(const DesktopEntry&) const = default;
};

std::string DesktopEntryText(const DesktopEntry& entry);

// The entry's keys of the "[Desktop Entry]" group; nothing when the text has no such group or no Exec.
std::optional<DesktopEntry> ParseDesktopEntry(std::string_view text);

}  // namespace platform
