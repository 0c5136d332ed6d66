#include "mainwindow/PreviewLayout.h"

#include "base/mString.h"

namespace PreviewLayout {

std::optional<Layout> For(Size control, Size natural, int16_t width, int16_t height, bool windowLook) {
    if (!windowLook && (width <= 0 || height <= 0))
        return std::nullopt;
    const int16_t imageWidth = windowLook
                                   ? mString::RoundToInt16(control.width * kWindowShare)
                                   : mString::RoundToInt16(natural.width / double(width) * kNaturalWidthAt);
    const int16_t imageHeight =
        windowLook ? mString::RoundToInt16(control.height * kWindowShare)
                   : mString::RoundToInt16(natural.height / double(height) * kNaturalHeightAt);
    const int16_t left = mString::RoundToInt16((control.width - imageWidth) / 2.0);
    const int16_t top = mString::RoundToInt16((control.height - imageHeight) / 2.0);
    Layout layout;
    layout.image = {left, top, imageWidth, imageHeight};
    layout.titleBar = {left - 2, top - 6, imageWidth + 4, 5};
    layout.frame = {left - 2, top - 2, imageWidth + 4, imageHeight + 4};
    return layout;
}

}  // namespace PreviewLayout
