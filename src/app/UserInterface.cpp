#include "app/UserInterface.h"

#include "app/ConsoleUserInterface.h"
#include "app/ErrorReport.h"
#include "error/mError.h"

namespace {

UserInterface* g_installed = nullptr;

}  // namespace

std::vector<int> MsgBoxButtons(int style) {
    switch (style & 0xF) {
        case vbOKCancel:
            return {vbOK, vbCancel};
        case vbAbortRetryIgnore:
            return {vbAbort, vbRetry, vbIgnore};
        case vbYesNoCancel:
            return {vbYes, vbNo, vbCancel};
        case vbYesNo:
            return {vbYes, vbNo};
        case vbRetryCancel:
            return {vbRetry, vbCancel};
        default:
            return {vbOK};
    }
}

int MsgBoxDefaultButton(int style) {
    const std::vector<int> buttons = MsgBoxButtons(style);
    const auto position = static_cast<std::size_t>((style >> 8) & 3);
    return position < buttons.size() ? buttons[position] : buttons.front();
}

UserInterface& Ui() {
    static ConsoleUserInterface console;
    return g_installed != nullptr ? *g_installed : console;
}

void InstallUserInterface(UserInterface* ui) {
    g_installed = ui;
    mError::InstallReporter(&ShowErrorReport);
}
