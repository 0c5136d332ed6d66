#include "winui/shortcuts/ucWizard_TitleArea.h"

#include "error/mError.h"
#include "resource.h"
#include "winui/WinText.h"

ucWizard_TitleArea::~ucWizard_TitleArea() {
    if (m_bold != nullptr)
        DeleteObject(m_bold);
}

void ucWizard_TitleArea::Attach(HWND window) {
    m_window = window;
    LOGFONTA font{};
    GetObjectA(reinterpret_cast<HFONT>(SendMessageA(window, WM_GETFONT, 0, 0)), sizeof font, &font);
    font.lfWeight = FW_BOLD;
    m_bold = CreateFontIndirectA(&font);
    SendDlgItemMessageA(window, IDC_lblStep, WM_SETFONT, reinterpret_cast<WPARAM>(m_bold), FALSE);
}

void ucWizard_TitleArea::SetTexts(const std::string& step, const std::string& stepDesc,
                                  const std::string& stepTask) try {
    WinText::SetItem(m_window, IDC_lblStep, step);
    WinText::SetItem(m_window, IDC_lblStepDesc, stepDesc);
    WinText::SetItem(m_window, IDC_lblStepTask, stepTask);
} catch (...) {
    mError::ShowError("SetTexts");
}

std::optional<INT_PTR> ucWizard_TitleArea::Colours(HDC dc, HWND control) const {
    const int id = GetDlgCtrlID(control);
    if (GetParent(control) != m_window || id < IDC_lblStep || id > IDC_TitleArea_Shape1)
        return std::nullopt;
    SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    SetBkColor(dc, GetSysColor(COLOR_WINDOW));
    return reinterpret_cast<INT_PTR>(GetSysColorBrush(COLOR_WINDOW));
}
