#include "winui/dialogs/frmLoadProfile.h"

#include <commctrl.h>

#include "app/PublicObjects.h"
#include "app/UserInterface.h"
#include "error/mError.h"
#include "resource.h"
#include "translate/cTranslate.h"
#include "winui/WinText.h"

frmLoadProfile::frmLoadProfile() : ModalDialog("frmLoadProfile", IDD_frmLoadProfile, "LOAD_PROFILE_DIALOG") {}

void frmLoadProfile::InitDialog() {
    ResetCancel();
}

void frmLoadProfile::OnShow() {
    ucProfiles1.InitControl(Item(IDC_ucProfiles1));
    ucProfiles1.FillProfileList(false);
    ucProfiles1.SetMultiSelect(false);
    SetFocus(Item(IDC_ucProfiles1));
}

void frmLoadProfile::TranslateDialog() try {
    WinText::Set(Handle(), TranslateDialogItem("DIALOG_CAPTION"));
    Mnemonics keys = WinText::KeySet();
    WinText::SetItem(Handle(), IDC_lblInfo, keys.Add(TranslateDialogItem("LBL_INFO")));
    WinText::SetItem(Handle(), IDC_cmdHelp, keys.Add(Translator().TranslateEx("GLOBAL", "BTN_HELP")));
    WinText::SetItem(Handle(), IDC_cmdOk, Translator().TranslateEx("GLOBAL", "BTN_OK"));
    WinText::SetItem(Handle(), IDC_cmdCancel, Translator().TranslateEx("GLOBAL", "BTN_CANCEL"));
} catch (...) {
    mError::PassOn("frmLoadProfile.TranslateDialog");
}

void frmLoadProfile::OnCommand(int id, int code) {
    if (id == IDC_cmdHelp && code == BN_CLICKED) {
        mError::AsEntryPoint("frmLoadProfile.cmdHelp_Click", [] {
            Ui().MsgBox(
                "If you don't know what to do, select the Standard-Profile and then click on the ok-button.",
                vbOKOnly);
        });
    } else if (id == IDC_cmdOk && code == BN_CLICKED) {
        mError::AsEntryPoint("frmLoadProfile.cmdOk_Click", [this] {
            m_selected = ucProfiles1.SelectedProfile();
            if (m_selected != nullptr)
                Confirm();
        });
    } else {
        ModalDialog::OnCommand(id, code);
    }
}

// A double click on a row chooses it, as OK does.
std::optional<INT_PTR> frmLoadProfile::OnMessage(UINT message, WPARAM, LPARAM lParam) {
    const auto* notice = reinterpret_cast<const NMHDR*>(lParam);
    if (message == WM_NOTIFY && notice->idFrom == IDC_ucProfiles1 && notice->code == NM_DBLCLK)
        OnCommand(IDC_cmdOk, BN_CLICKED);
    return std::nullopt;
}
