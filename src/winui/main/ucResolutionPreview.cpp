#include "winui/main/ucResolutionPreview.h"

// GDI+ uses min and max, which NOMINMAX keeps out of windows.h.
#include <objidl.h>

#include <algorithm>
namespace Gdiplus {
using std::max;
using std::min;
}  // namespace Gdiplus
#include <gdiplus.h>
#include <shlwapi.h>

#include <memory>

#include "error/mError.h"
#include "resource.h"

namespace {

// The picture is stored at twice its natural size, so that it stays sharp at 200 % scaling.
constexpr int kStoredScale = 2;

// The sample picture, decoded once, when the preview first needs it.
Gdiplus::Bitmap* SamplePicture() {
    static const std::unique_ptr<Gdiplus::Bitmap> picture = [] {
        ULONG_PTR token = 0;
        Gdiplus::GdiplusStartupInput input;
        Gdiplus::GdiplusStartup(&token, &input, nullptr);
        HMODULE module = GetModuleHandleA(nullptr);
        HRSRC found = FindResourceA(module, MAKEINTRESOURCEA(IDR_SAMPLE_PICTURE), MAKEINTRESOURCEA(10));
        if (found == nullptr)
            return std::unique_ptr<Gdiplus::Bitmap>();
        const auto* bytes = static_cast<const BYTE*>(LockResource(LoadResource(module, found)));
        IStream* stream = SHCreateMemStream(bytes, SizeofResource(module, found));
        std::unique_ptr<Gdiplus::Bitmap> bitmap(Gdiplus::Bitmap::FromStream(stream));
        stream->Release();
        if (bitmap && bitmap->GetLastStatus() != Gdiplus::Ok)
            bitmap.reset();
        return bitmap;
    }();
    return picture.get();
}

int Dpi(HWND window) {
    return static_cast<int>(GetDpiForWindow(window));
}

Gdiplus::Rect Device(const PreviewLayout::Box& box, int dpi) {
    auto scaled = [dpi](int value) { return MulDiv(value, dpi, USER_DEFAULT_SCREEN_DPI); };
    return {scaled(box.left), scaled(box.top), scaled(box.width), scaled(box.height)};
}

Gdiplus::Color Colour(uint32_t rgb) {
    return Gdiplus::Color(255, (rgb >> 16) & 0xFF, (rgb >> 8) & 0xFF, rgb & 0xFF);
}

}  // namespace

void ucResolutionPreview::SetResolution(int16_t width, int16_t height, bool windowLook) try {
    m_pending = Resolution{width, height, windowLook};
    if (m_control != nullptr && IsWindowVisible(m_control))
        InvalidateRect(m_control, nullptr, FALSE);
} catch (...) {
    mError::ShowError("ucResolutionPreview.SetResolution");
}

void ucResolutionPreview::LayOut(const Resolution& resolution) {
    Gdiplus::Bitmap* picture = SamplePicture();
    if (picture == nullptr)
        return;
    RECT client{};
    GetClientRect(m_control, &client);
    const int dpi = Dpi(m_control);
    const PreviewLayout::Size control{MulDiv(client.right, USER_DEFAULT_SCREEN_DPI, dpi),
                                      MulDiv(client.bottom, USER_DEFAULT_SCREEN_DPI, dpi)};
    const PreviewLayout::Size natural{static_cast<int>(picture->GetWidth()) / kStoredScale,
                                      static_cast<int>(picture->GetHeight()) / kStoredScale};
    if (auto layout = PreviewLayout::For(control, natural, resolution.width, resolution.height,
                                         resolution.windowLook)) {
        m_layout = layout;
        m_windowLook = resolution.windowLook;
    }
}

void ucResolutionPreview::Paint(const DRAWITEMSTRUCT& item) {
    if (m_pending) {
        LayOut(*m_pending);
        m_pending.reset();
    }
    Gdiplus::Graphics graphics(item.hDC);
    const RECT& box = item.rcItem;
    const int width = box.right - box.left;
    const int height = box.bottom - box.top;
    Gdiplus::SolidBrush screen(Colour(PreviewLayout::kScreen));
    graphics.FillRectangle(&screen, 0, 0, width, height);
    Gdiplus::Pen edge(Colour(PreviewLayout::kScreenEdge));
    graphics.DrawRectangle(&edge, 0, 0, width - 1, height - 1);
    Gdiplus::Bitmap* picture = SamplePicture();
    if (!m_layout || picture == nullptr)
        return;
    const int dpi = Dpi(item.hwndItem);
    if (m_windowLook) {
        Gdiplus::SolidBrush window(Colour(PreviewLayout::kWindow));
        graphics.FillRectangle(&window, Device(m_layout->frame, dpi));
        const Gdiplus::Rect title = Device(m_layout->titleBar, dpi);
        Gdiplus::LinearGradientBrush fade(title, Colour(PreviewLayout::kTitle),
                                          Colour(PreviewLayout::kTitleFade),
                                          Gdiplus::LinearGradientModeHorizontal);
        graphics.FillRectangle(&fade, title);
    }
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQualityBicubic);
    graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
    graphics.DrawImage(picture, Device(m_layout->image, dpi));
}
