// A shortcut that starts a program, as a file the desktop shows: a Windows shell link (".lnk") or a
// freedesktop desktop entry (".desktop") on Linux.
#pragma once

#include <cstdint>
#include <string>

struct ShellLink {
    std::string target;            // the program (or document) the shortcut starts
    std::string arguments;         // its command line, "" for none
    std::string workingDirectory;  // "" for none
    std::string description;       // the comment a desktop shows beside the shortcut
    std::string iconPath;          // "" for the target's own icon
    int32_t iconIndex = 0;
    int32_t showCommand = 0;  // how the window appears (5: in its current size and position)
    int32_t hotkey = 0;

    bool operator==(const ShellLink&) const = default;
};
