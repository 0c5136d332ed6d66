#include "ui/dialogs/frmEditProfile.h"

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/UserInterface.h"
#include "error/mError.h"
#include "profiles/Profile.h"
#include "profiles/ProfileInput.h"
#include "ui/EntryPoint.h"
#include "ui/QtText.h"
#include "ui/dialogs/MnemonicSet.h"

namespace {

QLineEdit* TextField(const char* name, QWidget* parent) {
    auto* field = new QLineEdit(parent);
    field->setObjectName(QString::fromLatin1(name));
    return field;
}

}  // namespace

frmEditProfile::frmEditProfile(QWidget* parent)
    : ModalDialog("frmEditProfile", "EDIT_PROFILE_DIALOG", parent) {
    lblName = new QLabel(this);
    lblName->setObjectName(QStringLiteral("lblName"));
    txtName = TextField("txtName", this);
    lblDesc = new QLabel(this);
    lblDesc->setObjectName(QStringLiteral("lblDesc"));
    txtDescription = TextField("txtDescription", this);
    lblName->setBuddy(txtName);
    lblDesc->setBuddy(txtDescription);
    cmdOk = Button("cmdOk");
    cmdCancel = Button("cmdCancel");
    ConnectEntryPoint(cmdOk, &QPushButton::clicked, this, &frmEditProfile::cmdOk_Click,
                      "frmEditProfile.cmdOk_Click");
    ConnectEntryPoint(cmdCancel, &QPushButton::clicked, this, &frmEditProfile::cmdCancel_Click,
                      "frmEditProfile.cmdCancel_Click");

    auto* fields = new QFormLayout;
    fields->addRow(lblName, txtName);
    fields->addRow(lblDesc, txtDescription);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addStretch();
    layout->addLayout(ButtonRow({cmdOk, cmdCancel}));
    setMinimumWidth(fontMetrics().averageCharWidth() * 56);
}

// A locked name shows the window's face colour behind it, so that it does not look editable.
void frmEditProfile::LockNameField(bool locked) {
    txtName->setReadOnly(locked);
    QPalette palette = txtName->palette();
    palette.setColor(QPalette::Base,
                     locked ? palette.color(QPalette::Button) : QPalette().color(QPalette::Base));
    txtName->setPalette(palette);
}

void frmEditProfile::InitDialog(int32_t mode, Profile& profile) try {
    oProfile = &profile;
    lngEditMode = mode;
    ResetCancel();
    const bool newProfile = mode == kNewProfile;
    LockNameField(!ProfileInput::NameEditable(mode));
    txtName->setText(newProfile ? QString() : QtText::ToQt(profile.ProfileCaption()));
    txtDescription->setText(newProfile ? QString() : QtText::ToQt(profile.ProfileDescription()));
    TranslateDialog();
    (ProfileInput::NameEditable(mode) ? txtName : txtDescription)->setFocus();
    txtName->selectAll();
} catch (...) {
    mError::PassOn("frmEditProfile.InitDialog");
}

void frmEditProfile::TranslateDialog() try {
    setWindowTitle(QtText::ToQt(TranslateDialogItem(ProfileInput::CaptionKey(lngEditMode))));
    MnemonicSet keys;
    lblName->setText(keys.Add(ItemText("LBL_NAME")));
    lblDesc->setText(keys.Add(ItemText("LBL_DESCRIPTION")));
    cmdOk->setText(GlobalText("BTN_OK"));
    cmdCancel->setText(GlobalText("BTN_CANCEL"));
} catch (...) {
    mError::PassOn("frmEditProfile.TranslateDialog");
}

bool frmEditProfile::CheckInput() try {
    // A locked name is the profile's own and was stored before; only one typed here can be refused.
    const auto problem = ProfileInput::Check(!txtName->isReadOnly(), QtText::FromQt(txtName->text()),
                                             QtText::FromQt(txtDescription->text()));
    if (!problem)
        return true;
    Ui().MsgBox(TranslateDialogItem(problem->key), vbOKOnly);
    (problem->field == ProfileInput::Field::kName ? txtName : txtDescription)->setFocus();
    return false;
} catch (...) {
    mError::PassOn("frmEditProfile.CheckInput");
}

void frmEditProfile::cmdOk_Click() {
    if (!CheckInput())
        return;
    oProfile->SetProfileName(Profile::kNamePrefix + QtText::FromQt(txtName->text()));
    oProfile->SetProfileDescription(QtText::FromQt(txtDescription->text()));
    Confirm();
}

void frmEditProfile::cmdCancel_Click() {
    reject();
}
