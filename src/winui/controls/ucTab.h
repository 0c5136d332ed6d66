// The drawn tabs and the page area below them: owner-drawn buttons in a row above an owner-drawn frame.
// Each tab is as wide as its caption with equal margins; the active one stands two pixels higher with a
// thicker frame that stays open at the bottom, where it joins the area. As buttons, the tabs take the focus,
// are pressed with Space, move with the arrow keys and are named by their captions for screen readers.
#pragma once

#include <windows.h>

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

}  // namespace ucTab
