// The fifth page: the game's folder and its log file, each opened by a button. It shows no profile values.
#pragma once

#include "ui/main/MainPage.h"

class QGroupBox;
class QLabel;
class QPushButton;

class ExtraPage final : public MainPage {
    Q_OBJECT

public:
    explicit ExtraPage(QWidget* parent);

    void Retranslate(MnemonicSet& keys) override;

    // The page's commands, which the window carries out.
    QPushButton* OpenFolderButton() const { return cmdOpenTarvoDir; }
    QPushButton* LogFileButton() const { return cmdLogfile; }

private:
    QGroupBox* frmOpenTarvoFolder = nullptr;
    QLabel* lblOpenTarvoFolder = nullptr;
    QPushButton* cmdOpenTarvoDir = nullptr;
    QGroupBox* frmOpenLogfile = nullptr;
    QLabel* lblOpenLogfileDesc = nullptr;
    QPushButton* cmdLogfile = nullptr;
};
