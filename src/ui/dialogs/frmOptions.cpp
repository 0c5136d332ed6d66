#include "ui/dialogs/frmOptions.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/mMain.h"
#include "error/mError.h"
#include "ui/EntryPoint.h"
#include "ui/QtText.h"
#include "ui/controls/FieldNames.h"
#include "ui/controls/ucPath.h"
#include "ui/dialogs/MnemonicSet.h"

frmOptions::frmOptions(QWidget* parent) : ModalDialog("frmOptions", "OPTIONS_DIALOG", parent) {
    lblEditor = new QLabel(this);
    lblEditor->setObjectName(QStringLiteral("lblEditor"));
    txtEditorPath = new ucPath(this);
    txtEditorPath->setObjectName(QStringLiteral("txtEditorPath"));
    txtEditorPath->SetAcceptFiles(true);
    lblEditor->setBuddy(txtEditorPath);
    cmdEditorPath = Button("cmdEditorPath");
    ckSafetyPromptBeforeStartOfTarvolin = new QCheckBox(this);
    ckSafetyPromptBeforeStartOfTarvolin->setObjectName(QStringLiteral("ckSafetyPromptBeforeStartOfTarvolin"));
    cmdOk = Button("cmdOk");
    cmdCancel = Button("cmdCancel");
    ConnectEntryPoint(cmdEditorPath, &QPushButton::clicked, this, &frmOptions::cmdEditorPath_Click,
                      "frmOptions.cmdEditorPath_Click");
    ConnectEntryPoint(cmdOk, &QPushButton::clicked, this, &frmOptions::cmdOk_Click, "frmOptions.cmdOk_Click");
    ConnectEntryPoint(cmdCancel, &QPushButton::clicked, this, &frmOptions::cmdCancel_Click,
                      "frmOptions.cmdCancel_Click");

    auto* editor = new QGridLayout;
    editor->addWidget(lblEditor, 0, 0, 1, 2);
    editor->addWidget(txtEditorPath, 1, 0);
    editor->addWidget(cmdEditorPath, 1, 1);
    editor->setColumnStretch(0, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(editor);
    layout->addSpacing(fontMetrics().height() / 2);
    layout->addWidget(ckSafetyPromptBeforeStartOfTarvolin);
    layout->addStretch();
    layout->addLayout(ButtonRow({cmdOk, cmdCancel}));
    setMinimumWidth(fontMetrics().averageCharWidth() * 64);
}

void frmOptions::InitDialog() try {
    ResetCancel();
    const Options& options = App().Options();
    txtEditorPath->SetText(QtText::ToQt(options.EditorPath()));
    ckSafetyPromptBeforeStartOfTarvolin->setChecked(options.ShowStartTarvolinDialog());
    TranslateDialog();
    txtEditorPath->setFocus();
} catch (...) {
    mError::PassOn("frmOptions.InitDialog");
}

void frmOptions::TranslateDialog() try {
    setWindowTitle(ItemText("DIALOG_CAPTION"));
    MnemonicSet keys;
    lblEditor->setText(keys.Add(QtText::ToQt(TranslateDialogItem("LBL_EDITOR") + ":")));
    cmdEditorPath->setText(keys.Add(GlobalText("BTN_Browse")));
    ckSafetyPromptBeforeStartOfTarvolin->setText(keys.Add(ItemText("CHK_SHOW_STARTTARVOLINDIALOG")));
    cmdOk->setText(GlobalText("BTN_OK"));
    cmdCancel->setText(GlobalText("BTN_CANCEL"));
    FieldNames::FollowLabels(*this);
} catch (...) {
    mError::PassOn("frmOptions.TranslateDialog");
}

// A cancelled chooser returns its proposal, so a cancel on an empty field still fills in the proposed
// editor.
void frmOptions::cmdEditorPath_Click() {
    const std::string chosen = mMain::AskForEditorPath(QtText::FromQt(txtEditorPath->Text()));
    if (!chosen.empty())
        txtEditorPath->SetText(QtText::ToQt(chosen));
}

void frmOptions::SaveSettings() try {
    Options& options = App().Options();
    options.SetEditorPath(QtText::FromQt(txtEditorPath->Text()));
    options.SetShowStartTarvolinDialog(ckSafetyPromptBeforeStartOfTarvolin->checkState() == Qt::Checked);
} catch (...) {
    mError::PassOn("frmOptions.SaveSettings");
}

void frmOptions::cmdOk_Click() {
    SaveSettings();
    Confirm();
}

void frmOptions::cmdCancel_Click() {
    reject();
}
