#include "ui/dialogs/frmProfiles.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "ui/EntryPoint.h"
#include "ui/controls/FieldNames.h"
#include "ui/controls/ucProfiles.h"

frmProfiles::frmProfiles(QWidget* parent) : ModalDialog("frmProfiles", "PROFILES_DIALOG", parent) {
    ucProfiles1 = new ucProfiles(this);
    ucProfiles1->setObjectName(QStringLiteral("ucProfiles1"));
    cmdClose = Button("cmdClose");
    ConnectEntryPoint(cmdClose, &QPushButton::clicked, this, &frmProfiles::cmdClose_Click,
                      "frmProfiles.cmdClose_Click");
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(ucProfiles1, 1);
    layout->addLayout(ButtonRow({cmdClose}));
    setMinimumSize(fontMetrics().averageCharWidth() * 72, fontMetrics().height() * 18);
}

// The active profile starts as the current row, so the list opens where the user works.
void frmProfiles::InitDialog() try {
    ucProfiles1->FillProfileList(false);
    if (const Profile* active = App().ActiveProfile())
        ucProfiles1->SelectProfile(active->ProfileName());
    TranslateDialog();
    ucProfiles1->setFocus();
} catch (...) {
    mError::PassOn("frmProfiles.InitDialog");
}

void frmProfiles::TranslateDialog() try {
    setWindowTitle(ItemText("DIALOG_CAPTION"));
    cmdClose->setText(GlobalText("BTN_CLOSE"));
    // No label stands before the list: the window's title names it.
    FieldNames::NameInside(*ucProfiles1, windowTitle());
} catch (...) {
    mError::PassOn("frmProfiles.TranslateDialog");
}

void frmProfiles::cmdClose_Click() {
    accept();
}
