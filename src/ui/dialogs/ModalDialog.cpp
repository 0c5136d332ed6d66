#include "ui/dialogs/ModalDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <utility>

#include "app/PublicObjects.h"
#include "error/mError.h"
#include "translate/cTranslate.h"
#include "ui/Named.h"
#include "ui/QtText.h"

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

ModalDialog::ModalDialog(const char* name, const char* section, QWidget* parent)
    : QDialog(parent), m_section(section) {
    setObjectName(QString::fromLatin1(name));
}

std::string ModalDialog::TranslateDialogItem(const std::string& key) const try {
    return Translator().TranslateEx(m_section, key);
} catch (...) {
    mError::PassOn(objectName().toStdString() + ".TranslateDialogItem");
}

QString ModalDialog::ItemText(const char* key) const {
    return QtText::ToQt(TranslateDialogItem(key));
}

QString ModalDialog::GlobalText(const char* key) {
    return QtText::ToQt(Translator().TranslateEx("GLOBAL", key));
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
    return ::WrappedLabel(parent != nullptr ? parent : this, name);
}

QPushButton* ModalDialog::Button(const char* name, QWidget* parent) {
    return Named<QPushButton>(parent != nullptr ? parent : this, QString::fromLatin1(name));
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
