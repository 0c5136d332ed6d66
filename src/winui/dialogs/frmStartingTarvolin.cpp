#include "winui/dialogs/frmStartingTarvolin.h"

#include <windowsx.h>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "profiles/Profile.h"
#include "resource.h"
#include "translate/cTranslate.h"
#include "winui/WinText.h"

frmStartingTarvolin::frmStartingTarvolin()
    : ModalDialog("frmStartingTarvolin", IDD_frmStartingTarvolin, "START_TARVOLIN_DIALOG") {}

void frmStartingTarvolin::InitDialog(const Profile& oProfile) try {
    m_commandLine = oProfile.GetCmdLineParameters();
    ResetCancel();
} catch (...) {
    mError::PassOn("frmStartingTarvolin.InitDialog");
}

void frmStartingTarvolin::OnShow() {
    WinText::SetItem(Handle(), IDC_lblInfo, m_commandLine);
    SetFocus(Item(IDC_cmdOk));
}

void frmStartingTarvolin::TranslateDialog() try {
    WinText::Set(Handle(), TranslateDialogItem("DIALOG_CAPTION"));
    WinText::SetItem(Handle(), IDC_lblCaption, TranslateDialogItem("LBL_DIALOG_INFO"));
    WinText::SetItem(Handle(), IDC_lblWarning, TranslateDialogItem("LBL_WARNING"));
    Mnemonics keys = WinText::KeySet();
    WinText::SetItem(Handle(), IDC_ckDontShowThisDialogAgain,
                     keys.Add(TranslateDialogItem("CHK_DONT_SHOW_DIALOG")));
    WinText::SetItem(Handle(), IDC_cmdOk, Translator().TranslateEx("GLOBAL", "BTN_OK"));
    WinText::SetItem(Handle(), IDC_cmdCancel, Translator().TranslateEx("GLOBAL", "BTN_CANCEL"));
} catch (...) {
    mError::PassOn("frmStartingTarvolin.TranslateDialog");
}

void frmStartingTarvolin::OnCommand(int id, int code) {
    if (id == IDC_cmdOk && code == BN_CLICKED) {
        mError::AsEntryPoint("frmStartingTarvolin.cmdOk_Click", [this] {
            App().Options().SetShowStartTarvolinDialog(Button_GetCheck(Item(IDC_ckDontShowThisDialogAgain)) !=
                                                       BST_CHECKED);
            Confirm();
        });
    } else {
        ModalDialog::OnCommand(id, code);
    }
}
