#include "ui/shortcuts/ucWizard_Nav.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/PublicObjects.h"
#include "error/mError.h"
#include "translate/cTranslate.h"
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

void ucWizard_Nav::SetPageCount(int16_t value) try {
    m_pageCount = value;
    RefreshNavButtons();
} catch (...) {
    mError::ShowError(Procedure("PageCount"));
}

void ucWizard_Nav::ShowPage(int16_t pageNo) try {
    m_curPageNo = pageNo;
    emit PageShowing(pageNo);
    RefreshNavButtons();
} catch (...) {
    mError::ShowError(Procedure("ShowPage"));
}

void ucWizard_Nav::InitControl() try { ShowPage(1); } catch (...) {
    mError::ShowError(Procedure("InitControl"));
}

void ucWizard_Nav::Translate() try {
    const cTranslate& texts = Translator();
    MnemonicSet keys;
    cmdNext->setText(keys.Add(QtText::ToQt(texts.TranslateEx("GLOBAL", "BTN_NEXT") + " >")));
    cmdBack->setText(keys.Add(QtText::ToQt("< " + texts.TranslateEx("GLOBAL", "BTN_BACK"))));
    cmdCancel->setText(keys.Add(QtText::ToQt(texts.TranslateEx("GLOBAL", "BTN_CANCEL"))));
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

// The page number is read again after NextClicked: a host that moved the wizard itself is followed by one
// more step.
void ucWizard_Nav::cmdNext_Click() {
    bool cancel = false;
    emit LeavePage(m_curPageNo, &cancel);
    if (cancel)
        return;
    emit NextClicked(static_cast<int16_t>(m_curPageNo + 1), &cancel);
    if (!cancel)
        ShowPage(static_cast<int16_t>(m_curPageNo + 1));
}

void ucWizard_Nav::cmdBack_Click() {
    bool cancel = false;
    emit LeavePage(m_curPageNo, &cancel);
    if (cancel)
        return;
    emit BackClicked(static_cast<int16_t>(m_curPageNo - 1), &cancel);
    if (!cancel)
        ShowPage(static_cast<int16_t>(m_curPageNo - 1));
}

void ucWizard_Nav::cmdCancel_Click() {
    emit CancelClicked();
}

void ucWizard_Nav::RefreshNavButtons() try {
    cmdBack->setEnabled(m_curPageNo >= 2);
    cmdNext->setEnabled(m_curPageNo < m_pageCount);
} catch (...) {
    mError::ShowError(Procedure("RefreshNavButtons"));
}
