#include "winui/Main.h"

#include <windows.h>

#include <commctrl.h>
#include <objbase.h>
// The program's own CreateMutex, not the name windows.h makes of it.
#undef CreateMutex

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/mMain.h"
#include "app/mMutex.h"
#include "error/mError.h"
#include "translate/cTranslate.h"
#include "winui/Win32UserInterface.h"
#include "winui/main/frmMain.h"

frmMain* Main() {
    frmMain* window = nullptr;
    try {
        mMutex::CreateMutex();
        g_cApp = std::make_unique<Application>();
        g_cTranslate = std::make_unique<cTranslate>();
        if (!g_cApp->LoadData()) {
            mMain::ClosePublicObjects();
            return nullptr;
        }
        window = new frmMain;
        window->Create();
        window->InitDialog();
        window->LoadData(*g_cApp->ActiveProfile());
        ShowWindow(window->Handle(), SW_SHOW);
        return window;
    } catch (...) {
        mError::ShowError("mMain.Main");
    }
    delete window;
    mMain::ClosePublicObjects();
    return nullptr;
}

int RunMessageLoop(frmMain* window) {
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (window->TranslateKeys(message))
            continue;
        const HWND dialog = GetAncestor(message.hwnd, GA_ROOT);
        if (dialog != nullptr && IsDialogMessageA(dialog, &message))
            continue;
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    delete window;
    return static_cast<int>(message.wParam);
}

void InitWindowThread() {
    INITCOMMONCONTROLSEX controls{sizeof(INITCOMMONCONTROLSEX),
                                  ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES | ICC_LINK_CLASS};
    InitCommonControlsEx(&controls);
    OleInitialize(nullptr);
}

int RunProgram(int, char**) {
    InitWindowThread();
    Win32UserInterface ui;
    InstallUserInterface(&ui);
    frmMain* window = Main();
    const int status = window != nullptr ? RunMessageLoop(window) : 0;
    mMain::ClosePublicObjects();
    InstallUserInterface(nullptr);
    OleUninitialize();
    return status;
}
