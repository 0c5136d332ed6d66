#include "winui/Win32UserInterface.h"

#include <windows.h>

#include "winui/Modal.h"
#include "winui/WinText.h"
#include "winui/dialogs/frmEditProfile.h"
#include "winui/dialogs/frmError.h"
#include "winui/dialogs/frmLoadProfile.h"
#include "winui/dialogs/frmSave.h"
#include "winui/dialogs/frmStartingTarvolin.h"

namespace {

HWND Owner() {
    return GetActiveWindow();
}

}  // namespace

// A style whose button bits name no set of Windows' shows OK, as MsgBoxButtons says.
int Win32UserInterface::MsgBox(const std::string& prompt, int style) {
    unsigned flags = static_cast<unsigned>(style);
    if ((flags & MB_TYPEMASK) > MB_RETRYCANCEL)
        flags &= ~static_cast<unsigned>(MB_TYPEMASK);
    return ModalMessageBox(Owner(), prompt, flags);
}

void Win32UserInterface::ShowErrorReport(const ErrorReport& report) {
    frmError dialog;
    dialog.InitDialog(report);
    dialog.ShowModal(Owner());
}

OpenFileAnswer Win32UserInterface::ChooseFileToOpen(const OpenFileOptions& options) {
    return ModalFileChooser(options);
}

std::string Win32UserInterface::ChooseFolder(int64_t owner, const std::string& title,
                                             const std::string& rootFolder) {
    return ModalFolderChooser(owner, title, rootFolder);
}

std::string Win32UserInterface::ChooseFileToSave(const OpenFileOptions& options) {
    return ModalSaveChooser(options);
}

// The text goes on the clipboard as Unicode, which every program reads, whatever its own code page.
void Win32UserInterface::SetClipboardText(const std::string& text) {
    if (!OpenClipboard(Owner()))
        return;
    EmptyClipboard();
    const std::wstring wide = WinText::Wide(text);
    const std::size_t bytes = (wide.size() + 1) * sizeof(wchar_t);
    if (HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes)) {
        CopyMemory(GlobalLock(memory), wide.c_str(), bytes);
        GlobalUnlock(memory);
        if (SetClipboardData(CF_UNICODETEXT, memory) == nullptr)
            GlobalFree(memory);
    }
    CloseClipboard();
}

std::string Win32UserInterface::GetClipboardText() {
    std::string text;
    if (!OpenClipboard(Owner()))
        return text;
    if (HANDLE data = GetClipboardData(CF_UNICODETEXT))
        text = WinText::FromGlobal(data);
    CloseClipboard();
    return text;
}

bool Win32UserInterface::ShowEditProfileDialog(int32_t editMode, Profile& profile) {
    frmEditProfile dialog;
    dialog.InitDialog(editMode, profile);
    dialog.ShowModal(Owner());
    return !dialog.Cancel();
}

Profile* Win32UserInterface::ShowLoadProfileDialog() {
    frmLoadProfile dialog;
    dialog.InitDialog();
    dialog.ShowModal(Owner());
    return dialog.Cancel() ? nullptr : dialog.SelectedProfile();
}

void Win32UserInterface::ShowSaveDialog() {
    frmSave dialog;
    dialog.InitDialog();
    dialog.ShowModal(Owner());
}

bool Win32UserInterface::ShowStartTarvolinDialog(Profile& profile) {
    frmStartingTarvolin dialog;
    dialog.InitDialog(profile);
    dialog.ShowModal(Owner());
    return !dialog.Cancel();
}
