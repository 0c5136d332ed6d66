#include "winui/controls/ucTab.h"

#include "winui/WinText.h"

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

}  // namespace ucTab
