// The two directions between the active profile and the pages, and the command line under the pages.
#include <QLineEdit>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/UserInterface.h"
#include "error/mError.h"
#include "mainwindow/frmMainCommands.h"
#include "mainwindow/frmMainRules.h"
#include "profiles/Profile.h"
#include "translate/cTranslate.h"
#include "ui/QtText.h"
#include "ui/main/DisplayPage.h"
#include "ui/main/ScenarioPage.h"
#include "ui/main/frmMain.h"

MainWindowValues frmMain::Values() const {
    MainWindowValues values;
    for (int i = 1; i <= kTabCount; ++i)
        picPage[i]->HandBack(values);
    return values;
}

bool frmMain::LoadData(Profile& profile) try {
    App().SetActiveProfile(&profile);
    frmMainCommands::AskForMissingGame(profile);
    const MainWindowValues values = frmMainRules::ValuesOf(profile);
    for (int i = 1; i <= kTabCount; ++i)
        picPage[i]->ShowValues(values);
    m_scenario->FillDatenPakList(values.tarvolinPath);
    m_scenario->FillScenarioFilesList(values.tarvolinPath);
    FillProfileList();
    // The preview shows the loaded choice, and the standard mode is chosen with it, as it always was.
    m_display->lstResolution_Click();
    UpdateVersionLabels();
    return true;
} catch (...) {
    mError::PassOn("frmMain.LoadData");
}

void frmMain::RefreshProfileData() try {
    m_display->CorrectInput();
    frmMainCommands::WriteBack(Values(), *App().ActiveProfile());
} catch (...) {
    mError::PassOn("frmMain.RefreshProfileData");
}

platform::WriteFault frmMain::SaveData() try {
    RefreshProfileData();
    return App().SaveData();
} catch (...) {
    mError::PassOn("frmMain.SaveData");
}

std::string frmMain::GetCmdLineParameters() const {
    return frmMainRules::GetCmdLineParameters(Values());
}

// Shows the display page and says what was corrected; nobody is told while the program ends on request.
void frmMain::TellCorrection(const char* key, QWidget* focus) {
    if (m_ending)
        return;
    ucTab1_Click(2);
    if (focus != nullptr)
        focus->setFocus();
    Ui().MsgBox(Translator().TranslateEx("MAIN_DIALOG", key), vbOKOnly);
}

// Every edit that changes the command line shows it anew; a failure is reported under the control's name.
void frmMain::ControlChanged(const char* procedure) {
    mError::AsEntryPoint(procedure, [this] { ShowCommandLine(); });
}

// The line under the pages shows what Start will give the game, as the pages say now.
void frmMain::ShowCommandLine() {
    txtCommandLine->setText(QtText::ToQt(GetCmdLineParameters()));
    txtCommandLine->setCursorPosition(0);
}
