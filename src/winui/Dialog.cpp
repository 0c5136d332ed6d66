#include "winui/Dialog.h"

#include <utility>

#include "error/mError.h"

HWND FindControl(HWND root, int id) {
    std::pair<int, HWND> search{id, nullptr};
    EnumChildWindows(
        root,
        [](HWND child, LPARAM data) -> BOOL {
            auto* found = reinterpret_cast<std::pair<int, HWND>*>(data);
            if (GetDlgCtrlID(child) != found->first)
                return TRUE;
            found->second = child;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.second;
}

Dialog::~Dialog() {
    if (m_window != nullptr && IsWindow(m_window)) {
        SetWindowLongPtrA(m_window, DWLP_USER, 0);
        DestroyWindow(m_window);
    }
}

void Dialog::Create(int layout, HWND parent) {
    CreateDialogParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(layout), parent, &Dialog::Proc,
                       reinterpret_cast<LPARAM>(this));
    if (m_window == nullptr)
        mError::RaiseError(mError::kInternalError, std::string("The window ") + m_name +
                                                       " could not be made (" +
                                                       std::to_string(GetLastError()) + ").");
}

std::optional<INT_PTR> Dialog::OnMessage(UINT, WPARAM, LPARAM) {
    return std::nullopt;
}

INT_PTR CALLBACK Dialog::Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        auto* self = reinterpret_cast<Dialog*>(lParam);
        SetWindowLongPtrA(window, DWLP_USER, lParam);
        self->m_window = window;
        mError::AsEntryPoint(std::string(self->m_name) + ".Form_Load", [self] { self->OnInit(); });
        // A window that put the focus somewhere keeps it there; others start on their first control.
        return IsChild(window, GetFocus()) ? FALSE : TRUE;
    }
    auto* self = reinterpret_cast<Dialog*>(GetWindowLongPtrA(window, DWLP_USER));
    if (self == nullptr)
        return FALSE;
    if (message == WM_NCDESTROY)
        self->m_window = nullptr;
    std::optional<INT_PTR> answer;
    mError::AsEntryPoint(std::string(self->m_name) + ".WindowProc", [&] {
        if (message == WM_COMMAND)
            self->OnCommand(LOWORD(wParam), HIWORD(wParam));
        else
            answer = self->OnMessage(message, wParam, lParam);
    });
    if (message == WM_COMMAND)
        return TRUE;
    return answer.value_or(FALSE);
}
