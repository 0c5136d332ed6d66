#include "shortcuts/cShellLink.h"

#include "app/PublicObjects.h"
#include "app/UserInterface.h"
#include "app/mPath.h"
#include "base/mString.h"
#include "error/mError.h"
#include "platform/Platform.h"
#include "translate/cTranslate.h"

namespace {

// Every link carries this comment, whatever it is for.
constexpr const char* kDescription = "ShellLink Sample";

}  // namespace

bool cShellLink::GetSystemFolderPath(int64_t /*owner*/, int32_t csidl, std::string& path) try {
    const std::string found = mString::Trim(Os().SpecialFolder(csidl));
    if (found.empty())
        return false;
    path = found;
    return true;
} catch (...) {
    mError::PassOn("cShellLink.GetSystemFolderPath");
}

bool cShellLink::CreateShellLink(const std::string& linkFile, const std::string& targetPath,
                                 const std::string& workingDirectory, const std::string& arguments,
                                 const std::string& iconPath, int32_t iconIndex, int32_t showCommand) try {
    if (targetPath.empty() || linkFile.empty())
        return false;
    if (mPath::FileExists(linkFile) &&
        Ui().MsgBox(Translator().TranslateEx("CREATE_SHORTCUT_DIALOG_NEW", "MSG_SHORTCUT_EXISTS", linkFile),
                    vbYesNo | vbQuestion) == vbNo)
        return false;
    const ShellLink link{targetPath, arguments, workingDirectory, kDescription,
                         iconPath,   iconIndex, showCommand,      0};
    try {
        return Os().WriteShellLink(linkFile, link);
    } catch (...) {
        return false;
    }
} catch (...) {
    mError::PassOn("cShellLink.CreateShellLink");
}

bool cShellLink::GetShellLinkInfo(const std::string& linkFile, std::string& targetPath,
                                  std::string& workingDirectory, std::string& arguments,
                                  std::string& description, int32_t& hotkey, std::string& iconPath,
                                  int32_t& iconIndex, int32_t& showCommand) try {
    const std::optional<ShellLink> link = Os().ReadShellLink(linkFile);
    if (!link)
        return false;
    targetPath = link->target;
    workingDirectory = link->workingDirectory;
    arguments = link->arguments;
    description = link->description;
    hotkey = link->hotkey;
    iconPath = link->iconPath;
    iconIndex = link->iconIndex;
    showCommand = link->showCommand;
    return true;
} catch (...) {
    mError::PassOn("cShellLink.GetShellLinkInfo");
}
