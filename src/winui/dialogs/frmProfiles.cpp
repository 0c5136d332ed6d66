#include "winui/dialogs/frmProfiles.h"

#include "app/PublicObjects.h"
#include "error/mError.h"
#include "resource.h"
#include "translate/cTranslate.h"
#include "winui/WinText.h"

frmProfiles::frmProfiles() : ModalDialog("frmProfiles", IDD_frmProfiles, "PROFILES_DIALOG") {}

void frmProfiles::OnShow() {
    ucProfiles1.InitControl(Item(IDC_ucProfiles1));
    ucProfiles1.FillProfileList(false);
    SetFocus(Item(IDC_ucProfiles1));
}

void frmProfiles::TranslateDialog() try {
    WinText::Set(Handle(), TranslateDialogItem("DIALOG_CAPTION"));
    WinText::SetItem(Handle(), IDC_cmdClose, Translator().TranslateEx("GLOBAL", "BTN_CLOSE"));
} catch (...) {
    mError::PassOn("frmProfiles.TranslateDialog");
}

void frmProfiles::OnCommand(int id, int code) {
    if (id == IDC_cmdClose && code == BN_CLICKED)
        Dismiss();
    else
        ModalDialog::OnCommand(id, code);
}
