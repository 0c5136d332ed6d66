// The user interface of the windowed program: message boxes, choosers, the clipboard and the modal
// windows, on Qt Widgets. Installed once by the start-up wiring, after the QApplication exists.
#pragma once

#include "app/ConsoleUserInterface.h"

class QDialog;

class QtUserInterface : public ConsoleUserInterface {
public:
    int MsgBox(const std::string& prompt, int style) override;
    void ShowErrorReport(const ErrorReport& report) override;
    OpenFileAnswer ChooseFileToOpen(const OpenFileOptions& options) override;
    std::string ChooseFolder(int64_t owner, const std::string& title, const std::string& rootFolder) override;
    void SetClipboardText(const std::string& text) override;
    bool ShowStartTarvolinDialog(Profile& profile) override;
    // frmEditProfile, frmLoadProfile and frmSave are not part of this library yet: the console answers them.

protected:
    // Shows `dialog` modally and returns once it is closed. The one place where a modal loop starts, so
    // that tests can answer every window here instead.
    virtual void RunModal(QDialog& dialog);
};
