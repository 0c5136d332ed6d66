// A window made from a layout of the resource script: the main window, its pages and every dialog. The
// window's messages reach the object that made it; a failure that escapes a handler is reported, never
// carried through Windows' own frames.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>

// The control `id` anywhere inside `root`, its pages included; nullptr when there is none.
HWND FindControl(HWND root, int id);

// `window` as the core's calls take an owner window.
inline int64_t OwnerOf(HWND window) {
    return static_cast<int64_t>(reinterpret_cast<intptr_t>(window));
}

class Dialog {
public:
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;
    virtual ~Dialog();

    HWND Handle() const { return m_window; }
    HWND Item(int id) const { return GetDlgItem(m_window, id); }

    // Makes the window from `layout` without showing it: a page inside `parent`, or a window of its own
    // (owned by `parent` when there is one).
    void Create(int layout, HWND parent);

    // The messages of every window made this way; modal dialogs run through it too.
    static INT_PTR CALLBACK Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

protected:
    // `name` is the window's documented name, the first part of the trail of a failure in a handler.
    explicit Dialog(const char* name) : m_name(name) {}

    // Called once the controls exist.
    virtual void OnInit() {}
    // A button, menu entry or control notification.
    virtual void OnCommand(int id, int code) = 0;
    // Any other message; a value is the dialog procedure's answer, nothing leaves it to Windows.
    virtual std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam);

private:
    const char* m_name;
    HWND m_window = nullptr;
};
