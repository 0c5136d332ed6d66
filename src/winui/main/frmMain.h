// The main window: the active profile on five pages behind a row of drawn tabs, the version line, the
// command line that Start gives the game, and the menus. It holds no settings of its own: LoadData shows a
// profile on the pages and RefreshProfileData writes what they show back at the moments that need it
// (save, start, switch, close). The pages are classes of their own; the steps of the commands and every
// rule live in core (mainwindow/). The window's code is split by concern:
//   frmMain.cpp          the tabs and pages, showing and writing back a profile, the captions
//   frmMainCommands.cpp  the buttons, the menu commands and closing
//   frmMainMenus.cpp     the menu bar and its built menus (profiles, languages)
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "mainwindow/MainWindowValues.h"
#include "mainwindow/frmMainCommands.h"
#include "platform/FileSystem.h"
#include "resource.h"
#include "winui/Dialog.h"
#include "winui/controls/ucTab.h"

class DisplayPage;
class ExtraPage;
class GamePage;
class MainPage;
class Profile;
class RefreshPage;
class ScenarioPage;

class frmMain : public Dialog {
public:
    static constexpr int kTabCount = 5;

    frmMain();
    ~frmMain() override;

    // Makes the window (not shown yet) and its pages.
    void Create();

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
    // The page shown now, counted from 1.
    int ActivePage() const { return m_tabs.Active() + 1; }

    // Keys the window takes before its controls: Ctrl+Tab and Ctrl+Shift+Tab (and Ctrl+PageDown and
    // Ctrl+PageUp) turn the pages. True when `message` was taken.
    bool TranslateKeys(const MSG& message);

protected:
    void OnInit() override;
    void OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    // Building and binding (frmMain.cpp).
    void PlaceInTabOrder(MainPage& page);
    void MakePage(int page);
    void ActivatePage(int page);
    MainWindowValues Values() const;
    void TellCorrection(const char* key, HWND focus);
    void ControlChanged(const char* trail);
    void ShowCommandLine();
    void TranslatePages();

    // Commands (frmMainCommands.cpp).
    void RunCommand(int id);
    void cmdStart_Click();
    void cmdSelectTarvoPath_Click();
    void mnuProfile_New_Click();
    void mnuProfile_Edit_Click();
    void mnuProfile_List_Click(int index);
    void mnuProfil_Manager_Click();
    void mnuProfile_Rename_Click();
    void RunProfileCommand(frmMainCommands::ProfileCommand command);
    void mnuEditCopy_CmdLine_Click();
    void mnuExtra_CreateShortcut_Click();
    void mnuOptions_Lang_Item_Click(int index);
    void Form_QueryUnloadAndClose();
    void Form_Unload();

    // Menus (frmMainMenus.cpp).
    void CreateMenus();
    void TranslateMenus();
    void FillProfileList();
    void ShowProfileList();
    void InitLanguageList();
    void HighligthSelectedLanguage();
    void RefreshAccessoriesMenu();
    void HideFAQMenu();

    std::unique_ptr<GamePage> m_game;
    std::unique_ptr<ScenarioPage> m_scenario;
    std::unique_ptr<DisplayPage> m_display;
    std::unique_ptr<RefreshPage> m_refresh;
    std::unique_ptr<ExtraPage> m_extra;
    std::array<MainPage*, kTabCount + 1> picPage{};  // pages 1 to 5; index 0 unused
    ucTab::Row m_tabs{IDC_ucTab1_0, kTabCount, IDC_Shape1};
    MainWindowValues m_shown;  // the values last shown, which pages not made yet keep

    HMENU mnuFile_Profiles = nullptr;
    HMENU mnuOptions_Lang = nullptr;
    HMENU mnuExtra = nullptr;
    HMENU mnuHelp = nullptr;
    std::vector<std::string> m_profileTags;   // the profile menu's items, by their names
    std::vector<std::string> m_languageTags;  // the language menu's items, by their abbreviations

    bool m_profileListShown = false;  // the profile menu's items show the profiles as they are
    bool m_unloaded = false;          // Form_Unload ran: the program-wide objects are closed
};
