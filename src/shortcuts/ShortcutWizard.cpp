#include "shortcuts/ShortcutWizard.h"

#include <utility>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/UserInterface.h"
#include "app/mCommonDialog.h"
#include "app/mMain.h"
#include "app/mPath.h"
#include "base/mString.h"
#include "error/mError.h"
#include "platform/Platform.h"
#include "profiles/Profile.h"
#include "shortcuts/mGetSpecialfolder.h"
#include "translate/cTranslate.h"

namespace {

constexpr int32_t kNoBrowsing = -1;
// The two not-found messages pass a style that names no button set or icon, as they always have.
constexpr int kNotFoundStyle = 10;

std::string Text(const std::string& key) {
    return Translator().TranslateEx(ShortcutWizard::kSection, key);
}

// Where the other-folder choice starts: the first drive on Windows, the file system's root elsewhere.
std::string OtherFolderStart() {
    return kNativePathFlavour == PathFlavour::Windows ? std::string("c:\\")
                                                      : Os().SpecialFolder(kCsidlDrives);
}

// Shows the message; the result is the cancel flag.
bool Refuse(const std::string& section, const char* key, int style, const std::string& parameter = {}) {
    Ui().MsgBox(Translator().TranslateEx(section, key, parameter), style);
    return true;
}

bool Blank(const std::string& text) {
    return mString::Trim(text).empty();
}

}  // namespace

void ShortcutWizard::TakeProfile(const Profile& profile) {
    m_cmdLine = profile.GetCmdLineParameters();
}

std::string ShortcutWizard::DefaultLinkName(const std::string& target) try {
    return mMain::GetTarvolinFile_VersionInfo(target);
} catch (...) {
    mError::PassOn(Procedure("SetDefaultLinkName"));
}

bool ShortcutWizard::QuickLaunchAvailable() {
    return mGetSpecialfolder::ExistsQuickLaunchFolder();
}

std::string ShortcutWizard::ChooseDestination(int index) {
    std::pair<std::string, int32_t> choice;
    switch (index) {
        case 0:
            choice = {mGetSpecialfolder::GetDesktopFolder(), kCsidlDesktop};
            break;
        case 1:
            choice = {mGetSpecialfolder::GetStartmenuFolder(), kCsidlStartMenu};
            break;
        case kQuickLaunch:
            choice = {mGetSpecialfolder::GetQuickLaunchFolder(), kNoBrowsing};
            break;
        default:
            choice = {OtherFolderStart(), kCsidlDrives};
            break;
    }
    m_browseRoot = choice.second;
    return choice.first;
}

bool ShortcutWizard::FolderLocked() const {
    return m_browseRoot == kNoBrowsing;
}

std::string ShortcutWizard::BrowseForFolder(int64_t owner) const {
    return mCommonDialog::BrowseForFolder(owner, Translator().TranslateEx("GLOBAL", "MSG_SELECT_FOLDER"),
                                          Os().SpecialFolder(m_browseRoot));
}

bool ShortcutWizard::RefuseLeaving(int16_t pageNo, const Fields& fields) {
    if (pageNo == 1 && Blank(fields.target))
        return Refuse(kSection, "MSG_LINKDEST_FOLDER_MISSED", vbOKOnly);
    if (pageNo == 1 && !mPath::FileExists(fields.target))
        return Refuse("ERROR_MESSAGES", "ERR_FileNotFound", kNotFoundStyle, fields.target);
    if (pageNo == 4 && Blank(fields.folder))
        return Refuse(kSection, "MSG_SHORTCUT_FOLDER_MISSED", vbOKOnly);
    if (pageNo == 4 && !mPath::FolderExists(fields.folder))
        return Refuse("ERROR_MESSAGES", "ERR_PathNotFound", kNotFoundStyle, fields.folder);
    if (pageNo == 5 && Blank(fields.linkName))
        return Refuse(kSection, "MSG_NAME_MISSED", vbOKOnly);
    return false;
}

ShortcutWizard::PageTexts ShortcutWizard::TextsOf(int16_t pageNo) {
    const std::string step = "STEP" + std::to_string(pageNo);
    PageTexts texts{Text("WIZARD_TITLE"), Text(step + "_TEXT"), Text(step + "_TASK"), {}, {}};
    if (pageNo == 5)
        texts.nextCaption = Text("BTN_CREATELINK");
    if (pageNo == 6)
        texts.cancelCaption = Translator().TranslateEx("GLOBAL", "BTN_CLOSE");
    return texts;
}

bool ShortcutWizard::NextClicked(int16_t pageNo, const Fields& fields) const {
    if (pageNo == 6)
        CreateShortcut(fields);
    return pageNo == kPageCount;
}

void ShortcutWizard::CreateShortcut(const Fields& fields) const try {
    App().CreateShortcut(fields.folder, fields.linkName, fields.target,
                         fields.plain ? std::string() : m_cmdLine);
    Ui().MsgBox(Text("MSG_SHORTCUT_CREATED"), vbInformation);
} catch (...) {
    mError::PassOn(Procedure("CreateShortcut"));
}
