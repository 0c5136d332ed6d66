#include "winui/controls/Subclass.h"

#include <commctrl.h>

#include <string>

#include "error/mError.h"

namespace {

struct Filter {
    const char* trail;
    MessageFilter filter;
};

LRESULT CALLBACK FilterProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                            DWORD_PTR data) {
    auto* filter = reinterpret_cast<Filter*>(data);
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(window, &FilterProc, id);
        delete filter;
        return DefSubclassProc(window, message, wParam, lParam);
    }
    std::optional<LRESULT> answer;
    mError::AsEntryPoint(filter->trail, [&] { answer = filter->filter(message, wParam, lParam); });
    return answer ? *answer : DefSubclassProc(window, message, wParam, lParam);
}

}  // namespace

void Subclass(HWND control, const char* trail, MessageFilter filter) {
    SetWindowSubclass(control, &FilterProc, 1,
                      reinterpret_cast<DWORD_PTR>(new Filter{trail, std::move(filter)}));
}
