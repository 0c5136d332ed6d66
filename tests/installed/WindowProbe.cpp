// Plays the user of a started pavonel.exe for checking an installed copy: waits for the program's main
// window and prints the caption of its first tab (which comes from the language files) and the command line
// it shows (which comes from the active profile in the settings file), one a line. Then it closes the window
// as the close box does, answers Yes to every question on the way (printing each), and waits until the
// program has ended. Exit status 0 once the window was found and is gone, else 1 (with why on stderr).
#include <windows.h>

#include <cstdio>
#include <string>

namespace {

// The main window's IDC_ucTab1_0 and IDC_txtCommandLine, and a message box's text.
constexpr int kFirstTab = 1000;
constexpr int kCommandLineField = 1012;
constexpr int kMessageBoxText = 0xFFFF;
constexpr DWORD kPatience = 30000;  // ms for the start and again for the end

struct Search {
    HWND owner;  // nullptr: the main window, a visible top-level window titled "Pavonel" with a menu bar
    HWND found = nullptr;
};

// The main window, or a window the main window owns (a question).
HWND Find(HWND owner) {
    Search search{owner};
    EnumWindows(
        [](HWND window, LPARAM result) {
            auto& search = *reinterpret_cast<Search*>(result);
            char title[64] = {};
            GetWindowTextA(window, title, sizeof title);
            const bool wanted = search.owner != nullptr
                                    ? GetWindow(window, GW_OWNER) == search.owner
                                    : GetMenu(window) != nullptr && std::string(title) == "Pavonel";
            if (!IsWindowVisible(window) || !wanted)
                return TRUE;
            search.found = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::string TextOf(HWND window) {
    char text[4096] = {};
    SendMessageTimeoutA(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text), SMTO_ABORTIFHUNG,
                        5000, nullptr);
    return text;
}

// Prints a question's title and text and presses its Yes.
void AnswerYes(HWND question) {
    std::string text = TextOf(GetDlgItem(question, kMessageBoxText));
    std::printf("%s: %s\n", TextOf(question).c_str(), text.substr(0, text.find('\n')).c_str());
    for (HWND child = GetWindow(question, GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
        if (TextOf(child) == "&Yes") {
            SendMessageTimeoutA(child, BM_CLICK, 0, 0, SMTO_ABORTIFHUNG, 5000, nullptr);
            return;
        }
    }
}

}  // namespace

int main() {
    HWND window = nullptr;
    for (DWORD waited = 0; window == nullptr && waited < kPatience; waited += 100) {
        Sleep(100);
        window = Find(nullptr);
    }
    if (window == nullptr) {
        std::fprintf(stderr, "no main window\n");
        return 1;
    }
    std::printf("%s\n%s\n", TextOf(GetDlgItem(window, kFirstTab)).c_str(),
                TextOf(GetDlgItem(window, kCommandLineField)).c_str());
    PostMessageA(window, WM_CLOSE, 0, 0);
    for (DWORD waited = 0; IsWindow(window) && waited < kPatience; waited += 100) {
        Sleep(100);
        if (HWND question = Find(window))
            AnswerYes(question);
    }
    if (IsWindow(window)) {
        std::fprintf(stderr, "the main window did not close\n");
        return 1;
    }
    return 0;
}
