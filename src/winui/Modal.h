// The protocol every modal window follows, and the one place where modal windows run. The caller makes the
// window, calls its InitDialog(...), shows it with ShowModal(owner), reads Cancel() (true unless the window
// was confirmed) and its result, and lets it go. In the program a dialog runs in Windows' modal loop and a
// message box is MessageBoxA; a test installs runners that play the user instead.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "app/UserInterface.h"
#include "winui/Dialog.h"

class ModalDialog : public Dialog {
public:
    bool Cancel() const { return m_cancel; }

    // Translates the window and shows it modally over `owner`; returns once it has ended.
    void ShowModal(HWND owner);

    // The text of `key` in the window's own section of the language files.
    std::string TranslateDialogItem(const std::string& key) const;
    // The layout the window is made from.
    int Layout() const { return m_layout; }
    // Ends the window the way it ends when nobody confirms it (Escape, the close box).
    void Dismiss();

protected:
    ModalDialog(const char* name, int layout, const char* section)
        : Dialog(name), m_layout(layout), m_section(section) {}

    // Makes the controls that the layout does not hold, before the window is translated.
    virtual void MakeControls() {}
    virtual void TranslateDialog() = 0;
    // Puts what InitDialog was given into the controls, once they exist and speak the chosen language.
    virtual void OnShow() {}

    // Ends the window as confirmed: Cancel() becomes false.
    void Confirm();
    void ResetCancel() { m_cancel = true; }

    void OnInit() final;
    // Escape and the close box end the window unconfirmed; a window with more to do on them overrides.
    void OnCommand(int id, int code) override;

private:
    friend void RunModal(ModalDialog& dialog, HWND owner);

    int m_layout;
    const char* m_section;
    bool m_cancel = true;
    bool m_inModalLoop = false;
};

// Runs `dialog` modally over `owner`.
void RunModal(ModalDialog& dialog, HWND owner);

// A message box with the program's title over `owner`; the button it was closed with (IDOK, IDYES, ...).
int ModalMessageBox(HWND owner, const std::string& text, unsigned style);

// The file-open chooser (GetOpenFileNameA) and the folder chooser (SHBrowseForFolderA).
OpenFileAnswer ModalFileChooser(const OpenFileOptions& options);
// The file-save chooser (GetSaveFileNameA): the chosen path, or "" when nothing was chosen.
std::string ModalSaveChooser(const OpenFileOptions& options);
std::string ModalFolderChooser(int64_t owner, const std::string& title, const std::string& rootFolder);

// The runners a test plays the user with: `dialogs` gets each modal dialog made and shown modelessly, and
// ends it by its controls; `boxes` answers each message box, `files`, `saves` and `folders` each chooser.
// Without runners (or with an empty one) the real windows open.
struct ModalRunners {
    std::function<void(ModalDialog&)> dialogs;
    std::function<int(const std::string& text, unsigned style)> boxes;
    std::function<OpenFileAnswer(const OpenFileOptions&)> files;
    std::function<std::string(const OpenFileOptions&)> saves;
    std::function<std::string(const std::string& title)> folders;
};
void InstallModalRunners(ModalRunners runners);
