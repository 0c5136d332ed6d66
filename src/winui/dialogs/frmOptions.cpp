#include "winui/dialogs/frmOptions.h"

#include <windowsx.h>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/mMain.h"
#include "error/mError.h"
#include "resource.h"
#include "translate/cTranslate.h"
#include "winui/WinText.h"
#include "winui/controls/ucPath.h"

frmOptions::frmOptions() : ModalDialog("frmOptions", IDD_frmOptions, "OPTIONS_DIALOG") {}

void frmOptions::InitDialog() try {
    ResetCancel();
    const Options& options = App().Options();
    m_editorPath = options.EditorPath();
    m_confirmStart = options.ShowStartTarvolinDialog();
} catch (...) {
    mError::PassOn("frmOptions.InitDialog");
}

void frmOptions::OnShow() {
    ucPath::Attach(Item(IDC_txtEditorPath), "txtEditorPath");
    WinText::SetItem(Handle(), IDC_txtEditorPath, m_editorPath);
    Button_SetCheck(Item(IDC_ckSafetyPromptBeforeStartOfTarvolin),
                    m_confirmStart ? BST_CHECKED : BST_UNCHECKED);
    SetFocus(Item(IDC_txtEditorPath));
}

void frmOptions::TranslateDialog() try {
    WinText::Set(Handle(), TranslateDialogItem("DIALOG_CAPTION"));
    Mnemonics keys = WinText::KeySet();
    WinText::SetItem(Handle(), IDC_lblEditor, keys.Add(TranslateDialogItem("LBL_EDITOR") + ":"));
    WinText::SetItem(Handle(), IDC_cmdEditorPath, keys.Add(Translator().TranslateEx("GLOBAL", "BTN_Browse")));
    WinText::SetItem(Handle(), IDC_ckSafetyPromptBeforeStartOfTarvolin,
                     keys.Add(TranslateDialogItem("CHK_SHOW_STARTTARVOLINDIALOG")));
    WinText::SetItem(Handle(), IDC_cmdOk, Translator().TranslateEx("GLOBAL", "BTN_OK"));
    WinText::SetItem(Handle(), IDC_cmdCancel, Translator().TranslateEx("GLOBAL", "BTN_CANCEL"));
} catch (...) {
    mError::PassOn("frmOptions.TranslateDialog");
}

// A cancelled chooser returns its proposal, so a cancel on an empty field still fills in the proposed
// editor.
void frmOptions::cmdEditorPath_Click() {
    const std::string chosen = mMain::AskForEditorPath(WinText::Of(Item(IDC_txtEditorPath)));
    if (!chosen.empty())
        WinText::SetItem(Handle(), IDC_txtEditorPath, chosen);
}

void frmOptions::SaveSettings() try {
    Options& options = App().Options();
    options.SetEditorPath(WinText::Of(Item(IDC_txtEditorPath)));
    options.SetShowStartTarvolinDialog(Button_GetCheck(Item(IDC_ckSafetyPromptBeforeStartOfTarvolin)) ==
                                       BST_CHECKED);
} catch (...) {
    mError::PassOn("frmOptions.SaveSettings");
}

void frmOptions::OnCommand(int id, int code) {
    if (id == IDC_cmdEditorPath && code == BN_CLICKED) {
        mError::AsEntryPoint("frmOptions.cmdEditorPath_Click", [this] { cmdEditorPath_Click(); });
    } else if (id == IDC_cmdOk && code == BN_CLICKED) {
        mError::AsEntryPoint("frmOptions.cmdOk_Click", [this] {
            SaveSettings();
            Confirm();
        });
    } else {
        ModalDialog::OnCommand(id, code);
    }
}
