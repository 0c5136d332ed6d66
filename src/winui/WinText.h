// Texts between core and the Windows controls. The program runs in the UTF-8 code page, so the "A"
// functions take core's UTF-8 strings as they are; where Windows wants UTF-16 (the clipboard, COM), the
// conversion happens here and nowhere else.
#pragma once

#include <windows.h>

#include <string>

#include "base/Mnemonics.h"

namespace WinText {

std::string Of(HWND window);
void Set(HWND window, const std::string& text);
std::string Item(HWND dialog, int id);
void SetItem(HWND dialog, int id, const std::string& text);

std::wstring Wide(const std::string& text);
std::string Narrow(const std::wstring& text);
// The UTF-16 text in global memory (the clipboard's, a drag's) up to its NUL or its end, as UTF-8.
std::string FromGlobal(HGLOBAL memory);

// Alt+letters for one window's captions, with Windows telling what is a letter and what its lower case is.
Mnemonics KeySet();

}  // namespace WinText
