// The main window: the active profile on five pages behind a row of tabs, the start button, the version
// line and the menus. It holds no settings of its own: LoadData shows a profile on the pages and
// RefreshProfileData writes what they show back at the moments that need it (save, start, switch, close).
// Each page is a class of its own (GamePage, ScenarioPage, DisplayPage, RefreshPage, ExtraPage) that shows
// and hands back its values; the rules that need no widget live in mainwindow/. The window's code is split
// by concern:
//   frmMain.cpp          the tabs and the pages inside the tab area, the start row
//   frmMainBinding.cpp   LoadData, RefreshProfileData and the command line under the pages
//   frmMainCommands.cpp  the buttons, the menu commands and closing
//   frmMainMenus.cpp     building the menus, the profile and language menus
//   frmMainTexts.cpp     every caption and the version line
#pragma once

#include <QMainWindow>
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "mainwindow/MainWindowValues.h"
#include "mainwindow/frmMainCommands.h"
#include "platform/FileSystem.h"

class DisplayPage;
class ExtraPage;
class GamePage;
class MainPage;
class Profile;
class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class RefreshPage;
class ScenarioPage;
class ucTab;
class ucTabArea;

class frmMain : public QMainWindow {
    Q_OBJECT

public:
    static constexpr int kTabCount = 5;

    explicit frmMain(QWidget* parent = nullptr);

    // Fills the two lists, translates the window, builds the profile, language and accessories menus and
    // shows the first page.
    void InitDialog();

    // Makes `profile` active and shows it; true when it ran to the end.
    bool LoadData(Profile& profile);
    // Corrects and checks the input, writes it into the active profile and compares both command lines.
    void RefreshProfileData();
    // Lets the user choose which changed profiles to save; says why the chosen ones were not saved.
    platform::WriteFault SaveData();

    // The window's own composition of the game's command line, from its controls.
    std::string GetCmdLineParameters() const;

    void TranslateDialog();
    void UpdateVersionLabels();

    // Activates tab `index` and shows page index + 1.
    void ucTab1_Click(int index);

    // Ends the program when it is asked to from outside (the session ends, the process is told to end):
    // nobody can answer a question then, so it keeps everything, saving every changed profile and its
    // settings, and closes the window.
    void EndOnRequest();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Building (frmMain.cpp).
    QWidget* CreateTabbedPages();
    QWidget* CreateStartRow();
    void PlaceTabs();
    void ActivatePage(int page);

    // Binding (frmMainBinding.cpp).
    MainWindowValues Values() const;
    void TellCorrection(const char* key, QWidget* focus);
    void ControlChanged(const char* procedure);
    void ShowCommandLine();

    // Commands (frmMainCommands.cpp).
    void cmdStart_Click();
    void cmdLogfile_Click();
    void cmdLogfile2_Click();
    void cmdOpenTarvoDir_Click();
    void cmdSelectTarvoPath_Click();
    void mnuFile_Save_Click();
    void mnuFile_Quit_Click();
    void mnuFile_ImportProfile_Click();
    void mnuFile_ExportProfile_Click();
    void mnuFile_SendFeedback_Click();
    void mnuProfile_New_Click();
    void mnuProfile_Edit_Click();
    void mnuProfile_Rename_Click();
    void mnuProfile_Duplicate_Click();
    void mnuProfile_Delete_Click();
    void mnuProfile_List_Click(int index);
    void mnuProfil_Manager_Click();
    void mnuEditCopy_CmdLine_Click();
    void mnuEditCopy_Profile_Click();
    void mnuEditPaste_Profile_Click();
    // Shows `profile` when it is a new one made by a command, and lists the profiles as they are now.
    void RunProfileCommand(frmMainCommands::ProfileCommand command);
    void ShowMadeProfile(Profile* profile);
    void mnuExtra_CreateShortcut_Click();
    void mnuExtra_Options_Click();
    void mnuExtra_Update_Click();
    void mnuExtra_Accessories_LanguageEditor_Click();
    void mnuOptions_Lang_Item_Click(int index);
    void mnuHelp_FAQ_Click();
    void mnuHelp_FAQ_EN_Click();
    void mnuHelp_Webpage_Click();
    void mnuHelp_About_Click();
    bool Form_QueryUnload();
    void Form_Unload();
    void ConnectCommands();
    void Queue(std::function<void()> command, const char* trail);
    void Queue(void (frmMain::*handler)(), const char* trail);
    // Tells the user that changes could not be saved; while the program ends on request nobody could
    // answer a window, so the message goes to the standard error output instead.
    void TellUnsaved(platform::WriteFault fault) const;

    // Menus (frmMainMenus.cpp).
    void CreateMenus();
    QAction* NewAction(QMenu* menu, const char* name);
    void FillProfileList();
    void ShowProfileList();
    void InitLanguageList();
    void HighligthSelectedLanguage();
    void RefreshAccessoriesMenu();
    void HideFAQMenu();

    // Texts (frmMainTexts.cpp).
    void TranslateMenus();
    void TranslatePages();

    std::array<ucTab*, kTabCount> ucTab1{};
    ucTabArea* Shape1 = nullptr;
    QWidget* tabHost = nullptr;
    GamePage* m_game = nullptr;
    ScenarioPage* m_scenario = nullptr;
    DisplayPage* m_display = nullptr;
    RefreshPage* m_refresh = nullptr;
    ExtraPage* m_extra = nullptr;
    std::array<MainPage*, kTabCount + 1> picPage{};  // pages 1 to 5; index 0 unused

    QLabel* lblVersion = nullptr;
    QLineEdit* txtCommandLine = nullptr;
    QPushButton* cmdStart = nullptr;

    QMenu* mnuFile = nullptr;
    QAction* mnuFile_Save = nullptr;
    QAction* mnuFile_Quit = nullptr;
    QAction* mnuFile_ImportProfile = nullptr;
    QAction* mnuFile_ExportProfile = nullptr;
    QMenu* mnuFile_Profiles = nullptr;
    QAction* mnuProfile_New = nullptr;
    QAction* mnuProfile_Edit = nullptr;
    QAction* mnuProfile_Rename = nullptr;
    QAction* mnuProfile_Duplicate = nullptr;
    QAction* mnuProfile_Delete = nullptr;
    QAction* mnuProfil_Manager = nullptr;
    std::vector<QAction*> mnuProfile_List;
    QMenu* mnuEdit = nullptr;
    QAction* mnuEditCopy_CmdLine = nullptr;
    QAction* mnuEditCopy_Profile = nullptr;
    QAction* mnuEditPaste_Profile = nullptr;
    QMenu* mnuExtra = nullptr;
    QAction* mnuExtra_CreateShortcut = nullptr;
    QMenu* mnuOptions_Lang = nullptr;
    std::vector<QAction*> mnuOptions_Lang_Item;
    QAction* mnuExtra_Options = nullptr;
    QAction* mnuExtra_Update = nullptr;
    QAction* mnuExtra_BarAfterAccessoriesMenu = nullptr;
    QMenu* mnuExtra_Accessories = nullptr;
    QAction* mnuExtra_Accessories_LanguageEditor = nullptr;
    QMenu* mnuHelp = nullptr;
    QAction* mnuHelp_FAQ = nullptr;
    QAction* mnuHelp_FAQ_EN = nullptr;
    QAction* mnuHelp_Webpage = nullptr;
    QAction* mnuFile_SendFeedback = nullptr;
    QAction* mnuHelp_About = nullptr;

    bool m_profileListShown = false;  // the profile menu's items show the profiles as they are
    bool m_ending = false;            // EndOnRequest is ending the program: no questions, no messages
    bool m_unloaded = false;          // Form_Unload ran: the program-wide objects are closed
};
