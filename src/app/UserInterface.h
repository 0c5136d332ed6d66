// The only way core reaches the person in front of the screen. Production installs the Qt implementation
// once at start; tests install a recording fake; without either, a console fallback answers.
// It holds only the windows that core itself opens. The options, update, about and shortcut-wizard windows
// are opened by the main window inside the window library and do not belong here.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class Profile;

// Every message box carries the program's title.
inline constexpr const char* kProgramTitle = "Pavonel";

// What the profile edit dialog is opened for: which caption it shows and whether the name can be edited.
enum EditProfileMode : int32_t {
    kNewProfileMode = 1,        // a new profile, both fields empty
    kEditProfileMode = 2,       // the name locked, the description edited
    kRenameProfileMode = 3,     // a new name for a profile
    kDuplicateProfileMode = 4,  // the name for a copy of a profile
    kImportProfileMode = 5,     // the name for a profile handed in as text
};

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

// The buttons of a style's set (its low four bits), in the order its default-button bits count them. A value
// there that names no set (10, say) shows an OK box.
std::vector<int> MsgBoxButtons(int style);

// The button a box of `style` offers as its default; one beyond the set falls back to the first, as on
// Windows.
int MsgBoxDefaultButton(int style);

// A finished error report, ready to be shown.
struct ErrorReport {
    int32_t number = 0;
    std::string description;
    std::string source;
    std::string text;  // the whole report a user sends to the maker
};

// The file-open chooser's options (the program's common dialog, see mCommonDialog).
struct OpenFileOptions {
    std::string fileName;  // the proposed name; the chooser starts in its folder when it has one
    bool fileMustExist = false;
    bool multiSelect = false;
    bool readOnlyChecked = false;
    bool hideReadOnly = false;
    std::string filter;       // description and pattern pairs separated by "|": "Programs (*.exe)|*.exe"
    int32_t filterIndex = 1;  // the pair shown first, counted from 1
    std::string initialDirectory;
    std::string title;
    std::string defaultExtension;  // ".exe": added to a typed name that has no extension
    int64_t owner = -1;            // -1: no owner window
};

// What the file-open chooser ended with.
struct OpenFileAnswer {
    enum class Outcome { kChosen, kCancelled, kFailed };
    Outcome outcome = Outcome::kCancelled;
    std::vector<std::string> files;  // full paths; one unless several were chosen with multiSelect
    bool readOnlyChecked = false;
    int32_t errorCode = 0;  // the chooser's own error number when it failed
};

class UserInterface {
public:
    virtual ~UserInterface() = default;

    // Shows `prompt` in a message box titled with the program's title and returns the button pressed.
    virtual int MsgBox(const std::string& prompt, int style) = 0;

    // Shows the error report window modally.
    virtual void ShowErrorReport(const ErrorReport& report) = 0;

    // The file-open chooser, modal.
    virtual OpenFileAnswer ChooseFileToOpen(const OpenFileOptions& options) = 0;

    // The folder chooser, modal, starting in `rootFolder` (the desktop when empty). Returns the chosen
    // folder, or "" when nothing was chosen.
    virtual std::string ChooseFolder(int64_t owner, const std::string& title,
                                     const std::string& rootFolder) = 0;

    // The file-save chooser, modal: a new or existing file may be named; an existing one is replaced
    // after a question. Returns the chosen path, or "" when nothing was chosen.
    virtual std::string ChooseFileToSave(const OpenFileOptions& options) = 0;

    // Replaces the clipboard's content with `text`.
    virtual void SetClipboardText(const std::string& text) = 0;
    // The clipboard's text (UTF-8), or "" when it holds none.
    virtual std::string GetClipboardText() = 0;

    // The profile edit dialog (frmEditProfile) in `editMode` (an EditProfileMode); true when it ended with
    // OK, having set the profile's name and description. Where the name can be edited, it starts with the
    // profile's caption unless the mode is a new profile's.
    virtual bool ShowEditProfileDialog(int32_t editMode, Profile& profile) = 0;

    // The profile chooser (frmLoadProfile); the chosen member of the application's collection, or nullptr
    // when it was cancelled.
    virtual Profile* ShowLoadProfileDialog() = 0;

    // The save dialog (frmSave), which saves the changed profiles the user keeps selected.
    virtual void ShowSaveDialog() = 0;

    // The start confirmation (frmStartingTarvolin) for `profile`; true unless it was cancelled. The window
    // itself stores the "don't show again" choice in the options.
    virtual bool ShowStartTarvolinDialog(Profile& profile) = 0;
};

// The installed user interface (the console fallback when none is installed).
UserInterface& Ui();

// Installs `ui` (not owned); nullptr returns to the console fallback.
void InstallUserInterface(UserInterface* ui);
