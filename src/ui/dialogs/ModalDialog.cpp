#include "ui/dialogs/ModalDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <utility>

namespace {

std::function<void(QDialog&)>& Runner() {
    static std::function<void(QDialog&)> runner;
    return runner;
}

}  // namespace

void RunModal(QDialog& dialog) {
    if (Runner())
        Runner()(dialog);
    else
        dialog.exec();
}

void InstallModalRunner(std::function<void(QDialog&)> runner) {
    Runner() = std::move(runner);
}

ModalDialog::ModalDialog(const char* name, QWidget* parent) : QDialog(parent) {
    setObjectName(QString::fromLatin1(name));
}

void ModalDialog::ShowModal() {
    TranslateDialog();
    RunModal(*this);
}

void ModalDialog::Confirm() {
    m_cancel = false;
    accept();
}

void ModalDialog::reject() {
    m_cancel = true;
    QDialog::reject();
}

QLabel* ModalDialog::WrappedLabel(const char* name, QWidget* parent) {
    auto* label = new QLabel(parent != nullptr ? parent : this);
    label->setObjectName(QString::fromLatin1(name));
    label->setWordWrap(true);
    return label;
}

QPushButton* ModalDialog::Button(const char* name, QWidget* parent) {
    auto* button = new QPushButton(parent != nullptr ? parent : this);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

QHBoxLayout* ModalDialog::ButtonRow(std::initializer_list<QPushButton*> buttons) {
    auto* row = new QHBoxLayout;
    row->addStretch();
    for (QPushButton* button : buttons)
        row->addWidget(button);
    if (buttons.size() > 0)
        (*buttons.begin())->setDefault(true);
    return row;
}
