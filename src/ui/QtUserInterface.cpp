#include "ui/QtUserInterface.h"

#include <QApplication>
#include <QClipboard>

#include "ui/QtText.h"
#include "ui/dialogs/frmError.h"
#include "ui/dialogs/frmStartingTarvolin.h"
#include "ui/dialogs/mFileChooser.h"
#include "ui/dialogs/mMessageBox.h"

void QtUserInterface::RunModal(QDialog& dialog) {
    dialog.exec();
}

int QtUserInterface::MsgBox(const std::string& prompt, int style) {
    const std::unique_ptr<QMessageBox> box = mMessageBox::Create(prompt, style, QApplication::activeWindow());
    RunModal(*box);
    return mMessageBox::ResultOf(*box);
}

void QtUserInterface::ShowErrorReport(const ErrorReport& report) {
    frmError dialog(QApplication::activeWindow());
    dialog.InitDialog(report);
    RunModal(dialog);
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

void QtUserInterface::SetClipboardText(const std::string& text) {
    QGuiApplication::clipboard()->setText(QtText::ToQt(text));
}

bool QtUserInterface::ShowStartTarvolinDialog(Profile& profile) {
    frmStartingTarvolin dialog(QApplication::activeWindow());
    dialog.InitDialog(profile);
    RunModal(dialog);
    return !dialog.Cancel();
}
