#include "winui/controls/ucTab.h"

#include "winui/WinText.h"
#include "winui/controls/PageTabAccessible.h"

namespace ucTab {

namespace {

constexpr int kLabelLeft = 8;

void Frame(HDC dc, RECT box, int width, bool openBottom) {
    HPEN pen = CreatePen(PS_INSIDEFRAME, width, kBorder);
    HGDIOBJ old = SelectObject(dc, pen);
    HGDIOBJ oldBrush = SelectObject(dc, FillBrush());
    Rectangle(dc, box.left, box.top, box.right, box.bottom + (openBottom ? width : 0));
    SelectObject(dc, oldBrush);
    SelectObject(dc, old);
    DeleteObject(pen);
}

}  // namespace

HBRUSH FillBrush() {
    static HBRUSH brush = CreateSolidBrush(kFill);
    return brush;
}

int Scaled(HWND window, int pixels) {
    return MulDiv(pixels, static_cast<int>(GetDpiForWindow(window)), USER_DEFAULT_SCREEN_DPI);
}

int WidthFor(HWND tab) {
    const std::wstring caption = WinText::Wide(WinText::Of(tab));
    HDC dc = GetDC(tab);
    HGDIOBJ old = SelectObject(dc, reinterpret_cast<HFONT>(SendMessageA(tab, WM_GETFONT, 0, 0)));
    RECT text{};
    DrawTextW(dc, caption.c_str(), static_cast<int>(caption.size()), &text, DT_CALCRECT | DT_SINGLELINE);
    SelectObject(dc, old);
    ReleaseDC(tab, dc);
    return text.right + 2 * Scaled(tab, kLabelLeft);
}

void Draw(const DRAWITEMSTRUCT& item, bool active) {
    HDC dc = item.hDC;
    const HWND tab = item.hwndItem;
    RECT box = item.rcItem;
    FillRect(dc, &box, GetSysColorBrush(COLOR_BTNFACE));
    box.top += Scaled(tab, active ? 0 : 2);
    Frame(dc, box, Scaled(tab, active ? 2 : 1), true);
    const std::wstring caption = WinText::Wide(WinText::Of(tab));
    RECT label = box;
    label.top += Scaled(tab, 2);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    const UINT format =
        DT_CENTER | DT_VCENTER | DT_SINGLELINE | ((item.itemState & ODS_NOACCEL) ? DT_HIDEPREFIX : 0);
    DrawTextW(dc, caption.c_str(), static_cast<int>(caption.size()), &label, format);
    if ((item.itemState & ODS_FOCUS) && !(item.itemState & ODS_NOFOCUSRECT)) {
        InflateRect(&label, -Scaled(tab, 4), -Scaled(tab, 2));
        DrawFocusRect(dc, &label);
    }
}

void DrawArea(const DRAWITEMSTRUCT& item, int left, int right) {
    const HWND area = item.hwndItem;
    Frame(item.hDC, item.rcItem, Scaled(area, 1), false);
    // The active tab's frame is two pixels wide: the gap inside it shows the area's fill.
    const int edge = Scaled(area, 2);
    RECT gap{left + edge, item.rcItem.top, right - edge, item.rcItem.top + Scaled(area, 1)};
    FillRect(item.hDC, &gap, FillBrush());
}

std::optional<INT_PTR> PageColours(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_CTLCOLORDLG && message != WM_CTLCOLORSTATIC && message != WM_CTLCOLORBTN)
        return std::nullopt;
    // A link draws on the fill and gets a stock brush, which nobody can delete: Wine's link control deletes
    // the brush it is handed, which would take the fill from every page of the program.
    char kind[16] = {};
    if (message == WM_CTLCOLORSTATIC &&
        GetClassNameA(reinterpret_cast<HWND>(lParam), kind, sizeof kind) > 0 &&
        lstrcmpiA(kind, "SysLink") == 0) {
        SetBkMode(reinterpret_cast<HDC>(wParam), TRANSPARENT);
        return reinterpret_cast<INT_PTR>(GetStockObject(NULL_BRUSH));
    }
    SetBkColor(reinterpret_cast<HDC>(wParam), kFill);
    SetTextColor(reinterpret_cast<HDC>(wParam), GetSysColor(COLOR_BTNTEXT));
    return reinterpret_cast<INT_PTR>(FillBrush());
}

RECT PlaceInParent(HWND control) {
    RECT box{};
    GetWindowRect(control, &box);
    MapWindowPoints(HWND_DESKTOP, GetParent(control), reinterpret_cast<POINT*>(&box), 2);
    return box;
}

void Row::Attach(HWND dialog) {
    m_dialog = dialog;
    for (int i = 0; i < m_count; ++i)
        PageTabAccessible::Announce(Tab(i), [this, i] { return m_active == i; });
}

void Row::Place() const {
    const RECT area = PlaceInParent(GetDlgItem(m_dialog, m_area));
    int left = area.left;
    for (int i = 0; i < m_count; ++i) {
        const RECT box = PlaceInParent(Tab(i));
        const int width = WidthFor(Tab(i));
        MoveWindow(Tab(i), left, box.top, width, area.top - box.top, TRUE);
        left += width;
    }
}

void Row::Select(int index) {
    m_active = index;
    for (int i = 0; i < m_count; ++i)
        InvalidateRect(Tab(i), nullptr, TRUE);
    InvalidateRect(GetDlgItem(m_dialog, m_area), nullptr, TRUE);
    NotifyWinEvent(EVENT_OBJECT_SELECTION, Tab(index), OBJID_CLIENT, CHILDID_SELF);
}

bool Row::Draw(const DRAWITEMSTRUCT& item) const {
    const int id = static_cast<int>(item.CtlID);
    if (id == m_area) {
        const RECT tab = PlaceInParent(Tab(m_active));
        const RECT area = PlaceInParent(item.hwndItem);
        DrawArea(item, tab.left - area.left, tab.right - area.left);
        return true;
    }
    if (IndexOf(id) < 0)
        return false;
    ucTab::Draw(item, IndexOf(id) == m_active);
    return true;
}

}  // namespace ucTab
