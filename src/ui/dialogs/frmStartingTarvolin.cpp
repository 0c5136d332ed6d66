#include "ui/dialogs/frmStartingTarvolin.h"

#include <QCheckBox>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "profiles/Profile.h"
#include "ui/EntryPoint.h"
#include "ui/QtText.h"
#include "ui/dialogs/MnemonicSet.h"

namespace {

// The command line can be long and is worth copying, so it is framed, wrapped and selectable.
QLabel* CommandLineLabel(QLabel* label) {
    label->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    label->setFrameShape(QFrame::StyledPanel);
    label->setMargin(label->fontMetrics().averageCharWidth());
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

}  // namespace

frmStartingTarvolin::frmStartingTarvolin(QWidget* parent)
    : ModalDialog("frmStartingTarvolin", "START_TARVOLIN_DIALOG", parent) {
    auto* layout = new QVBoxLayout(this);
    lblCaption = WrappedLabel("lblCaption");
    lblInfo = CommandLineLabel(WrappedLabel("lblInfo"));
    lblWarning = WrappedLabel("lblWarning");
    ckDontShowThisDialogAgain = new QCheckBox(this);
    ckDontShowThisDialogAgain->setObjectName(QStringLiteral("ckDontShowThisDialogAgain"));
    layout->addWidget(lblCaption);
    layout->addWidget(lblInfo);
    layout->addWidget(lblWarning);
    layout->addSpacing(fontMetrics().height() / 2);
    layout->addWidget(ckDontShowThisDialogAgain);
    layout->addLayout(CreateButtonRow());
    setMinimumWidth(fontMetrics().averageCharWidth() * 60);
}

QLayout* frmStartingTarvolin::CreateButtonRow() {
    cmdOk = Button("cmdOk");
    cmdCancel = Button("cmdCancel");
    ConnectEntryPoint(cmdOk, &QPushButton::clicked, this, &frmStartingTarvolin::cmdOk_Click,
                      "frmStartingTarvolin.cmdOk_Click");
    ConnectEntryPoint(cmdCancel, &QPushButton::clicked, this, &frmStartingTarvolin::cmdCancel_Click,
                      "frmStartingTarvolin.cmdCancel_Click");
    return ButtonRow({cmdOk, cmdCancel});
}

void frmStartingTarvolin::InitDialog(const Profile& oProfile) try {
    lblInfo->setText(QtText::ToQt(oProfile.GetCmdLineParameters()));
    TranslateDialog();
    ResetCancel();
    cmdOk->setFocus();
} catch (...) {
    mError::PassOn("frmStartingTarvolin.InitDialog");
}

void frmStartingTarvolin::TranslateDialog() try {
    setWindowTitle(ItemText("DIALOG_CAPTION"));
    lblCaption->setText(ItemText("LBL_DIALOG_INFO"));
    lblWarning->setText(ItemText("LBL_WARNING"));
    MnemonicSet keys;
    ckDontShowThisDialogAgain->setText(keys.Add(ItemText("CHK_DONT_SHOW_DIALOG")));
    cmdOk->setText(GlobalText("BTN_OK"));
    cmdCancel->setText(GlobalText("BTN_CANCEL"));
} catch (...) {
    mError::PassOn("frmStartingTarvolin.TranslateDialog");
}

void frmStartingTarvolin::cmdOk_Click() {
    App().Options().SetShowStartTarvolinDialog(!ckDontShowThisDialogAgain->isChecked());
    Confirm();
}

void frmStartingTarvolin::cmdCancel_Click() {
    reject();
}
