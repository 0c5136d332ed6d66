#include "winui/dialogs/frmInfo.h"

#include <commctrl.h>

#include "Version.h"
#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "translate/cTranslate.h"
#include "winui/WinText.h"

namespace {

// A page keeps this much room to the tab area's frame, at 96 dots per inch.
constexpr int kPageMargin = 6;

// A link's text: the shown text as the one link of a SysLink control.
std::string Link(const std::string& shown) {
    return "<a>" + shown + "</a>";
}

// A page shows the area's fill and hands its links' notices to the about box.
INT_PTR CALLBACK PageProc(HWND page, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG)
        return TRUE;
    if (message == WM_NOTIFY) {
        SendMessageA(GetParent(page), message, wParam, lParam);
        return TRUE;
    }
    return ucTab::PageColours(message, wParam, lParam).value_or(FALSE);
}

}  // namespace

frmInfo::frmInfo() : ModalDialog("frmInfo", IDD_frmInfo, "INFO_DIALOG") {}

frmInfo::~frmInfo() {
    if (m_bold != nullptr)
        DeleteObject(m_bold);
}

// The pages stand right after the tabs in the tab order, inside the tab area, above it.
void frmInfo::MakeControls() {
    const RECT area = ucTab::PlaceInParent(Item(IDC_Shape2));
    const int margin = ucTab::Scaled(Handle(), kPageMargin);
    m_tabs.Attach(Handle());
    HWND after = Item(IDC_ucTab2_0 + kPageCount - 1);
    for (int i = 0; i < kPageCount; ++i) {
        m_pages[static_cast<std::size_t>(i)] = CreateDialogParamA(
            GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_InfoPage_0 + i), Handle(), &PageProc, 0);
        const HWND page = m_pages[static_cast<std::size_t>(i)];
        SetWindowPos(page, after, area.left + margin, area.top + margin, area.right - area.left - 2 * margin,
                     area.bottom - area.top - 2 * margin, SWP_NOACTIVATE);
        after = page;
    }
}

HWND frmInfo::Control(int id) const {
    return FindControl(Handle(), id);
}

void frmInfo::OnShow() {
    LOGFONTA font{};
    GetObjectA(reinterpret_cast<HFONT>(SendMessageA(Handle(), WM_GETFONT, 0, 0)), sizeof font, &font);
    font.lfWeight = FW_BOLD;
    m_bold = CreateFontIndirectA(&font);
    SendMessageA(Control(IDC_lblProgram), WM_SETFONT, reinterpret_cast<WPARAM>(m_bold), FALSE);
    WinText::Set(Control(IDC_lblProgram), "Pavonel " + Application::VersionText());
    WinText::Set(Control(IDC_lblWebpageLink), Link(Application::WebpageAddress()));
    WinText::Set(Control(IDC_lblEmailLink), Link(Version::kContactEmail));
    m_tabs.Place();
    ucTab1_Click(0);
    SetFocus(Item(IDC_cmdClose));
}

void frmInfo::TranslateDialog() try {
    WinText::Set(Handle(), TranslateDialogItem("DIALOG_CAPTION"));
    static constexpr const char* kTabs[kPageCount] = {"TAB_INFO", "TAB_CREDITS", "TAB_CONTACT"};
    for (int i = 0; i < kPageCount; ++i)
        WinText::SetItem(Handle(), IDC_ucTab2_0 + i, TranslateDialogItem(kTabs[i]));
    WinText::Set(Control(IDC_lblDescription), TranslateDialogItem("LBL_DESCRIPTION"));
    WinText::Set(Control(IDC_lblCredits), TranslateDialogItem("LBL_CREDITS"));
    WinText::Set(Control(IDC_lblWebpage), TranslateDialogItem("LBL_WEBPAGE"));
    WinText::Set(Control(IDC_lblEmail), TranslateDialogItem("LBL_EMAIL"));
    WinText::SetItem(Handle(), IDC_cmdClose, Translator().TranslateEx("GLOBAL", "BTN_CLOSE"));
} catch (...) {
    mError::PassOn("frmInfo.TranslateDialog");
}

void frmInfo::ucTab1_Click(int index) try {
    m_tabs.Select(index);
    for (int page = 0; page < kPageCount; ++page)
        ShowWindow(m_pages[static_cast<std::size_t>(page)], page == index ? SW_SHOW : SW_HIDE);
} catch (...) {
    mError::ShowError("frmInfo.ucTab1_Click");
}

void frmInfo::OnCommand(int id, int code) {
    if (m_tabs.IndexOf(id) >= 0 && code == BN_CLICKED)
        ucTab1_Click(m_tabs.IndexOf(id));
    else if (id == IDC_cmdClose && code == BN_CLICKED)
        Confirm();
    else
        ModalDialog::OnCommand(id, code);
}

// The tabs and their area are drawn here; the links open through the application, as the menu's commands do.
std::optional<INT_PTR> frmInfo::OnMessage(UINT message, WPARAM, LPARAM lParam) {
    if (message == WM_DRAWITEM && m_tabs.Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)))
        return TRUE;
    const auto* notice = reinterpret_cast<const NMHDR*>(lParam);
    if (message == WM_NOTIFY && (notice->code == NM_CLICK || notice->code == NM_RETURN)) {
        if (notice->idFrom == IDC_lblWebpageLink)
            mError::AsEntryPoint("frmInfo.lblWebpageLink_Click",
                                 [this] { App().ShowPavonelWebpage(OwnerOf(Handle())); });
        else if (notice->idFrom == IDC_lblEmailLink)
            mError::AsEntryPoint("frmInfo.lblEmailLink_Click",
                                 [this] { App().ContactAuthor(OwnerOf(Handle())); });
    }
    return std::nullopt;
}
