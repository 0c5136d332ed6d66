// The first page: the game's program file, logging and free play, and the log file.
#pragma once

#include <string>

#include "ui/main/MainPage.h"

class QCheckBox;
class QLabel;
class QPushButton;
class ucPath;

class GamePage final : public MainPage {
    Q_OBJECT

public:
    explicit GamePage(QWidget* parent);

    void ShowValues(const MainWindowValues& values) override;
    void HandBack(MainWindowValues& values) const override;
    void Retranslate(MnemonicSet& keys) override;

    // Shows a game chosen with Browse.
    void ShowTarvolinPath(const std::string& path);

    // The page's commands, which the window carries out.
    QPushButton* BrowseButton() const { return cmdSelectTarvoPath; }
    QPushButton* LogFileButton() const { return cmdLogfile2; }

private:
    QLabel* lblTarvoPath = nullptr;
    ucPath* txtTarvolinPath = nullptr;
    QPushButton* cmdSelectTarvoPath = nullptr;
    QCheckBox* ckLogMessages = nullptr;
    QLabel* lblLogMsg = nullptr;
    QCheckBox* ckFreeplay = nullptr;
    QLabel* lblFreeplayMode_Desc = nullptr;
    QPushButton* cmdLogfile2 = nullptr;
};
