#include "app/ConsoleUserInterface.h"

#include <array>
#include <iostream>

int ConsoleUserInterface::DefaultButton(int style) {
    static constexpr std::array<std::array<int, 3>, 6> kButtons = {{
        {vbOK, vbOK, vbOK},
        {vbOK, vbCancel, vbCancel},
        {vbAbort, vbRetry, vbIgnore},
        {vbYes, vbNo, vbCancel},
        {vbYes, vbNo, vbNo},
        {vbRetry, vbCancel, vbCancel},
    }};
    int set = style & 7;
    int position = (style >> 8) & 3;
    if (set >= static_cast<int>(kButtons.size()))
        set = 0;  // a style naming no button set shows OK
    return kButtons[static_cast<std::size_t>(set)][static_cast<std::size_t>(position < 3 ? position : 0)];
}

int ConsoleUserInterface::MsgBox(const std::string& prompt, int style) {
    std::cerr << "Pavonel: " << prompt << '\n';
    return DefaultButton(style);
}

void ConsoleUserInterface::ShowErrorReport(const ErrorReport& report) {
    std::cerr << report.text << '\n';
}
