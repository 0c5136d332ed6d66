// The bare window the start benchmark compares the program with, as the Linux benchmark's: a menu bar of
// five menus, five drawn tabs over a tab area, and five pages of a label, a field, a check box and a list,
// made from a resource script as the program's windows are, in a message loop of its own.
#include <windows.h>

#include <commctrl.h>

#include <initializer_list>

#include "BareWindow.h"
#include "resource.h"

namespace {

INT_PTR CALLBACK PageProc(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG;
}

// The menus, the pages inside the tab area (the first one shown) and the lists' entries.
void Fill(HWND window) {
    HMENU bar = CreateMenu();
    for (const char* title : {"&File", "&Profiles", "&Edit", "E&xtras", "&Help"}) {
        HMENU menu = CreatePopupMenu();
        AppendMenuA(menu, MF_STRING, 1, "Item");
        AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(menu), title);
    }
    SetMenu(window, bar);
    RECT area{};
    GetWindowRect(GetDlgItem(window, IDC_Shape1), &area);
    MapWindowPoints(HWND_DESKTOP, window, reinterpret_cast<POINT*>(&area), 2);
    for (int i = 0; i < 5; ++i) {
        HWND page = CreateDialogParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_GamePage), window,
                                       &PageProc, 0);
        SetDlgItemTextA(page, IDC_BARE_FIELD, "C:\\Games\\Tarvolin\\tarvolin.exe");
        for (const char* entry : {"640 x 480", "800 x 600", "1024 x 768"})
            SendDlgItemMessageA(page, IDC_BARE_LIST, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry));
        MoveWindow(page, area.left + 6, area.top + 10, area.right - area.left - 12,
                   area.bottom - area.top - 17, FALSE);
        ShowWindow(page, i == 0 ? SW_SHOW : SW_HIDE);
    }
}

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
    Fill(window);
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
