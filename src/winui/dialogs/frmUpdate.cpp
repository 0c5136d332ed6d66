#include "winui/dialogs/frmUpdate.h"

#include <commctrl.h>

#include "app/PublicObjects.h"
#include "error/mError.h"
#include "platform/Platform.h"
#include "resource.h"
#include "translate/cTranslate.h"
#include "update/UpdateFile.h"
#include "winui/WinText.h"

frmUpdate::frmUpdate() : ModalDialog("frmUpdate", IDD_frmUpdate, "UPDATE_DIALOG") {}

void frmUpdate::InitDialog() try {
    ResetCancel();
    m_updatePage.clear();
    m_download.reset();
} catch (...) {
    mError::PassOn("frmUpdate.InitDialog");
}

void frmUpdate::OnShow() {
    // The bar keeps moving by itself while a check runs, without a message from the window.
    SendMessageA(Item(IDC_prgSearching), PBM_SETMARQUEE, TRUE, 0);
    ShowSearching();
    SetFocus(Item(IDC_cmdSearchUpdates));
}

void frmUpdate::TranslateDialog() try {
    WinText::Set(Handle(), TranslateDialogItem("DIALOG_CAPTION"));
    WinText::SetItem(Handle(), IDC_lblInfo, TranslateDialogItem("LBL_INFO"));
    Mnemonics keys = WinText::KeySet();
    WinText::SetItem(Handle(), IDC_cmdSearchUpdates,
                     keys.Add(Searching() ? Translator().TranslateEx("GLOBAL", "BTN_CANCEL")
                                          : TranslateDialogItem("BTN_SEARCH_UPDATES")));
    WinText::SetItem(Handle(), IDC_cmdOpenUpdatePage, keys.Add(TranslateDialogItem("BTN_OPEN_UPDATEPAGE")));
    WinText::SetItem(Handle(), IDC_cmdClose, keys.Add(Translator().TranslateEx("GLOBAL", "BTN_CLOSE")));
} catch (...) {
    mError::PassOn("frmUpdate.TranslateDialog");
}

// The same button starts a check and cancels a running one.
void frmUpdate::cmdSearchUpdates_Click() {
    if (Searching()) {
        EndDownload();
        WinText::SetItem(Handle(), IDC_lblStatus, "");
        return;
    }
    SearchUpdates();
}

void frmUpdate::SearchUpdates() try {
    m_updatePage.clear();
    EnableWindow(Item(IDC_cmdOpenUpdatePage), FALSE);
    WinText::SetItem(Handle(), IDC_lblStatus, TranslateDialogItem("MSG_SEARCHING"));
    m_download = std::make_unique<mInternet::Download>(update::FileAddress(), 0, Handle(), kDownloadEnded);
    ShowSearching();
} catch (...) {
    mError::ShowError("frmUpdate.SearchUpdates");
}

// A message of a download that has since been cancelled is left alone.
void frmUpdate::DownloadEnded(WPARAM id) {
    if (!m_download || m_download->Id() != id)
        return;
    const std::optional<mInternet::Outcome> outcome = m_download->Take();
    if (!outcome)
        return;
    EndDownload();
    if (outcome->finished)
        ShowReply(outcome->body);
    else
        ShowFailure(*outcome);
}

// The check's second half, once the file is there.
void frmUpdate::ShowReply(const std::string& body) {
    const update::Reply reply = update::ParseReply(body);
    WinText::SetItem(Handle(), IDC_lblUpdateInfo, reply.news);
    WinText::SetItem(Handle(), IDC_lblStatus,
                     TranslateDialogItem(reply.updateExists ? "MSG_UPDATE_FOUND" : "MSG_NO_UPDATE"));
    if (!reply.updateExists)
        return;
    m_updatePage = update::CheckedPageAddress(reply);
    EnableWindow(Item(IDC_cmdOpenUpdatePage), TRUE);
}

void frmUpdate::ShowFailure(const mInternet::Outcome& outcome) {
    WinText::SetItem(Handle(), IDC_lblStatus,
                     Translator().TranslateEx("UPDATE_DIALOG", "MSG_CHECK_FAILED", outcome.detail));
    mError::RaiseError(update::kDownloadFailed, outcome.description);
}

// While a check runs, the busy bar shows and the check's button cancels it.
void frmUpdate::ShowSearching() {
    ShowWindow(Item(IDC_prgSearching), Searching() ? SW_SHOWNOACTIVATE : SW_HIDE);
    TranslateDialog();
}

void frmUpdate::EndDownload() {
    m_download.reset();
    ShowSearching();
}

// Only a page that passed the check on the site's own host is ever handed to the shell.
void frmUpdate::cmdOpenUpdatePage_Click() {
    if (!m_updatePage.empty())
        Os().ShellExec(OwnerOf(Handle()), "open", m_updatePage, "", "", kSwShowNormal);
}

void frmUpdate::OnCommand(int id, int code) {
    if (id == IDC_cmdSearchUpdates && code == BN_CLICKED) {
        mError::AsEntryPoint("frmUpdate.cmdSearchUpdates_Click", [this] { cmdSearchUpdates_Click(); });
    } else if (id == IDC_cmdOpenUpdatePage && code == BN_CLICKED) {
        mError::AsEntryPoint("frmUpdate.cmdOpenUpdatePage_Click", [this] { cmdOpenUpdatePage_Click(); });
    } else if ((id == IDC_cmdClose && code == BN_CLICKED) || id == IDCANCEL) {
        // Closing ends a running check first.
        m_download.reset();
        Dismiss();
    }
}

std::optional<INT_PTR> frmUpdate::OnMessage(UINT message, WPARAM wParam, LPARAM) {
    if (message != kDownloadEnded)
        return std::nullopt;
    mError::AsEntryPoint("frmUpdate.SearchUpdates", [this, wParam] { DownloadEnded(wParam); });
    return TRUE;
}
