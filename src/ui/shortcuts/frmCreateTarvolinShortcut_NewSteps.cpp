// What the wizard's pages do: their fields, the checks when a page is left, and the shortcut itself, each
// by the wizard's rules.
#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>

#include "app/mMain.h"
#include "error/mError.h"
#include "profiles/Profile.h"
#include "ui/QtText.h"
#include "ui/controls/ucPath.h"
#include "ui/shortcuts/frmCreateTarvolinShortcut_New.h"
#include "ui/shortcuts/ucWizard_Nav.h"
#include "ui/shortcuts/ucWizard_TitleArea.h"

namespace {

const auto Procedure = ShortcutWizard::Procedure;

std::string Text(const ucPath* field) {
    return QtText::FromQt(field->Text());
}

// The keyboard starts on the first field of a page that is shown.
void FocusFirstField(QWidget* page) {
    for (QWidget* field = page->nextInFocusChain(); field != nullptr && field != page;
         field = field->nextInFocusChain()) {
        if (page->isAncestorOf(field) && field->isEnabled() && (field->focusPolicy() & Qt::TabFocus) != 0) {
            field->setFocus();
            return;
        }
    }
}

}  // namespace

void frmCreateTarvolinShortcut_New::InitDialog(const Profile& profile) try {
    ResetCancel();
    nav->SetPageCount(ShortcutWizard::kPageCount);
    nav->InitControl();
    TranslateDialog();
    m_rules.TakeProfile(profile);
    txtDest->SetText(QtText::ToQt(profile.TarvolinPath()));
    SetDefaultLinkName();
    opDest[0]->setChecked(true);
    opDest_Click(0);
    if (!ShortcutWizard::QuickLaunchAvailable())
        opDest[ShortcutWizard::kQuickLaunch]->setEnabled(false);
    txtSettings->setPlainText(QtText::ToQt(profile.GetSettingsListAsText()));
} catch (...) {
    mError::PassOn(Procedure("InitDialog"));
}

void frmCreateTarvolinShortcut_New::SetDefaultLinkName() {
    txtLinkName->setText(QtText::ToQt(ShortcutWizard::DefaultLinkName(Text(txtDest))));
}

void frmCreateTarvolinShortcut_New::cmdSelLinkDestFolder_Click() {
    const std::string chosen = mMain::AskForTarvoPath(Text(txtDest));
    if (!chosen.empty())
        txtDest->SetText(QtText::ToQt(chosen));
}

void frmCreateTarvolinShortcut_New::opDest_Click(int index) try {
    txtDestFolder->SetText(QtText::ToQt(m_rules.ChooseDestination(index)));
    txtDestFolder->setEnabled(!m_rules.FolderLocked());
    cmdSelFolder->setEnabled(!m_rules.FolderLocked());
} catch (...) {
    mError::ShowError(Procedure("opDest_Click"));
}

void frmCreateTarvolinShortcut_New::cmdSelFolder_Click() {
    const std::string chosen = m_rules.BrowseForFolder(static_cast<int64_t>(winId()));
    if (!chosen.empty())
        txtDestFolder->SetText(QtText::ToQt(chosen));
}

void frmCreateTarvolinShortcut_New::ckCreateFurtherShortcut_Click() {
    nav->SetNextButtonEnabled(ckCreateFurtherShortcut->isChecked());
}

void frmCreateTarvolinShortcut_New::ucWizard_Nav_ShowPage(int16_t pageNo) {
    if (pageNo >= 1 && pageNo <= kPages)
        pages->setCurrentWidget(picStep[pageNo - 1]);
    const ShortcutWizard::PageTexts texts = ShortcutWizard::TextsOf(pageNo);
    titleArea->SetTexts(texts.title, texts.text, texts.task);
    nav->Translate();
    if (!texts.nextCaption.empty())
        nav->SetNextButtonCaption(QtText::ToQt(texts.nextCaption));
    if (!texts.cancelCaption.empty())
        nav->SetCancelButtonCaption(QtText::ToQt(texts.cancelCaption));
    FocusFirstField(pages->currentWidget());
}

ShortcutWizard::Fields frmCreateTarvolinShortcut_New::Fields() const {
    return {Text(txtDest), Text(txtDestFolder), QtText::FromQt(txtLinkName->text()), opMode[0]->isChecked()};
}

void frmCreateTarvolinShortcut_New::ucWizard_Nav_LeavePage(int16_t pageNo, bool* cancel) try {
    *cancel = ShortcutWizard::RefuseLeaving(pageNo, Fields());
} catch (...) {
    *cancel = true;
    mError::ShowError(Procedure("ucWizard_Nav_LeavePage"));
}

// A failure on the way leaves the flag set, so the page stays.
void frmCreateTarvolinShortcut_New::ucWizard_Nav_NextClicked(int16_t pageNo, bool* cancel) {
    *cancel = true;
    if (m_rules.NextClicked(pageNo, Fields()))
        nav->ShowPage(1);
    *cancel = false;
}

void frmCreateTarvolinShortcut_New::ucWizard_Nav_CancelClicked() {
    reject();
}
