// The user interface of last resort: writes to the standard error stream and answers every question with
// the message box's default button, so core works headless (tools, benchmarks) without a window system.
#pragma once

#include "app/UserInterface.h"

class ConsoleUserInterface : public UserInterface {
public:
    int MsgBox(const std::string& prompt, int style) override;
    void ShowErrorReport(const ErrorReport& report) override;

    // The button that a box of this style offers as its default.
    static int DefaultButton(int style);
};
