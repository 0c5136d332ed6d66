#include "ui/dialogs/frmLoadProfile.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/UserInterface.h"
#include "error/mError.h"
#include "profiles/Profiles.h"
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
    connect(cmdOk, &QPushButton::clicked, this, &frmLoadProfile::cmdOk_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmLoadProfile::cmdCancel_Click);
    connect(cmdHelp, &QPushButton::clicked, this, &frmLoadProfile::cmdHelp_Click);
    connect(ucProfiles1, &ucProfiles::SelectionChanged, this, &frmLoadProfile::ucProfiles1_SelectionChanged);
    connect(ucProfiles1, &ucProfiles::RowDoubleClicked, this, &frmLoadProfile::cmdOk_Click);

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
} catch (...) {
    mError::PassOn("frmLoadProfile.TranslateDialog");
}

// OK needs a chosen profile.
void frmLoadProfile::EnableOk() {
    cmdOk->setEnabled(ucProfiles1->SelectedProfile() != nullptr);
}

void frmLoadProfile::ucProfiles1_SelectionChanged() try { EnableOk(); } catch (...) {
    mError::ShowError("frmLoadProfile.ucProfiles1_SelectionChanged");
}

void frmLoadProfile::cmdOk_Click() try {
    if (ucProfiles1->SelectedProfile() != nullptr)
        Confirm();
} catch (...) {
    mError::ShowError("frmLoadProfile.cmdOk_Click");
}

void frmLoadProfile::cmdCancel_Click() try { reject(); } catch (...) {
    mError::ShowError("frmLoadProfile.cmdCancel_Click");
}

void frmLoadProfile::cmdHelp_Click() try { Ui().MsgBox(kHelpText, vbOKOnly); } catch (...) {
    mError::ShowError("frmLoadProfile.cmdHelp_Click");
}
