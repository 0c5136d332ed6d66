// The windows core opens, as Windows shows them: message boxes through MessageBoxA, the choosers through
// GetOpenFileNameA, GetSaveFileNameA and SHBrowseForFolderA, the clipboard, the error report, the start
// confirmation and the profile dialogs. Each opens over the window that is active now.
#pragma once

#include "app/UserInterface.h"

class Win32UserInterface : public UserInterface {
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
