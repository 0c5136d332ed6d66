#include "ui/dialogs/frmSave.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "ui/EntryPoint.h"
#include "ui/controls/FieldNames.h"
#include "ui/controls/ucProfiles.h"
#include "ui/dialogs/MnemonicSet.h"

frmSave::frmSave(QWidget* parent) : ModalDialog("frmSave", "SAVE_DIALOG", parent) {
    lblListTitle = new QLabel(this);
    lblListTitle->setObjectName(QStringLiteral("lblListTitle"));
    ucProfiles1 = new ucProfiles(this);
    ucProfiles1->setObjectName(QStringLiteral("ucProfiles1"));
    lblListTitle->setBuddy(ucProfiles1);
    lblListInfo = WrappedLabel("lblListInfo");
    Command1 = Button("Command1");
    Command2 = Button("Command2");
    ConnectEntryPoint(Command1, &QPushButton::clicked, this, &frmSave::Command1_Click,
                      "frmSave.Command1_Click");
    ConnectEntryPoint(Command2, &QPushButton::clicked, this, &frmSave::Command2_Click,
                      "frmSave.Command2_Click");

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblListTitle);
    layout->addWidget(ucProfiles1, 1);
    layout->addWidget(lblListInfo);
    layout->addLayout(ButtonRow({Command1, Command2}));
    setMinimumWidth(fontMetrics().averageCharWidth() * 64);
}

// Every changed profile starts selected: saving all of them is what the user most likely wants.
void frmSave::InitDialog() try {
    ResetCancel();
    TranslateDialog();
    ucProfiles1->FillProfileList(true);
    ucProfiles1->SetMultiSelect(true);
    ucProfiles1->SelectAllProfiles();
    Command1->setFocus();
} catch (...) {
    mError::PassOn("frmSave.InitDialog");
}

void frmSave::TranslateDialog() try {
    setWindowTitle(ItemText("DIALOG_CAPTION"));
    lblListInfo->setText(ItemText("LBL_LIST_INFO"));
    MnemonicSet keys;
    lblListTitle->setText(keys.Add(ItemText("LBL_LIST_TITLE")));
    Command1->setText(keys.Add(GlobalText("BTN_YES")));
    Command2->setText(keys.Add(GlobalText("BTN_NO")));
    FieldNames::FollowLabels(*this);
} catch (...) {
    mError::PassOn("frmSave.TranslateDialog");
}

void frmSave::Command1_Click() {
    const platform::WriteFault fault = App().SaveDataEx(ucProfiles1->GetSelectedItems());
    Confirm();
    if (fault != platform::WriteFault::None)
        App().TellUnsaved(fault);
}

void frmSave::Command2_Click() {
    reject();
}
