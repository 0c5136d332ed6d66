// The colours of the drawn tabs and of the page area they sit on: one look for every tab strip.
#pragma once

#include <QColor>

namespace TabColours {

inline const QColor kBorder(0x80, 0x80, 0x80);
inline const QColor kFill(0xE0, 0xE0, 0xE0);

}  // namespace TabColours
