// What the wizard's pages do: their fields, the checks when a page is left, and the shortcut itself, each
// by the wizard's rules.
#include <windowsx.h>

#include "app/mMain.h"
#include "error/mError.h"
#include "profiles/Profile.h"
#include "resource.h"
#include "winui/WinText.h"
#include "winui/shortcuts/frmCreateTarvolinShortcut_New.h"

namespace {

const auto Procedure = ShortcutWizard::Procedure;

bool Checked(HWND box) {
    return Button_GetCheck(box) == BST_CHECKED;
}

}  // namespace

void frmCreateTarvolinShortcut_New::InitDialog(const Profile& profile) try {
    ResetCancel();
    m_rules.TakeProfile(profile);
    m_target = profile.TarvolinPath();
    m_settings = profile.GetSettingsListAsText();
} catch (...) {
    mError::PassOn(Procedure("InitDialog"));
}

void frmCreateTarvolinShortcut_New::OnShow() {
    nav.SetPageCount(ShortcutWizard::kPageCount);
    nav.InitControl();
    SetFieldText(IDC_txtDest, m_target);
    Button_SetCheck(Control(IDC_opMode_0 + 1), BST_CHECKED);
    Button_SetCheck(Control(IDC_ckCreateFurtherShortcut), BST_CHECKED);
    Button_SetCheck(Control(IDC_opDest_0), BST_CHECKED);
    opDest_Click(0);
    EnableWindow(Control(IDC_opDest_0 + ShortcutWizard::kQuickLaunch),
                 ShortcutWizard::QuickLaunchAvailable());
    SetFieldText(IDC_txtSettings, m_settings);
}

void frmCreateTarvolinShortcut_New::SetDefaultLinkName() {
    SetFieldText(IDC_txtLinkName, ShortcutWizard::DefaultLinkName(FieldText(IDC_txtDest)));
}

void frmCreateTarvolinShortcut_New::cmdSelLinkDestFolder_Click() {
    const std::string chosen = mMain::AskForTarvoPath(FieldText(IDC_txtDest));
    if (!chosen.empty())
        SetFieldText(IDC_txtDest, chosen);
}

void frmCreateTarvolinShortcut_New::opDest_Click(int index) try {
    SetFieldText(IDC_txtDestFolder, m_rules.ChooseDestination(index));
    EnableWindow(Control(IDC_txtDestFolder), !m_rules.FolderLocked());
    EnableWindow(Control(IDC_cmdSelFolder), !m_rules.FolderLocked());
} catch (...) {
    mError::ShowError(Procedure("opDest_Click"));
}

void frmCreateTarvolinShortcut_New::cmdSelFolder_Click() {
    const std::string chosen = m_rules.BrowseForFolder(OwnerOf(Handle()));
    if (!chosen.empty())
        SetFieldText(IDC_txtDestFolder, chosen);
}

void frmCreateTarvolinShortcut_New::ckCreateFurtherShortcut_Click() {
    nav.SetNextButtonEnabled(Checked(Control(IDC_ckCreateFurtherShortcut)));
}

// The page shown starts the keyboard on its first field.
void frmCreateTarvolinShortcut_New::OnPageShowing(int16_t pageNo) {
    mError::AsEntryPoint(Procedure("ucWizard_Nav_ShowPage"), [&] {
        for (std::size_t i = 0; i < picStep.size(); ++i)
            ShowWindow(picStep[i], static_cast<int>(i) + 1 == pageNo ? SW_SHOW : SW_HIDE);
        const ShortcutWizard::PageTexts texts = ShortcutWizard::TextsOf(pageNo);
        titleArea.SetTexts(texts.title, texts.text, texts.task);
        nav.Translate();
        if (!texts.nextCaption.empty())
            nav.SetNextButtonCaption(texts.nextCaption);
        if (!texts.cancelCaption.empty())
            nav.SetCancelButtonCaption(texts.cancelCaption);
        if (pageNo >= 1 && pageNo <= ShortcutWizard::kPages) {
            HWND page = picStep[static_cast<std::size_t>(pageNo - 1)];
            if (HWND first = GetNextDlgTabItem(page, nullptr, FALSE))
                SendMessageA(Handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first), TRUE);
        }
    });
}

void frmCreateTarvolinShortcut_New::OnRefreshButtons(bool backEnabled, bool nextEnabled) {
    nav.SetButtons(backEnabled, nextEnabled);
}

ShortcutWizard::Fields frmCreateTarvolinShortcut_New::Fields() const {
    return {FieldText(IDC_txtDest), FieldText(IDC_txtDestFolder), FieldText(IDC_txtLinkName),
            Checked(Control(IDC_opMode_0))};
}

void frmCreateTarvolinShortcut_New::OnLeavePage(int16_t pageNo, bool& cancel) {
    cancel = true;
    mError::AsEntryPoint(Procedure("ucWizard_Nav_LeavePage"),
                         [&] { cancel = ShortcutWizard::RefuseLeaving(pageNo, Fields()); });
}

// A failure on the way leaves the flag set, so the page stays.
void frmCreateTarvolinShortcut_New::OnNextClicked(int16_t pageNo, bool& cancel) {
    cancel = true;
    mError::AsEntryPoint(Procedure("ucWizard_Nav_NextClicked"), [&] {
        if (m_rules.NextClicked(pageNo, Fields()))
            nav.ShowPage(1);
        cancel = false;
    });
}
