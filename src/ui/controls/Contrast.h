// Text that stays readable on the drawn controls' own colours. The tabs, the page area and the path field
// keep their documented light colours whatever the theme, so text on them cannot take the theme's text
// colour, which a dark theme makes light: it takes black or white, whichever stands out more.
#pragma once

#include <QColor>

class QPalette;

namespace Contrast {

// The contrast ratio of two colours as the Web Content Accessibility Guidelines define it: from 1 (the same
// luminance) to 21 (black on white); 4.5 is the least that body text should have.
double Ratio(const QColor& a, const QColor& b);
inline constexpr double kBodyText = 4.5;

// Black or white, whichever has the higher ratio against `background`.
QColor Readable(const QColor& background);

// Gives `palette`'s window text and links colours that read on `background`.
void ReadableOn(QPalette& palette, const QColor& background);

}  // namespace Contrast
