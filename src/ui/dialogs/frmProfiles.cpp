#include "ui/dialogs/frmProfiles.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <tuple>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "profiles/mManageProfiles.h"
#include "ui/EntryPoint.h"
#include "ui/controls/FieldNames.h"
#include "ui/controls/ucProfiles.h"
#include "ui/dialogs/MnemonicSet.h"

frmProfiles::frmProfiles(QWidget* parent) : ModalDialog("frmProfiles", "PROFILES_DIALOG", parent) {
    ucProfiles1 = new ucProfiles(this);
    ucProfiles1->setObjectName(QStringLiteral("ucProfiles1"));
    cmdRename = Button("cmdRename");
    cmdDuplicate = Button("cmdDuplicate");
    cmdDelete = Button("cmdDelete");
    cmdClose = Button("cmdClose");
    const std::tuple<QPushButton*, void (frmProfiles::*)(), const char*> buttons[] = {
        {cmdRename, &frmProfiles::cmdRename_Click, "frmProfiles.cmdRename_Click"},
        {cmdDuplicate, &frmProfiles::cmdDuplicate_Click, "frmProfiles.cmdDuplicate_Click"},
        {cmdDelete, &frmProfiles::cmdDelete_Click, "frmProfiles.cmdDelete_Click"},
        {cmdClose, &frmProfiles::cmdClose_Click, "frmProfiles.cmdClose_Click"}};
    for (const auto& [button, handler, trail] : buttons)
        ConnectEntryPoint(button, &QPushButton::clicked, this, handler, trail);
    connect(ucProfiles1, &ucProfiles::SelectionChanged, this, &frmProfiles::EnableButtons);
    auto* row = ButtonRow({cmdClose});
    for (QPushButton* button : {cmdDelete, cmdDuplicate, cmdRename})
        row->insertWidget(0, button);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(ucProfiles1, 1);
    layout->addLayout(row);
    setMinimumSize(fontMetrics().averageCharWidth() * 72, fontMetrics().height() * 18);
}

// The active profile starts as the current row, so the list opens where the user works.
void frmProfiles::InitDialog() try {
    ShowProfiles(nullptr);
    TranslateDialog();
    ucProfiles1->setFocus();
} catch (...) {
    mError::PassOn("frmProfiles.InitDialog");
}

void frmProfiles::ShowProfiles(const Profile* current) {
    ucProfiles1->FillProfileList(false);
    if (current == nullptr)
        current = App().ActiveProfile();
    if (current != nullptr)
        ucProfiles1->SelectProfile(current->ProfileName());
    EnableButtons();
}

void frmProfiles::EnableButtons() {
    const Profile* selected = ucProfiles1->SelectedProfile();
    const bool ownName = selected != nullptr && mManageProfiles::CanRenameOrDelete(*selected);
    cmdRename->setEnabled(ownName);
    cmdDelete->setEnabled(ownName);
    cmdDuplicate->setEnabled(selected != nullptr);
}

void frmProfiles::TranslateDialog() try {
    setWindowTitle(ItemText("DIALOG_CAPTION"));
    MnemonicSet keys;
    cmdRename->setText(keys.Add(ItemText("BTN_RENAME")));
    cmdDuplicate->setText(keys.Add(ItemText("BTN_DUPLICATE")));
    cmdDelete->setText(keys.Add(ItemText("BTN_DELETE")));
    cmdClose->setText(keys.Add(GlobalText("BTN_CLOSE")));
    // No label stands before the list: the window's title names it.
    FieldNames::NameInside(*ucProfiles1, windowTitle());
} catch (...) {
    mError::PassOn("frmProfiles.TranslateDialog");
}

void frmProfiles::cmdRename_Click() {
    Profile* selected = ucProfiles1->SelectedProfile();
    if (selected != nullptr && mManageProfiles::RenameProfile(*selected))
        ShowChanged(selected);
}

// The copy becomes the active profile, as a new one does.
void frmProfiles::cmdDuplicate_Click() {
    const Profile* selected = ucProfiles1->SelectedProfile();
    if (selected != nullptr && mManageProfiles::DuplicateProfile(*selected) != nullptr)
        ShowChanged(App().ActiveProfile());
}

void frmProfiles::cmdDelete_Click() {
    Profile* selected = ucProfiles1->SelectedProfile();
    if (selected != nullptr && mManageProfiles::DeleteProfile(*selected))
        ShowChanged(App().ActiveProfile());
}

void frmProfiles::ShowChanged(const Profile* current) {
    m_changed = true;
    ShowProfiles(current);
}

void frmProfiles::cmdClose_Click() {
    accept();
}
