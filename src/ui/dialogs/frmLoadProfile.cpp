#include "ui/dialogs/frmLoadProfile.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/UserInterface.h"
#include "error/mError.h"
#include "profiles/Profiles.h"
#include "ui/EntryPoint.h"
#include "ui/controls/FieldNames.h"
#include "ui/controls/ucProfiles.h"
#include "ui/dialogs/MnemonicSet.h"

namespace {

constexpr const char* kHelpText =
    "If you don't know what to do, select the Standard-Profile and then click on the ok-button.";

}  // namespace

frmLoadProfile::frmLoadProfile(QWidget* parent)
    : ModalDialog("frmLoadProfile", "LOAD_PROFILE_DIALOG", parent) {
    lblInfo = WrappedLabel("lblInfo");
    ucProfiles1 = new ucProfiles(this);
    ucProfiles1->setObjectName(QStringLiteral("ucProfiles1"));
    lblInfo->setBuddy(ucProfiles1);
    cmdHelp = Button("cmdHelp");
    cmdOk = Button("cmdOk");
    cmdCancel = Button("cmdCancel");
    ConnectEntryPoint(cmdOk, &QPushButton::clicked, this, &frmLoadProfile::cmdOk_Click,
                      "frmLoadProfile.cmdOk_Click");
    ConnectEntryPoint(cmdCancel, &QPushButton::clicked, this, &frmLoadProfile::cmdCancel_Click,
                      "frmLoadProfile.cmdCancel_Click");
    ConnectEntryPoint(cmdHelp, &QPushButton::clicked, this, &frmLoadProfile::cmdHelp_Click,
                      "frmLoadProfile.cmdHelp_Click");
    ConnectEntryPoint(ucProfiles1, &ucProfiles::SelectionChanged, this,
                      &frmLoadProfile::ucProfiles1_SelectionChanged,
                      "frmLoadProfile.ucProfiles1_SelectionChanged");
    ConnectEntryPoint(ucProfiles1, &ucProfiles::RowDoubleClicked, this, &frmLoadProfile::cmdOk_Click,
                      "frmLoadProfile.cmdOk_Click");

    QHBoxLayout* buttons = ButtonRow({cmdOk, cmdCancel});
    buttons->insertWidget(0, cmdHelp);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblInfo);
    layout->addWidget(ucProfiles1, 1);
    layout->addLayout(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * 64);
}

// The standard profile, which the help recommends, starts selected, so that Enter alone takes it.
void frmLoadProfile::InitDialog() try {
    ResetCancel();
    ucProfiles1->FillProfileList(false);
    ucProfiles1->SetMultiSelect(false);
    ucProfiles1->SelectProfile(Profiles::kStandardProfileName);
    EnableOk();
    TranslateDialog();
    ucProfiles1->setFocus();
} catch (...) {
    mError::PassOn("frmLoadProfile.InitDialog");
}

Profile* frmLoadProfile::SelectedProfile() const try { return ucProfiles1->SelectedProfile(); } catch (...) {
    mError::PassOn("frmLoadProfile.SelectedProfile");
}

void frmLoadProfile::TranslateDialog() try {
    setWindowTitle(ItemText("DIALOG_CAPTION"));
    MnemonicSet keys;
    lblInfo->setText(keys.Add(ItemText("LBL_INFO")));
    cmdHelp->setText(keys.Add(GlobalText("BTN_HELP")));
    cmdOk->setText(GlobalText("BTN_OK"));
    cmdCancel->setText(GlobalText("BTN_CANCEL"));
    FieldNames::FollowLabels(*this);
} catch (...) {
    mError::PassOn("frmLoadProfile.TranslateDialog");
}

// OK needs a chosen profile.
void frmLoadProfile::EnableOk() {
    cmdOk->setEnabled(ucProfiles1->SelectedProfile() != nullptr);
}

void frmLoadProfile::ucProfiles1_SelectionChanged() {
    EnableOk();
}

void frmLoadProfile::cmdOk_Click() {
    if (ucProfiles1->SelectedProfile() != nullptr)
        Confirm();
}

void frmLoadProfile::cmdCancel_Click() {
    reject();
}

void frmLoadProfile::cmdHelp_Click() {
    Ui().MsgBox(kHelpText, vbOKOnly);
}
