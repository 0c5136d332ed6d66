#include "ui/QtUserInterface.h"

#include <QApplication>
#include <QClipboard>

#include "ui/QtText.h"
#include "ui/dialogs/ModalDialog.h"
#include "ui/dialogs/frmEditProfile.h"
#include "ui/dialogs/frmError.h"
#include "ui/dialogs/frmLoadProfile.h"
#include "ui/dialogs/frmSave.h"
#include "ui/dialogs/frmStartingTarvolin.h"
#include "ui/dialogs/mFileChooser.h"
#include "ui/dialogs/mMessageBox.h"

int QtUserInterface::MsgBox(const std::string& prompt, int style) {
    const std::unique_ptr<QMessageBox> box = mMessageBox::Create(prompt, style, QApplication::activeWindow());
    RunModal(*box);
    return mMessageBox::ResultOf(*box);
}

void QtUserInterface::ShowErrorReport(const ErrorReport& report) {
    frmError dialog(QApplication::activeWindow());
    dialog.InitDialog(report);
    dialog.ShowModal();
}

OpenFileAnswer QtUserInterface::ChooseFileToOpen(const OpenFileOptions& options) {
    QFileDialog dialog(mFileChooser::OwnerWindow(options.owner));
    mFileChooser::Configure(dialog, options);
    RunModal(dialog);
    return mFileChooser::AnswerOf(dialog, options);
}

std::string QtUserInterface::ChooseFolder(int64_t owner, const std::string& title,
                                          const std::string& rootFolder) {
    QFileDialog dialog(mFileChooser::OwnerWindow(owner));
    mFileChooser::ConfigureFolder(dialog, title, rootFolder);
    RunModal(dialog);
    return mFileChooser::FolderOf(dialog);
}

std::string QtUserInterface::ChooseFileToSave(const OpenFileOptions& options) {
    QFileDialog dialog(mFileChooser::OwnerWindow(options.owner));
    mFileChooser::Configure(dialog, options);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    RunModal(dialog);
    const OpenFileAnswer answer = mFileChooser::AnswerOf(dialog, options);
    return answer.files.empty() ? std::string() : answer.files.front();
}

void QtUserInterface::SetClipboardText(const std::string& text) {
    QGuiApplication::clipboard()->setText(QtText::ToQt(text));
}

std::string QtUserInterface::GetClipboardText() {
    return QtText::FromQt(QGuiApplication::clipboard()->text());
}

bool QtUserInterface::ShowEditProfileDialog(int32_t editMode, Profile& profile) {
    frmEditProfile dialog(QApplication::activeWindow());
    dialog.InitDialog(editMode, profile);
    dialog.ShowModal();
    return !dialog.Cancel();
}

Profile* QtUserInterface::ShowLoadProfileDialog() {
    frmLoadProfile dialog(QApplication::activeWindow());
    dialog.InitDialog();
    dialog.ShowModal();
    return dialog.Cancel() ? nullptr : dialog.SelectedProfile();
}

void QtUserInterface::ShowSaveDialog() {
    frmSave dialog(QApplication::activeWindow());
    dialog.InitDialog();
    dialog.ShowModal();
}

bool QtUserInterface::ShowStartTarvolinDialog(Profile& profile) {
    frmStartingTarvolin dialog(QApplication::activeWindow());
    dialog.InitDialog(profile);
    dialog.ShowModal();
    return !dialog.Cancel();
}
