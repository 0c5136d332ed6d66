#include "ui/controls/Contrast.h"

#include <QPalette>
#include <algorithm>
#include <cmath>
#include <tuple>

namespace Contrast {
namespace {

double Linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

}  // namespace

double Ratio(const QColor& a, const QColor& b) {
    const double lighter = std::max(Luminance(a), Luminance(b));
    const double darker = std::min(Luminance(a), Luminance(b));
    return (lighter + 0.05) / (darker + 0.05);
}

QColor Readable(const QColor& background) {
    return Ratio(Qt::black, background) >= Ratio(Qt::white, background) ? QColor(Qt::black)
                                                                        : QColor(Qt::white);
}

// A link keeps its theme's colour where that reads on the background; otherwise it takes the blue of a
// light page on a light background and the light blue of a dark one on a dark background.
void ReadableOn(QPalette& palette, const QColor& background) {
    const QColor text = Readable(background);
    palette.setColor(QPalette::WindowText, text);
    const bool light = text == QColor(Qt::black);
    for (auto [role, onLight, onDark] : {std::tuple{QPalette::Link, 0x0000EE, 0x8AB4F8},
                                         std::tuple{QPalette::LinkVisited, 0x551A8B, 0xC58AF9}}) {
        if (Ratio(palette.color(role), background) < kBodyText)
            palette.setColor(role, QColor::fromRgb(static_cast<QRgb>(light ? onLight : onDark)));
    }
}

}  // namespace Contrast
