#include "winui/WinText.h"

#include <vector>

namespace WinText {

std::string Of(HWND window) {
    const int length = GetWindowTextLengthA(window);
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), length + 1)));
    return text;
}

void Set(HWND window, const std::string& text) {
    SetWindowTextA(window, text.c_str());
}

std::string Item(HWND dialog, int id) {
    return Of(GetDlgItem(dialog, id));
}

void SetItem(HWND dialog, int id, const std::string& text) {
    Set(GetDlgItem(dialog, id), text);
}

std::wstring Wide(const std::string& text) {
    if (text.empty())
        return {};
    const int size = static_cast<int>(text.size());
    std::wstring wide(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string Narrow(const std::wstring& text) {
    if (text.empty())
        return {};
    const int size = static_cast<int>(text.size());
    std::string narrow(static_cast<std::size_t>(
                           WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr)),
                       '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, narrow.data(), static_cast<int>(narrow.size()),
                        nullptr, nullptr);
    return narrow;
}

std::string FromGlobal(HGLOBAL memory) {
    const auto* chars = static_cast<const wchar_t*>(GlobalLock(memory));
    if (chars == nullptr)
        return {};
    std::string text = Narrow(std::wstring(chars, wcsnlen(chars, GlobalSize(memory) / sizeof(wchar_t))));
    GlobalUnlock(memory);
    return text;
}

namespace {

// Characters beyond the basic plane count as no letter: Windows' tests take one UTF-16 unit.
bool IsLetterOrDigit(char32_t code) {
    return code < 0x10000 && IsCharAlphaNumericW(static_cast<WCHAR>(code));
}

char32_t Lower(char32_t code) {
    if (code >= 0x10000)
        return code;
    return static_cast<char32_t>(reinterpret_cast<ULONG_PTR>(CharLowerW(reinterpret_cast<LPWSTR>(code))));
}

}  // namespace

Mnemonics KeySet() {
    return Mnemonics({&IsLetterOrDigit, &Lower});
}

}  // namespace WinText
