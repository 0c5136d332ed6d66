#include "ui/main/ExtraPage.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <tuple>

#include "ui/Named.h"
#include "ui/dialogs/MnemonicSet.h"

ExtraPage::ExtraPage(QWidget* parent) : MainPage(parent, 5) {
    frmOpenTarvoFolder = Named<QGroupBox>(this, QStringLiteral("frmOpenTarvoFolder"));
    lblOpenTarvoFolder = WrappedLabel(frmOpenTarvoFolder, "lblOpenTarvoFolder");
    cmdOpenTarvoDir = Named<QPushButton>(frmOpenTarvoFolder, QStringLiteral("cmdOpenTarvoDir"));
    frmOpenLogfile = Named<QGroupBox>(this, QStringLiteral("frmOpenLogfile"));
    lblOpenLogfileDesc = WrappedLabel(frmOpenLogfile, "lblOpenLogfileDesc");
    cmdLogfile = Named<QPushButton>(frmOpenLogfile, QStringLiteral("cmdLogfile"));
    auto* layout = new QVBoxLayout(this);
    for (auto [frame, label, button] : {std::tuple{frmOpenTarvoFolder, lblOpenTarvoFolder, cmdOpenTarvoDir},
                                        std::tuple{frmOpenLogfile, lblOpenLogfileDesc, cmdLogfile}}) {
        auto* inside = new QHBoxLayout(frame);
        inside->addWidget(label, 1);
        inside->addWidget(button, 0, Qt::AlignTop);
        layout->addWidget(frame);
    }
    layout->addStretch();
}

// The log button repeats the one on the first page, letter included.
void ExtraPage::Retranslate(MnemonicSet& keys) {
    cmdOpenTarvoDir->setText(keys.Add(Text("BTN_OPEN_TARVOFOLDER")));
    cmdLogfile->setText(keys.Again(Text("BTN_DISPLAY_LOGFILE")));
    frmOpenLogfile->setTitle(Text("LBL_LOGFILE_FRAME"));
    frmOpenTarvoFolder->setTitle(Text("LBL_TARVOFOLDER_FRAME"));
    lblOpenLogfileDesc->setText(Text("LBL_LOGFILE_FRAME_TEXT"));
    lblOpenTarvoFolder->setText(Text("LBL_TARVOFOLDER_FRAME_TEXT"));
}
