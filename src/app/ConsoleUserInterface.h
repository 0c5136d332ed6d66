// The user interface of last resort: writes to the standard error stream and answers every question with
// the message box's default button, so core works headless (tools, benchmarks) without a window system.
// Every window it cannot show ends as if its default button had been pressed: the choosers and the profile
// dialogs are cancelled, the start confirmation goes ahead.
#pragma once

#include "app/UserInterface.h"

class ConsoleUserInterface : public UserInterface {
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
