#include "winui/dialogs/frmSave.h"

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "resource.h"
#include "translate/cTranslate.h"
#include "winui/WinText.h"

frmSave::frmSave() : ModalDialog("frmSave", IDD_frmSave, "SAVE_DIALOG") {}

void frmSave::OnShow() {
    ucProfiles1.InitControl(Item(IDC_ucProfiles1));
    ucProfiles1.FillProfileList(true);
    ucProfiles1.SetMultiSelect(true);
    ucProfiles1.SelectAllProfiles();
    SetFocus(Item(IDC_Command1));
}

void frmSave::TranslateDialog() try {
    WinText::Set(Handle(), TranslateDialogItem("DIALOG_CAPTION"));
    WinText::SetItem(Handle(), IDC_lblListInfo, TranslateDialogItem("LBL_LIST_INFO"));
    Mnemonics keys = WinText::KeySet();
    WinText::SetItem(Handle(), IDC_lblListTitle, keys.Add(TranslateDialogItem("LBL_LIST_TITLE")));
    WinText::SetItem(Handle(), IDC_Command1, keys.Add(Translator().TranslateEx("GLOBAL", "BTN_YES")));
    WinText::SetItem(Handle(), IDC_Command2, keys.Add(Translator().TranslateEx("GLOBAL", "BTN_NO")));
} catch (...) {
    mError::PassOn("frmSave.TranslateDialog");
}

// The chosen profiles are saved; a save that does not reach the file says why.
void frmSave::OnCommand(int id, int code) {
    if (id == IDC_Command1 && code == BN_CLICKED) {
        mError::AsEntryPoint("frmSave.Command1_Click", [this] {
            const platform::WriteFault fault = App().SaveDataEx(ucProfiles1.GetSelectedItems());
            Dismiss();
            if (fault != platform::WriteFault::None)
                App().TellUnsaved(fault);
        });
    } else if (id == IDC_Command2 && code == BN_CLICKED) {
        Dismiss();
    } else {
        ModalDialog::OnCommand(id, code);
    }
}
