// The user interface of the windowed program: message boxes, choosers, the clipboard and the modal windows
// that core opens, on Qt Widgets. Installed once by the start-up wiring, after the QApplication exists.
// Every window runs through RunModal, where tests answer it.
#pragma once

#include "app/UserInterface.h"

class QtUserInterface : public UserInterface {
public:
    int MsgBox(const std::string& prompt, int style) override;
    void ShowErrorReport(const ErrorReport& report) override;
    OpenFileAnswer ChooseFileToOpen(const OpenFileOptions& options) override;
    std::string ChooseFolder(int64_t owner, const std::string& title, const std::string& rootFolder) override;
    std::string ChooseFileToSave(const OpenFileOptions& options) override;
    void SetClipboardText(const std::string& text) override;
    std::string GetClipboardText() override;
    bool ShowEditProfileDialog(int32_t editMode, Profile& profile) override;
    Profile* ShowLoadProfileDialog() override;
    void ShowSaveDialog() override;
    bool ShowStartTarvolinDialog(Profile& profile) override;
};
