// A control that looks at its own messages first: the filter answers a message with a value or leaves it
// to the control. A failure in the filter is reported under `trail`, and the message then goes on as usual.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>

using MessageFilter = std::function<std::optional<LRESULT>(UINT message, WPARAM wParam, LPARAM lParam)>;

void Subclass(HWND control, const char* trail, MessageFilter filter);
