// The preview of the chosen resolution on the display page (UserControl11): the sample picture of the game,
// the smaller the higher the resolution, or inside a drawn window for the game's own window. It paints an
// owner-drawn static control; where the picture goes is the layout rule every face shares.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>

#include "mainwindow/PreviewLayout.h"

class ucResolutionPreview {
public:
    void Attach(HWND control) { m_control = control; }

    // Keeps the resolution and lays the picture out anew; a resolution that is not above 0 in both
    // directions outside window look leaves the drawing as it was. A preview that is not shown yet does so
    // when it first paints: the picture is decoded then, and the display page is not the first.
    void SetResolution(int16_t width, int16_t height, bool windowLook);

    void Paint(const DRAWITEMSTRUCT& item);

private:
    struct Resolution {
        int16_t width;
        int16_t height;
        bool windowLook;
    };
    void LayOut(const Resolution& resolution);

    HWND m_control = nullptr;
    std::optional<Resolution> m_pending;
    std::optional<PreviewLayout::Layout> m_layout;
    bool m_windowLook = false;
};
