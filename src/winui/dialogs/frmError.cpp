#include "winui/dialogs/frmError.h"

#include <commctrl.h>

#include "Version.h"
#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "platform/Platform.h"
#include "resource.h"
#include "translate/cTranslate.h"
#include "winui/WinText.h"

namespace {

bool CanTranslate() {
    return g_cApp && g_cTranslate;
}

// The edit controls show line breaks only as CR LF.
std::string WindowsLines(const std::string& text) {
    std::string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n' && (i == 0 || text[i - 1] != '\r'))
            lines += '\r';
        lines += text[i];
    }
    return lines;
}

void AddTab(HWND strip, int index, const std::string& title) {
    TCITEMA tab{};
    tab.mask = TCIF_TEXT;
    tab.pszText = const_cast<char*>(title.c_str());
    if (TabCtrl_GetItemCount(strip) > index)
        SendMessageA(strip, TCM_SETITEMA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&tab));
    else
        SendMessageA(strip, TCM_INSERTITEMA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&tab));
}

}  // namespace

frmError::frmError() : ModalDialog("frmError", IDD_frmError, "ERROR_DIALOG") {}

std::string frmError::DialogText(const char* key, const char* english) const {
    return CanTranslate() ? TranslateDialogItem(key) : std::string(english);
}

void frmError::TranslateDialog() {
    WinText::Set(Handle(), DialogText("DIALOG_CAPTION", "Error Report"));
    const HWND strip = Item(IDC_TabStrip1);
    AddTab(strip, kReportPage, DialogText("TAB_REPORT", "Report"));
    AddTab(strip, kContactPage, DialogText("TAB_CONTACT", "Contact"));
    WinText::SetItem(
        Handle(), IDC_lblNote,
        std::string("Please send an E-Mail with the following text to ") + Version::kContactEmail);
    WinText::SetItem(
        Handle(), IDC_lblContactInfo,
        DialogText("LBL_CONTACT_INFO",
                   "Please help us fix this error: click Copy to put the report on the clipboard, "
                   "then click Write E-mail and paste the report into the new message."));
    WinText::SetItem(Handle(), IDC_lblAddress, Version::kContactEmail);
    Mnemonics keys = WinText::KeySet();
    WinText::SetItem(Handle(), IDC_lblDescription,
                     keys.Add(DialogText("LBL_DESCRIPTION", "An error has occurred:")));
    WinText::SetItem(Handle(), IDC_cmdCopy, keys.Add(DialogText("BTN_COPY", "Copy")));
    WinText::SetItem(Handle(), IDC_Command1, keys.Add(DialogText("BTN_SEND_MAIL", "Write E-mail")));
    WinText::SetItem(Handle(), IDC_cmdContact, keys.Add(DialogText("BTN_CONTACT", "Contact")));
    WinText::SetItem(Handle(), IDC_cmdDetails, keys.Add(DialogText("BTN_DETAILS", "Details")));
    WinText::SetItem(Handle(), IDC_cmdClose,
                     keys.Add(CanTranslate() ? Translator().TranslateEx("GLOBAL", "BTN_CLOSE") : "Close"));
}

void frmError::OnShow() {
    WinText::SetItem(Handle(), IDC_txtDescription, WindowsLines(m_report.description));
    WinText::SetItem(Handle(), IDC_txtErrorNote, WindowsLines(m_report.text));
    // The pages' controls lie above the tab strip, so that they are drawn and reached after it.
    for (int id :
         {IDC_lblNote, IDC_txtErrorNote, IDC_cmdContact, IDC_lblContactInfo, IDC_lblAddress, IDC_cmdDetails})
        SetWindowPos(Item(id), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    ActivatePage(kReportPage);
    SetFocus(Item(IDC_cmdCopy));
}

void frmError::ActivatePage(int index) try {
    TabCtrl_SetCurSel(Item(IDC_TabStrip1), index);
    for (int id : {IDC_lblNote, IDC_txtErrorNote, IDC_cmdContact})
        ShowWindow(Item(id), index == kReportPage ? SW_SHOW : SW_HIDE);
    for (int id : {IDC_lblContactInfo, IDC_lblAddress, IDC_cmdDetails})
        ShowWindow(Item(id), index == kContactPage ? SW_SHOW : SW_HIDE);
} catch (...) {
    mError::PassOn("frmError.ActivatePage");
}

void frmError::ShowPage(Page page) {
    ActivatePage(page);
    SetFocus(Item(IDC_Command1));
}

// Before the application object exists there is nobody to ask, so the mail goes straight to the shell.
void frmError::OnCommand(int id, int code) {
    if (code != BN_CLICKED)
        return;
    const int64_t owner = OwnerOf(Handle());
    switch (id) {
        case IDC_cmdContact:
            mError::AsEntryPoint("frmError.cmdContact_Click", [this] { ShowPage(kContactPage); });
            break;
        case IDC_cmdDetails:
            mError::AsEntryPoint("frmError.cmdDetails_Click", [this] { ShowPage(kReportPage); });
            break;
        case IDC_cmdCopy:
            mError::AsEntryPoint("frmError.cmdCopy_Click", [this] { Ui().SetClipboardText(m_report.text); });
            break;
        case IDC_Command1:
            mError::AsEntryPoint("frmError.Command1_Click", [owner] {
                if (g_cApp)
                    g_cApp->ContactAuthor(owner);
                else
                    Os().ShellExec(owner, "open", Application::ContactAddress(), "", "", kSwShowNormal);
            });
            break;
        case IDC_cmdClose:
            Dismiss();
            break;
        default:
            ModalDialog::OnCommand(id, code);
    }
}

// The pages' texts lie on the tab strip's body, which visual styles draw in the window colour.
std::optional<INT_PTR> frmError::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CTLCOLORSTATIC && reinterpret_cast<HWND>(lParam) != Item(IDC_txtDescription) &&
        reinterpret_cast<HWND>(lParam) != Item(IDC_lblDescription)) {
        SetBkColor(reinterpret_cast<HDC>(wParam), GetSysColor(COLOR_WINDOW));
        SetTextColor(reinterpret_cast<HDC>(wParam), GetSysColor(COLOR_WINDOWTEXT));
        return reinterpret_cast<INT_PTR>(GetSysColorBrush(COLOR_WINDOW));
    }
    const auto* notice = reinterpret_cast<const NMHDR*>(lParam);
    if (message == WM_NOTIFY && notice->idFrom == IDC_TabStrip1 && notice->code == TCN_SELCHANGE)
        mError::AsEntryPoint("frmError.TabStrip1_Click",
                             [this] { ActivatePage(TabCtrl_GetCurSel(Item(IDC_TabStrip1))); });
    return std::nullopt;
}
