// The only way core reaches the person in front of the screen. Production installs the Qt implementation
// once at start; tests install a recording fake; without either, a console fallback answers.
#pragma once

#include <cstdint>
#include <string>

// Message-box styles: one button set, plus an icon, plus a default button.
enum MsgBoxStyle : int {
    vbOKOnly = 0,
    vbOKCancel = 1,
    vbAbortRetryIgnore = 2,
    vbYesNoCancel = 3,
    vbYesNo = 4,
    vbRetryCancel = 5,
    vbCritical = 16,
    vbQuestion = 32,
    vbExclamation = 48,
    vbInformation = 64,
    vbDefaultButton2 = 256,
    vbDefaultButton3 = 512,
};

// The button a message box was closed with.
enum MsgBoxResult : int {
    vbOK = 1,
    vbCancel = 2,
    vbAbort = 3,
    vbRetry = 4,
    vbIgnore = 5,
    vbYes = 6,
    vbNo = 7
};

// A finished error report, ready to be shown.
struct ErrorReport {
    int32_t number = 0;
    std::string description;
    std::string source;
    std::string text;  // the whole report a user sends to the maker
};

class UserInterface {
public:
    virtual ~UserInterface() = default;

    // Shows `prompt` in a message box titled with the program's title and returns the button pressed.
    virtual int MsgBox(const std::string& prompt, int style) = 0;

    // Shows the error report window modally.
    virtual void ShowErrorReport(const ErrorReport& report) = 0;
};

// The installed user interface (the console fallback when none is installed).
UserInterface& Ui();

// Installs `ui` (not owned); nullptr returns to the console fallback.
void InstallUserInterface(UserInterface* ui);
