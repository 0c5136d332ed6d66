#include "ui/shortcuts/ucWizard_Nav.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "error/mError.h"
#include "ui/EntryPoint.h"
#include "ui/Named.h"
#include "ui/QtText.h"
#include "ui/controls/HLine.h"
#include "ui/dialogs/MnemonicSet.h"

namespace {

// The bar reports under the path field's module name, as it always has.
constexpr const char* kModule = "ucPath.";

std::string Procedure(const char* name) {
    return std::string(kModule) + name;
}

QPushButton* NavButton(const char* name, QWidget* parent) {
    auto* button = Named<QPushButton>(parent, QString::fromLatin1(name));
    button->setAutoDefault(false);
    return button;
}

}  // namespace

ucWizard_Nav::ucWizard_Nav(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("ucWizard_Nav"));
    Line1 = Named<HLine>(this, QStringLiteral("Line1"));
    Picture1 = Named<QWidget>(this, QStringLiteral("Picture1"));
    cmdCancel = NavButton("cmdCancel", Picture1);
    cmdBack = NavButton("cmdBack", Picture1);
    cmdNext = NavButton("cmdNext", Picture1);
    Line2 = Named<HLine>(this, QStringLiteral("Line2"));
    auto* buttons = new QHBoxLayout(Picture1);
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->addWidget(cmdCancel);
    buttons->addSpacing(fontMetrics().averageCharWidth() * 2);
    buttons->addWidget(cmdBack);
    buttons->addWidget(cmdNext);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(Line1);
    layout->addWidget(Picture1, 0, Qt::AlignRight);
    layout->addWidget(Line2);
    // Next comes first for the keyboard, as it is the button a user presses most.
    setTabOrder(cmdNext, cmdBack);
    setTabOrder(cmdBack, cmdCancel);
    ConnectEntryPoint(cmdBack, &QPushButton::clicked, this, &ucWizard_Nav::cmdBack_Click,
                      "ucPath.cmdBack_Click");
    ConnectEntryPoint(cmdNext, &QPushButton::clicked, this, &ucWizard_Nav::cmdNext_Click,
                      "ucPath.cmdNext_Click");
    ConnectEntryPoint(cmdCancel, &QPushButton::clicked, this, &ucWizard_Nav::cmdCancel_Click,
                      "ucPath.cmdCancel_Click");
}

void ucWizard_Nav::SetPageCount(int16_t value) try { m_nav.SetPageCount(value); } catch (...) {
    mError::ShowError(Procedure("PageCount"));
}

void ucWizard_Nav::ShowPage(int16_t pageNo) try { m_nav.ShowPage(pageNo); } catch (...) {
    mError::ShowError(Procedure("ShowPage"));
}

void ucWizard_Nav::InitControl() try { ShowPage(1); } catch (...) {
    mError::ShowError(Procedure("InitControl"));
}

void ucWizard_Nav::Translate() try {
    const cWizardNav::Captions captions = cWizardNav::Translated();
    MnemonicSet keys;
    cmdNext->setText(keys.Add(QtText::ToQt(captions.next)));
    cmdBack->setText(keys.Add(QtText::ToQt(captions.back)));
    cmdCancel->setText(keys.Add(QtText::ToQt(captions.cancel)));
} catch (...) {
    mError::ShowError(Procedure("Translate"));
}

QString ucWizard_Nav::NextButtonCaption() const {
    return cmdNext->text();
}

void ucWizard_Nav::SetNextButtonCaption(const QString& value) {
    cmdNext->setText(value);
}

QString ucWizard_Nav::CancelButtonCaption() const {
    return cmdCancel->text();
}

void ucWizard_Nav::SetCancelButtonCaption(const QString& value) {
    cmdCancel->setText(value);
}

bool ucWizard_Nav::NextButtonEnabled() const {
    return cmdNext->isEnabled();
}

void ucWizard_Nav::SetNextButtonEnabled(bool value) {
    cmdNext->setEnabled(value);
}

void ucWizard_Nav::cmdNext_Click() {
    m_nav.Next();
}

void ucWizard_Nav::cmdBack_Click() {
    m_nav.Back();
}

void ucWizard_Nav::cmdCancel_Click() {
    emit CancelClicked();
}

void ucWizard_Nav::OnLeavePage(int16_t pageNo, bool& cancel) {
    emit LeavePage(pageNo, &cancel);
}

void ucWizard_Nav::OnBackClicked(int16_t pageNo, bool& cancel) {
    emit BackClicked(pageNo, &cancel);
}

void ucWizard_Nav::OnNextClicked(int16_t pageNo, bool& cancel) {
    emit NextClicked(pageNo, &cancel);
}

void ucWizard_Nav::OnPageShowing(int16_t pageNo) {
    emit PageShowing(pageNo);
}

void ucWizard_Nav::OnRefreshButtons(bool backEnabled, bool nextEnabled) try {
    cmdBack->setEnabled(backEnabled);
    cmdNext->setEnabled(nextEnabled);
} catch (...) {
    mError::ShowError(Procedure("RefreshNavButtons"));
}
