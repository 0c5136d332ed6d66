// The drawn tabs and the page area below them: owner-drawn buttons in a row above an owner-drawn frame.
// Each tab is as wide as its caption with equal margins; the active one stands two pixels higher with a
// thicker frame that stays open at the bottom, where it joins the area. As buttons, the tabs take the focus,
// are pressed with Space, move with the arrow keys and are named by their captions for screen readers.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace ucTab {

inline constexpr COLORREF kBorder = RGB(0x80, 0x80, 0x80);
inline constexpr COLORREF kFill = RGB(0xE0, 0xE0, 0xE0);

// One brush of the fill colour for the whole program.
HBRUSH FillBrush();

// Pixels of `window` for `pixels` at 96 dots per inch.
int Scaled(HWND window, int pixels);

// The width tab `tab` needs for its caption, in pixels.
int WidthFor(HWND tab);

// Draws one tab of the row.
void Draw(const DRAWITEMSTRUCT& item, bool active);

// Draws the page area (ucTabArea), leaving its top line open under the active tab, which spans `left` to
// `right` in the area's coordinates.
void DrawArea(const DRAWITEMSTRUCT& item, int left, int right);

// A page on the tab area shows the area's fill behind its texts: the answer to its WM_CTLCOLORDLG,
// WM_CTLCOLORSTATIC and WM_CTLCOLORBTN, and nothing for any other message.
std::optional<INT_PTR> PageColours(UINT message, WPARAM wParam, LPARAM lParam);

// A rectangle of `control` in the coordinates of its parent.
RECT PlaceInParent(HWND control);

// A dialog's row of tabs, numbered on from `first`, on the tab area `area`: it places, draws and selects
// them, and makes them announce themselves as page tabs.
class Row {
public:
    Row(int first, int count, int area) : m_first(first), m_count(count), m_area(area) {}

    // Once the dialog's controls exist.
    void Attach(HWND dialog);
    // Each tab as wide as its caption, side by side on the area's upper edge.
    void Place() const;
    // Makes tab `index` the active one and redraws the row.
    void Select(int index);
    int Active() const { return m_active; }
    HWND Tab(int index) const { return GetDlgItem(m_dialog, m_first + index); }
    // The index of the tab with control number `id`, or -1.
    int IndexOf(int id) const { return id >= m_first && id < m_first + m_count ? id - m_first : -1; }
    // Draws `item` when it is one of the row's tabs or its area; false when it is neither.
    bool Draw(const DRAWITEMSTRUCT& item) const;

private:
    HWND m_dialog = nullptr;
    int m_first;
    int m_count;
    int m_area;
    int m_active = 0;
};

}  // namespace ucTab
