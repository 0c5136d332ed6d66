// One shortcut file, written with every field and read back, over the platform's shortcut files (a shell
// link on Windows, a desktop entry on Linux).
#pragma once

#include <cstdint>
#include <string>

class cShellLink {
public:
    // The special folder's path into `path` when there is one; false leaves `path` as it was.
    bool GetSystemFolderPath(int64_t owner, int32_t csidl, std::string& path);

    // Writes `linkFile`. False for an empty target or file, when the user keeps an existing file (asked
    // first), and when the file could not be written; no message of its own then.
    bool CreateShellLink(const std::string& linkFile, const std::string& targetPath,
                         const std::string& workingDirectory, const std::string& arguments,
                         const std::string& iconPath, int32_t iconIndex, int32_t showCommand);

    // Reads `linkFile` back into the fields; false, leaving them as they were, when it is no shortcut.
    bool GetShellLinkInfo(const std::string& linkFile, std::string& targetPath, std::string& workingDirectory,
                          std::string& arguments, std::string& description, int32_t& hotkey,
                          std::string& iconPath, int32_t& iconIndex, int32_t& showCommand);
};
