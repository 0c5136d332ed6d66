#include "winui/main/DisplayPage.h"

#include <windowsx.h>

#include "app/UserInterface.h"
#include "error/mError.h"
#include "mainwindow/frmMainRules.h"
#include "resource.h"
#include "winui/WinText.h"
#include "winui/controls/Subclass.h"
#include "winui/main/ucResolutionPreview.h"

namespace {

constexpr int kSizeDigits = 5;

bool AllDigits(const std::string& text) {
    return text.find_first_not_of("0123456789") == std::string::npos;
}

}  // namespace

DisplayPage::DisplayPage(ValueChanged changed, ButtonPressed pressed, Teller tellCorrection)
    : MainPage(IDD_DisplayPage, std::move(changed), std::move(pressed)),
      m_tellCorrection(std::move(tellCorrection)),
      m_preview(std::make_unique<ucResolutionPreview>()) {}

DisplayPage::~DisplayPage() = default;

void DisplayPage::OnInit() {
    m_preview->Attach(Item(IDC_UserControl11));
    WatchSizeField(IDC_txtRes_Width, "frmMain.txtRes_Width");
    WatchSizeField(IDC_txtRes_Height, "frmMain.txtRes_Height");
}

// Typing into a size field chooses the user-defined mode, and only digits and backspace get in; pasted text
// gets in only when it is all digits. A click into the field chooses the mode too.
void DisplayPage::WatchSizeField(int id, const char* trail) {
    const HWND field = Item(id);
    SendMessageA(field, EM_LIMITTEXT, kSizeDigits, 0);
    Subclass(field, trail, [this](UINT message, WPARAM wParam, LPARAM) -> std::optional<LRESULT> {
        if (message == WM_CHAR && frmMainRules::TypesIntoResolutionField(static_cast<int>(wParam))) {
            ChooseMode(1);
            if (!frmMainRules::IsResolutionKey(static_cast<int>(wParam)))
                return 0;
        } else if (message == WM_LBUTTONDOWN) {
            ChooseMode(1);
        } else if (message == WM_PASTE && !AllDigits(Ui().GetClipboardText())) {
            MessageBeep(MB_OK);
            return 0;
        }
        return std::nullopt;
    });
}

void DisplayPage::ChooseMode(int index) {
    const bool changed = Button_GetCheck(Item(IDC_opResolution_0 + index)) != BST_CHECKED;
    CheckRadioButton(Handle(), IDC_opResolution_0, IDC_opResolution_0 + 1, IDC_opResolution_0 + index);
    if (changed)
        Changed("frmMain.opResolution_Click");
}

void DisplayPage::ShowValues(const MainWindowValues& values) {
    m_loading = true;
    CheckRadioButton(Handle(), IDC_opResolution_0, IDC_opResolution_0 + 1,
                     IDC_opResolution_0 + (values.standardResolution ? 0 : 1));
    ListBox_SetCurSel(Item(IDC_lstResolution), values.resolution - 1);
    WinText::SetItem(Handle(), IDC_txtRes_Width, values.width);
    WinText::SetItem(Handle(), IDC_txtRes_Height, values.height);
    m_loading = false;
}

void DisplayPage::HandBack(MainWindowValues& values) const {
    values.standardResolution = Button_GetCheck(Item(IDC_opResolution_0)) == BST_CHECKED;
    values.resolution = ListBox_GetCurSel(Item(IDC_lstResolution)) + 1;
    values.width = WinText::Item(Handle(), IDC_txtRes_Width);
    values.height = WinText::Item(Handle(), IDC_txtRes_Height);
}

void DisplayPage::CorrectInput() try {
    MainWindowValues values;
    HandBack(values);
    const frmMainRules::ResolutionCorrection corrected = frmMainRules::CorrectInput(values);
    if (corrected.height) {
        WinText::SetItem(Handle(), IDC_txtRes_Height, *corrected.height);
        m_tellCorrection("MSG_ResolutionHeigthChanged", nullptr);
    }
    if (corrected.width) {
        WinText::SetItem(Handle(), IDC_txtRes_Width, *corrected.width);
        m_tellCorrection("MSG_ResolutionWidthChanged", Item(IDC_txtRes_Width));
    }
} catch (...) {
    mError::PassOn("frmMain.CorrectInput");
}

void DisplayPage::lstResolution_Click() {
    const bool shown = mError::AsEntryPoint("frmMain.lstResolution_Click", [this] {
        if (!m_loading)
            ChooseMode(0);
        ShowPreview();
    });
    if (shown)
        Changed("frmMain.lstResolution_Click");
}

void DisplayPage::ShowPreview() {
    if (const auto preview = frmMainRules::PreviewFor(ListBox_GetCurSel(Item(IDC_lstResolution)) + 1))
        m_preview->SetResolution(preview->width, preview->height, preview->fillArea);
}

void DisplayPage::OnCommand(int id, int code) {
    if (id == IDC_lstResolution && code == LBN_SELCHANGE) {
        lstResolution_Click();
    } else if ((id == IDC_opResolution_0 || id == IDC_opResolution_0 + 1) && code == BN_CLICKED) {
        ChooseMode(id - IDC_opResolution_0);
    } else if (id == IDC_txtRes_Width || id == IDC_txtRes_Height) {
        const std::string field = id == IDC_txtRes_Width ? "frmMain.txtRes_Width" : "frmMain.txtRes_Height";
        if (code == EN_CHANGE)
            Changed(id == IDC_txtRes_Width ? "frmMain.txtRes_Width_Change" : "frmMain.txtRes_Height_Change");
        else if (code == EN_KILLFOCUS)
            mError::AsEntryPoint(field + "_LostFocus", [this] { CorrectInput(); });
    }
}

std::optional<INT_PTR> DisplayPage::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DRAWITEM && wParam == IDC_UserControl11) {
        m_preview->Paint(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    }
    return MainPage::OnMessage(message, wParam, lParam);
}

void DisplayPage::Retranslate(Mnemonics& keys) {
    SetCaption(IDC_opResolution_0, keys, Text("OP_STANDARD_RESOLUTION"));
    SetCaption(IDC_opResolution_0 + 1, keys, Text("OP_USERDEFINED_RESOLUTION"));
    SetCaption(IDC_lblwidth_heigth, keys, Text("LBL_RESOLUTION_WIDTH_HEIGTH"));
    WinText::SetItem(Handle(), IDC_frmResolution, Text("LBL_RESOLUTION_FRAME"));
    WinText::SetItem(Handle(), IDC_lblResolution_Warning, Text("LBL_RESOLUTION_WARNING"));
    FillList(IDC_lstResolution, "LST_RESOLUTION_");
}
