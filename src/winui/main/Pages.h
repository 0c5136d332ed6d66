// The main window's pages: the game, the scenario and graphic pak, the refresh and the extra page. The
// display page, with its resolution fields and preview, has a file of its own (DisplayPage.h).
#pragma once

#include <string>

#include "winui/main/MainPage.h"

class GamePage : public MainPage {
public:
    GamePage(ValueChanged changed, ButtonPressed pressed);
    void ShowValues(const MainWindowValues& values) override;
    void HandBack(MainWindowValues& values) const override;
    void Retranslate(Mnemonics& keys) override;
    // Shows a newly chosen game, before the window writes it into the profile.
    void ShowTarvolinPath(const std::string& path);

protected:
    void OnInit() override;
    void OnCommand(int id, int code) override;

private:
    void TarvolinPathChanged();
};

class ScenarioPage : public MainPage {
public:
    ScenarioPage(ValueChanged changed, ButtonPressed pressed);
    void ShowValues(const MainWindowValues& values) override;
    void HandBack(MainWindowValues& values) const override;
    void Retranslate(Mnemonics& keys) override;
    // The entries of the two lists from the game's folder; the texts shown stay as they are.
    void FillScenarioFilesList(const std::string& tarvolinPath);
    void FillDatenPakList(const std::string& tarvolinPath);

protected:
    void OnCommand(int id, int code) override;
};

class RefreshPage : public MainPage {
public:
    RefreshPage(ValueChanged changed, ButtonPressed pressed);
    void ShowValues(const MainWindowValues& values) override;
    void HandBack(MainWindowValues& values) const override;
    void Retranslate(Mnemonics& keys) override;

protected:
    void OnCommand(int id, int code) override;
};

class ExtraPage : public MainPage {
public:
    ExtraPage(ValueChanged changed, ButtonPressed pressed);
    // The log button repeats the game page's command, with its letter.
    void Retranslate(Mnemonics& keys) override;
};
