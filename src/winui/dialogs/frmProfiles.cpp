#include "winui/dialogs/frmProfiles.h"

#include <commctrl.h>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "profiles/Profile.h"
#include "profiles/mManageProfiles.h"
#include "resource.h"
#include "translate/cTranslate.h"
#include "winui/WinText.h"

frmProfiles::frmProfiles() : ModalDialog("frmProfiles", IDD_frmProfiles, "PROFILES_DIALOG") {}

// The active profile starts as the current row, so the list opens where the user works.
void frmProfiles::OnShow() {
    ucProfiles1.InitControl(Item(IDC_ucProfiles1));
    ShowProfiles(nullptr);
    SetFocus(Item(IDC_ucProfiles1));
}

void frmProfiles::ShowProfiles(const Profile* current) {
    ucProfiles1.FillProfileList(false);
    if (current == nullptr)
        current = App().ActiveProfile();
    if (current != nullptr)
        ucProfiles1.SelectProfile(current->ProfileName());
    EnableButtons();
}

void frmProfiles::EnableButtons() {
    const Profile* selected = ucProfiles1.SelectedProfile();
    const bool ownName = selected != nullptr && mManageProfiles::CanRenameOrDelete(*selected);
    EnableWindow(Item(IDC_cmdRename), ownName);
    EnableWindow(Item(IDC_cmdDelete), ownName);
    EnableWindow(Item(IDC_cmdDuplicate), selected != nullptr);
}

void frmProfiles::TranslateDialog() try {
    WinText::Set(Handle(), TranslateDialogItem("DIALOG_CAPTION"));
    Mnemonics keys = WinText::KeySet();
    WinText::SetItem(Handle(), IDC_cmdRename, keys.Add(TranslateDialogItem("BTN_RENAME")));
    WinText::SetItem(Handle(), IDC_cmdDuplicate, keys.Add(TranslateDialogItem("BTN_DUPLICATE")));
    WinText::SetItem(Handle(), IDC_cmdDelete, keys.Add(TranslateDialogItem("BTN_DELETE")));
    WinText::SetItem(Handle(), IDC_cmdClose, keys.Add(Translator().TranslateEx("GLOBAL", "BTN_CLOSE")));
} catch (...) {
    mError::PassOn("frmProfiles.TranslateDialog");
}

void frmProfiles::cmdRename_Click() {
    Profile* selected = ucProfiles1.SelectedProfile();
    if (selected != nullptr && mManageProfiles::RenameProfile(*selected))
        ShowChanged(selected);
}

// The copy becomes the active profile, as a new one does.
void frmProfiles::cmdDuplicate_Click() {
    const Profile* selected = ucProfiles1.SelectedProfile();
    if (selected != nullptr && mManageProfiles::DuplicateProfile(*selected) != nullptr)
        ShowChanged(App().ActiveProfile());
}

void frmProfiles::cmdDelete_Click() {
    Profile* selected = ucProfiles1.SelectedProfile();
    if (selected != nullptr && mManageProfiles::DeleteProfile(*selected))
        ShowChanged(App().ActiveProfile());
}

void frmProfiles::ShowChanged(const Profile* current) {
    m_changed = true;
    ShowProfiles(current);
}

void frmProfiles::OnCommand(int id, int code) {
    struct Button {
        int id;
        void (frmProfiles::*click)();
        const char* trail;
    };
    static constexpr Button kButtons[] = {
        {IDC_cmdRename, &frmProfiles::cmdRename_Click, "frmProfiles.cmdRename_Click"},
        {IDC_cmdDuplicate, &frmProfiles::cmdDuplicate_Click, "frmProfiles.cmdDuplicate_Click"},
        {IDC_cmdDelete, &frmProfiles::cmdDelete_Click, "frmProfiles.cmdDelete_Click"}};
    if (code == BN_CLICKED) {
        for (const Button& button : kButtons) {
            if (button.id == id) {
                mError::AsEntryPoint(button.trail, [&] { (this->*button.click)(); });
                return;
            }
        }
    }
    if (id == IDC_cmdClose && code == BN_CLICKED)
        Dismiss();
    else
        ModalDialog::OnCommand(id, code);
}

// The buttons follow the selected row.
std::optional<INT_PTR> frmProfiles::OnMessage(UINT message, WPARAM, LPARAM lParam) {
    const auto* notice = reinterpret_cast<const NMHDR*>(lParam);
    if (message == WM_NOTIFY && notice->idFrom == IDC_ucProfiles1 && notice->code == LVN_ITEMCHANGED)
        mError::AsEntryPoint("frmProfiles.ucProfiles1_Click", [this] { EnableButtons(); });
    return std::nullopt;
}
