// What the wizard's pages do: their fields, the checks when a page is left, and the shortcut itself.
#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>

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
#include "ui/QtText.h"
#include "ui/controls/ucPath.h"
#include "ui/shortcuts/frmCreateTarvolinShortcut_New.h"
#include "ui/shortcuts/ucWizard_Nav.h"
#include "ui/shortcuts/ucWizard_TitleArea.h"

namespace {

constexpr const char* kSection = "CREATE_SHORTCUT_DIALOG_NEW";
constexpr int16_t kPageCount = 7;  // one more than there are pages: Next stays enabled on the last one
constexpr int32_t kNoBrowsing = -1;
// The two not-found messages pass a style that names no button set or icon, as they always have.
constexpr int kNotFoundStyle = 10;

std::string Procedure(const char* name) {
    return std::string("frmCreateTarvolinShortcut_New.") + name;
}

std::string Text(const ucPath* field) {
    return QtText::FromQt(field->Text());
}

// Where the other-folder choice starts: the first drive on Windows, the file system's root here.
std::string OtherFolderStart() {
    return kNativePathFlavour == PathFlavour::Windows ? std::string("c:\\")
                                                      : Os().SpecialFolder(kCsidlDrives);
}

// The keyboard starts on the first field of a page that is shown.
void FocusFirstField(QWidget* page) {
    for (QWidget* field = page->nextInFocusChain(); field != nullptr && field != page;
         field = field->nextInFocusChain()) {
        if (page->isAncestorOf(field) && field->isEnabled() && (field->focusPolicy() & Qt::TabFocus) != 0) {
            field->setFocus();
            return;
        }
    }
}

}  // namespace

void frmCreateTarvolinShortcut_New::InitDialog(const Profile& profile) try {
    ResetCancel();
    nav->SetPageCount(kPageCount);
    nav->InitControl();
    TranslateDialog();
    m_cmdLine = profile.GetCmdLineParameters();
    txtDest->SetText(QtText::ToQt(profile.TarvolinPath()));
    SetDefaultLinkName();
    opDest[0]->setChecked(true);
    opDest_Click(0);
    if (!mGetSpecialfolder::ExistsQuickLaunchFolder())
        opDest[2]->setEnabled(false);
    txtSettings->setPlainText(QtText::ToQt(profile.GetSettingsListAsText()));
} catch (...) {
    mError::PassOn(Procedure("InitDialog"));
}

void frmCreateTarvolinShortcut_New::SetDefaultLinkName() try {
    txtLinkName->setText(QtText::ToQt(mMain::GetTarvolinFile_VersionInfo(Text(txtDest))));
} catch (...) {
    mError::PassOn(Procedure("SetDefaultLinkName"));
}

void frmCreateTarvolinShortcut_New::cmdSelLinkDestFolder_Click() {
    const std::string chosen = mMain::AskForTarvoPath(Text(txtDest));
    if (!chosen.empty())
        txtDest->SetText(QtText::ToQt(chosen));
}

void frmCreateTarvolinShortcut_New::opDest_Click(int index) try {
    txtDestFolder->setEnabled(true);
    cmdSelFolder->setEnabled(true);
    const std::pair<std::string, int32_t> choices[] = {
        {mGetSpecialfolder::GetDesktopFolder(), kCsidlDesktop},
        {mGetSpecialfolder::GetStartmenuFolder(), kCsidlStartMenu},
        {mGetSpecialfolder::GetQuickLaunchFolder(), kNoBrowsing},
        {OtherFolderStart(), kCsidlDrives}};
    txtDestFolder->SetText(QtText::ToQt(choices[index].first));
    m_browseRoot = choices[index].second;
    if (m_browseRoot == kNoBrowsing) {
        txtDestFolder->setEnabled(false);
        cmdSelFolder->setEnabled(false);
    }
} catch (...) {
    mError::ShowError(Procedure("opDest_Click"));
}

void frmCreateTarvolinShortcut_New::cmdSelFolder_Click() {
    const std::string chosen = mCommonDialog::BrowseForFolder(static_cast<int64_t>(winId()),
                                                              QtText::FromQt(GlobalText("MSG_SELECT_FOLDER")),
                                                              Os().SpecialFolder(m_browseRoot));
    if (!chosen.empty())
        txtDestFolder->SetText(QtText::ToQt(chosen));
}

void frmCreateTarvolinShortcut_New::ckCreateFurtherShortcut_Click() {
    nav->SetNextButtonEnabled(ckCreateFurtherShortcut->isChecked());
}

void frmCreateTarvolinShortcut_New::ucWizard_Nav_ShowPage(int16_t pageNo) {
    if (pageNo >= 1 && pageNo <= kPages)
        pages->setCurrentWidget(picStep[pageNo - 1]);
    const std::string step = "STEP" + std::to_string(pageNo);
    titleArea->SetTexts(TranslateDialogItem("WIZARD_TITLE"), TranslateDialogItem(step + "_TEXT"),
                        TranslateDialogItem(step + "_TASK"));
    nav->Translate();
    if (pageNo == 5)
        nav->SetNextButtonCaption(ItemText("BTN_CREATELINK"));
    if (pageNo == 6)
        nav->SetCancelButtonCaption(GlobalText("BTN_CLOSE"));
    FocusFirstField(pages->currentWidget());
}

// Shows the message, keeps the page: the result is the cancel flag.
bool frmCreateTarvolinShortcut_New::Refuse(const std::string& section, const char* key, int style,
                                           const std::string& parameter) {
    Ui().MsgBox(Translator().TranslateEx(section, key, parameter), style);
    return true;
}

void frmCreateTarvolinShortcut_New::ucWizard_Nav_LeavePage(int16_t pageNo, bool* cancel) try {
    if (pageNo == 1 && mString::Trim(Text(txtDest)).empty())
        *cancel = Refuse(kSection, "MSG_LINKDEST_FOLDER_MISSED", vbOKOnly);
    else if (pageNo == 1 && !mPath::FileExists(Text(txtDest)))
        *cancel = Refuse("ERROR_MESSAGES", "ERR_FileNotFound", kNotFoundStyle, Text(txtDest));
    else if (pageNo == 4 && mString::Trim(Text(txtDestFolder)).empty())
        *cancel = Refuse(kSection, "MSG_SHORTCUT_FOLDER_MISSED", vbOKOnly);
    else if (pageNo == 4 && !mPath::FolderExists(Text(txtDestFolder)))
        *cancel = Refuse("ERROR_MESSAGES", "ERR_PathNotFound", kNotFoundStyle, Text(txtDestFolder));
    else if (pageNo == 5 && mString::Trim(QtText::FromQt(txtLinkName->text())).empty())
        *cancel = Refuse(kSection, "MSG_NAME_MISSED", vbOKOnly);
} catch (...) {
    *cancel = true;
    mError::ShowError(Procedure("ucWizard_Nav_LeavePage"));
}

// A failure on the way leaves the flag set, so the page stays.
void frmCreateTarvolinShortcut_New::ucWizard_Nav_NextClicked(int16_t pageNo, bool* cancel) {
    *cancel = true;
    if (pageNo == 6)
        CreateShortcut();
    if (pageNo == 7)
        nav->ShowPage(1);
    *cancel = false;
}

void frmCreateTarvolinShortcut_New::ucWizard_Nav_CancelClicked() {
    reject();
}

void frmCreateTarvolinShortcut_New::CreateShortcut() try {
    const std::string arguments = opMode[0]->isChecked() ? std::string() : m_cmdLine;
    App().CreateShortcut(Text(txtDestFolder), QtText::FromQt(txtLinkName->text()), Text(txtDest), arguments);
    Ui().MsgBox(TranslateDialogItem("MSG_SHORTCUT_CREATED"), vbInformation);
} catch (...) {
    mError::PassOn(Procedure("CreateShortcut"));
}
