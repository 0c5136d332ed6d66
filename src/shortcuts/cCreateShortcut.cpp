#include "shortcuts/cCreateShortcut.h"

#include <filesystem>
#include <system_error>

#include "app/mPath.h"
#include "base/mString.h"
#include "error/mError.h"
#include "platform/NativePath.h"
#include "platform/Platform.h"
#include "shortcuts/cShellLink.h"

namespace {

// A link shows its window in its current size and position.
constexpr int32_t kShowCommand = 5;

}  // namespace

void cCreateShortcut::CreateShortcut(const std::string& folder, const std::string& linkName,
                                     const std::string& target, const std::string& arguments) try {
    const std::string base = mString::Trim(mPath::AddOrRemoveBackslash(mString::Trim(folder), true));
    CreateMissingFolders(base);
    CreateShortcut2(GetShortcutFolder(base, linkName), target, arguments);
} catch (...) {
    mError::PassOn("cCreateShortcut.CreateShortcut");
}

// Every folder along the path, up to its last separator, that does not exist yet.
void cCreateShortcut::CreateMissingFolders(const std::string& folder) {
    if (mPath::FolderExists(folder))
        return;
    const char separator = mPath::Separator();
    for (std::size_t at = folder.find(separator); at != std::string::npos;
         at = folder.find(separator, at + 1)) {
        const std::string part = folder.substr(0, at + 1);
        std::error_code error;
        if (!mPath::FolderExists(part) && !std::filesystem::create_directory(platform::PathOf(part), error))
            mError::RaiseRuntimeError(mError::kPathFileAccessError);
    }
}

void cCreateShortcut::CreateShortcut2(const std::string& linkFile, const std::string& target,
                                      const std::string& arguments) try {
    const std::string directory(mString::UpToLastOf(target, std::string(1, mPath::Separator())));
    if (!cShellLink().CreateShellLink(linkFile, target, directory, arguments, "", 0, kShowCommand))
        mError::RaiseError(kShortcutNotWritten, "");
} catch (...) {
    mError::PassOn("cCreateShortcut.CreateShortcut2");
}

std::string cCreateShortcut::GetShortcutFolder(const std::string& folder, const std::string& linkName) try {
    std::string name = mString::Trim(linkName);
    const std::string ending = Os().ShellLinkEnding();
    if (name.size() < ending.size() || mString::LCase(name.substr(name.size() - ending.size())) != ending)
        name += ending;
    return folder + name;
} catch (...) {
    mError::PassOn("cCreateShortcut.GetShortcutFolder");
}
