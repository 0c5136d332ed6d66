#include "ui/main/GamePage.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include "app/PublicObjects.h"
#include "translate/cTranslate.h"
#include "ui/Named.h"
#include "ui/QtText.h"
#include "ui/controls/ucPath.h"
#include "ui/dialogs/MnemonicSet.h"

namespace {

int CheckValue(const QCheckBox* box) {
    return box->checkState() == Qt::Checked ? 1 : (box->checkState() == Qt::PartiallyChecked ? 2 : 0);
}

}  // namespace

GamePage::GamePage(QWidget* parent) : MainPage(parent, 1) {
    lblTarvoPath = Named<QLabel>(this, QStringLiteral("lblTarvoPath"));
    txtTarvolinPath = Named<ucPath>(this, QStringLiteral("txtTarvolinPath"));
    txtTarvolinPath->SetAcceptFiles(true);
    lblTarvoPath->setBuddy(txtTarvolinPath);
    cmdSelectTarvoPath = Named<QPushButton>(this, QStringLiteral("cmdSelectTarvoPath"));
    ckLogMessages = Named<QCheckBox>(this, QStringLiteral("ckLogMessages"));
    lblLogMsg = WrappedLabel(this, "lblLogMsg");
    ckFreeplay = Named<QCheckBox>(this, QStringLiteral("ckFreeplay"));
    lblFreeplayMode_Desc = WrappedLabel(this, "lblFreeplayMode_Desc");
    cmdLogfile2 = Named<QPushButton>(this, QStringLiteral("cmdLogfile2"));

    auto* layout = new QGridLayout(this);
    layout->addWidget(lblTarvoPath, 0, 0, 1, 2);
    layout->addWidget(txtTarvolinPath, 1, 0);
    layout->addWidget(cmdSelectTarvoPath, 1, 1);
    layout->setRowMinimumHeight(2, fontMetrics().height() / 2);
    layout->addWidget(ckLogMessages, 3, 0, 1, 2);
    layout->addWidget(lblLogMsg, 4, 0, 1, 2);
    layout->addWidget(ckFreeplay, 5, 0, 1, 2);
    layout->addWidget(lblFreeplayMode_Desc, 6, 0, 1, 2);
    layout->setRowStretch(7, 1);
    layout->addWidget(cmdLogfile2, 8, 1);
    layout->setColumnStretch(0, 1);

    connect(ckLogMessages, &QCheckBox::stateChanged, this,
            [this] { emit ValueChanged("frmMain.ckLogMessages_Click"); });
    connect(ckFreeplay, &QCheckBox::stateChanged, this,
            [this] { emit ValueChanged("frmMain.ckFreeplay_Click"); });
}

void GamePage::ShowValues(const MainWindowValues& values) {
    ShowTarvolinPath(values.tarvolinPath);
    ckLogMessages->setChecked(values.logMessages == MainWindowValues::kChecked);
    ckFreeplay->setChecked(values.freeplay == MainWindowValues::kChecked);
}

void GamePage::HandBack(MainWindowValues& values) const {
    values.tarvolinPath = QtText::FromQt(txtTarvolinPath->Text());
    values.logMessages = CheckValue(ckLogMessages);
    values.freeplay = CheckValue(ckFreeplay);
}

void GamePage::ShowTarvolinPath(const std::string& path) {
    txtTarvolinPath->SetText(QtText::ToQt(path));
}

void GamePage::Retranslate(MnemonicSet& keys) {
    lblTarvoPath->setText(keys.Add(Text("LBL_TARVOPATH")));
    cmdSelectTarvoPath->setText(keys.Add(QtText::ToQt(Translator().TranslateEx("GLOBAL", "BTN_Browse"))));
    ckLogMessages->setText(keys.Add(Text("CHK_LOG")));
    ckFreeplay->setText(keys.Add(Text("CHK_FREEPLAY")));
    cmdLogfile2->setText(keys.Add(Text("BTN_DISPLAY_LOGFILE")));
    lblLogMsg->setText(Text("LBL_LOG_DESC"));
    lblFreeplayMode_Desc->setText(Text("LBL_FREEPLAY_DESC"));
}
