// Where the resolution preview puts its picture, and the window frame and title bar it draws around it in
// window look: the rule of the preview control, the same in both faces. Sizes are the control's
// device-independent pixels.
#pragma once

#include <cstdint>
#include <optional>

namespace PreviewLayout {

// The resolution at which the picture shows at its natural size, and the share of the control that the
// picture fills in window look.
inline constexpr double kNaturalWidthAt = 640.0;
inline constexpr double kNaturalHeightAt = 480.0;
inline constexpr double kWindowShare = 0.6;

// The colours of the drawn screen, as 0xRRGGBB: the screen and its edge, and in window look the window and
// its title bar, which fades from the first colour to the second.
inline constexpr uint32_t kScreen = 0x1B232E;
inline constexpr uint32_t kScreenEdge = 0x5A636E;
inline constexpr uint32_t kWindow = 0xD4D0C8;
inline constexpr uint32_t kTitle = 0x0A246A;
inline constexpr uint32_t kTitleFade = 0xA6CAF0;

struct Size {
    int width = 0;
    int height = 0;
};

struct Box {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

struct Layout {
    Box image;     // the stretched picture
    Box frame;     // the window around it, 2 pixels wider on each side
    Box titleBar;  // the title bar above the picture
};

// The layout in a control of `control` size for a picture of `natural` size showing a `width` x `height`
// resolution, or in window look: the picture scaled against 640 x 480, or 60 % of the control, centred.
// Nothing for a resolution that is not above 0 in both directions outside window look.
std::optional<Layout> For(Size control, Size natural, int16_t width, int16_t height, bool windowLook);

}  // namespace PreviewLayout
