#include "winui/Modal.h"

#include "app/PublicObjects.h"
#include "app/UserInterface.h"
#include "translate/cTranslate.h"
#include "winui/WinText.h"
#include "winui/dialogs/FileChooser.h"

namespace {

ModalRunners& Runners() {
    static ModalRunners runners;
    return runners;
}

}  // namespace

void ModalDialog::ShowModal(HWND owner) {
    RunModal(*this, owner);
}

std::string ModalDialog::TranslateDialogItem(const std::string& key) const {
    return Translator().TranslateEx(m_section, key);
}

void ModalDialog::Confirm() {
    m_cancel = false;
    Dismiss();
}

void ModalDialog::Dismiss() {
    if (m_inModalLoop)
        EndDialog(Handle(), 0);
    else
        ShowWindow(Handle(), SW_HIDE);
}

// A window sets all its captions as it opens: its language files are looked at once for all of them.
void ModalDialog::OnInit() {
    const cTranslate::Batch texts;
    MakeControls();
    TranslateDialog();
    OnShow();
}

void ModalDialog::OnCommand(int id, int) {
    if (id == IDCANCEL)
        Dismiss();
}

// A modal dialog is made in its modal loop, where its InitDialog values are shown as it opens.
void RunModal(ModalDialog& dialog, HWND owner) {
    if (const auto& runner = Runners().dialogs) {
        dialog.Create(dialog.Layout(), owner);
        runner(dialog);
        return;
    }
    dialog.m_inModalLoop = true;
    DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(dialog.Layout()), owner, &Dialog::Proc,
                    reinterpret_cast<LPARAM>(&dialog));
    dialog.m_inModalLoop = false;
}

int ModalMessageBox(HWND owner, const std::string& text, unsigned style) {
    if (const auto& runner = Runners().boxes)
        return runner(text, style);
    return MessageBoxA(owner, text.c_str(), kProgramTitle, style);
}

OpenFileAnswer ModalFileChooser(const OpenFileOptions& options) {
    if (const auto& runner = Runners().files)
        return runner(options);
    return FileChooser::Run(options);
}

std::string ModalSaveChooser(const OpenFileOptions& options) {
    if (const auto& runner = Runners().saves)
        return runner(options);
    return FileChooser::RunSave(options);
}

std::string ModalFolderChooser(int64_t owner, const std::string& title, const std::string& rootFolder) {
    if (const auto& runner = Runners().folders)
        return runner(title);
    return FileChooser::RunFolder(owner, title, rootFolder);
}

void InstallModalRunners(ModalRunners runners) {
    Runners() = std::move(runners);
}
