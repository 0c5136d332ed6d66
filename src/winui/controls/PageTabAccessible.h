// Screen readers learn what a control is from its accessible object. The drawn tabs are owner-drawn
// buttons, whose standard object calls them push buttons; this gives each one an object that calls it a
// page tab, selected while its page is shown, and leaves its name, place and action (a click) to the
// standard object. The accessibility library is loaded when a screen reader first asks.
#pragma once

#include <windows.h>

#include <functional>

namespace PageTabAccessible {

// From now on `tab` announces itself as a page tab; `selected` says whether its page is the one shown.
void Announce(HWND tab, std::function<bool()> selected);

}  // namespace PageTabAccessible
