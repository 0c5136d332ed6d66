// The second page: the scenario folder and the graphic pak, each typed or chosen from what the game folder
// holds.
#pragma once

#include <string>

#include "ui/main/MainPage.h"

class QComboBox;
class QLabel;

class ScenarioPage final : public MainPage {
    Q_OBJECT

public:
    explicit ScenarioPage(QWidget* parent);

    void ShowValues(const MainWindowValues& values) override;
    void HandBack(MainWindowValues& values) const override;
    void Retranslate(MnemonicSet& keys) override;

    // Each lists what the folder of the game `tarvolinPath` holds; the text shown stays, listed or not.
    void FillScenarioFilesList(const std::string& tarvolinPath);
    void FillDatenPakList(const std::string& tarvolinPath);

private:
    QLabel* lblScenarios = nullptr;
    QComboBox* txtScenario = nullptr;
    QLabel* lblScenarioInfo = nullptr;
    QLabel* lblGraphicPak = nullptr;
    QComboBox* txtGraphicPack = nullptr;
    QLabel* lblGraphicPakInfo = nullptr;
};
