// A shortcut composed from a folder, a name, a target and its arguments; missing folders are made on the
// way. Failure 20008 when the link was not written (also when the user kept an existing one).
#pragma once

#include <cstdint>
#include <string>

inline constexpr int32_t kShortcutNotWritten = 20008;

class cCreateShortcut {
public:
    void CreateShortcut(const std::string& folder, const std::string& linkName, const std::string& target,
                        const std::string& arguments);
    void CreateShortcut2(const std::string& linkFile, const std::string& target,
                         const std::string& arguments);

    // `folder` followed by the trimmed name, given the platform's link ending unless it has it already (in
    // any case).
    std::string GetShortcutFolder(const std::string& folder, const std::string& linkName);

private:
    static void CreateMissingFolders(const std::string& folder);
};
