// The bare window the start benchmark compares the program with: the main window's frame, five tabs and a
// tab area, drawn the simplest way, in a message loop of its own.
#include <windows.h>

#include <commctrl.h>

#include "resource.h"

namespace {

INT_PTR CALLBACK Proc(HWND window, UINT message, WPARAM, LPARAM lParam) {
    if (message == WM_DRAWITEM) {
        const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        FrameRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_BTNSHADOW));
        wchar_t caption[64] = {};
        GetWindowTextW(item.hwndItem, caption, 64);
        RECT label = item.rcItem;
        DrawTextW(item.hDC, caption, -1, &label, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
        return TRUE;
    }
    if (message == WM_CLOSE) {
        DestroyWindow(window);
        return TRUE;
    }
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return message == WM_INITDIALOG;
}

}  // namespace

int main() {
    INITCOMMONCONTROLSEX controls{sizeof(INITCOMMONCONTROLSEX), ICC_STANDARD_CLASSES};
    InitCommonControlsEx(&controls);
    HWND window =
        CreateDialogParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_frmMain), nullptr, &Proc, 0);
    ShowWindow(window, SW_SHOW);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (!IsDialogMessageA(window, &message)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
    }
    return 0;
}
