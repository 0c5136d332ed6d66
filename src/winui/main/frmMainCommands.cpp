// The buttons, the menu commands and closing the window. Every command is an event entry point: it reports
// its own failure under "frmMain." and its name, and the action ends there.
#include "mainwindow/frmMainCommands.h"
#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/UserInterface.h"
#include "error/mError.h"
#include "mainwindow/frmMainRules.h"
#include "platform/Platform.h"
#include "profiles/Profile.h"
#include "profiles/Profiles.h"
#include "profiles/mManageProfiles.h"
#include "resource.h"
#include "winui/dialogs/frmEditProfile.h"
#include "winui/dialogs/frmInfo.h"
#include "winui/dialogs/frmOptions.h"
#include "winui/dialogs/frmProfiles.h"
#include "winui/dialogs/frmUpdate.h"
#include "winui/main/Pages.h"
#include "winui/main/frmMain.h"
#include "winui/shortcuts/frmCreateTarvolinShortcut_New.h"

namespace {

using frmMainCommands::ProfileCommand;

struct Command {
    int id;
    void (*run)(frmMain& window, HWND handle);
    const char* trail;
};

// A window that needs nothing from the main window but its place, shown over it until it is closed.
template <class Window>
void Show(frmMain& main, HWND) {
    Window dialog;
    dialog.InitDialog();
    dialog.ShowModal(main.Handle());
}

}  // namespace

void frmMain::OnCommand(int id, int code) {
    if (m_tabs.IndexOf(id) >= 0) {
        if (code == BN_CLICKED)
            ucTab1_Click(m_tabs.IndexOf(id));
    } else if (id == IDCANCEL) {
        // Escape closes no main window: it is the window of the program, not a dialog.
    } else if (id >= IDM_mnuProfile_List_0 && id <= IDM_mnuProfile_List_Last) {
        mError::AsEntryPoint("frmMain.mnuProfile_List_Click",
                             [&] { mnuProfile_List_Click(id - IDM_mnuProfile_List_0); });
    } else if (id >= IDM_mnuOptions_Lang_Item_0 && id < IDM_mnuProfile_List_0) {
        mnuOptions_Lang_Item_Click(id - IDM_mnuOptions_Lang_Item_0);
    } else if (code == BN_CLICKED || code == 0) {
        RunCommand(id);
    }
}

// Every command with the name its reports carry.
void frmMain::RunCommand(int id) {
    static const Command kCommands[] = {
        {IDC_cmdStart, [](frmMain& w, HWND) { w.cmdStart_Click(); }, "frmMain.cmdStart_Click"},
        {IDC_cmdLogfile, [](frmMain&, HWND h) { frmMainCommands::OpenLogFile(OwnerOf(h)); },
         "frmMain.cmdLogfile_Click"},
        {IDC_cmdLogfile2, [](frmMain&, HWND h) { frmMainCommands::OpenLogFile(OwnerOf(h)); },
         "frmMain.cmdLogfile2_Click"},
        {IDC_cmdOpenTarvoDir, [](frmMain&, HWND h) { frmMainCommands::OpenGameFolder(OwnerOf(h)); },
         "frmMain.cmdOpenTarvoDir_Click"},
        {IDC_cmdSelectTarvoPath, [](frmMain& w, HWND) { w.cmdSelectTarvoPath_Click(); },
         "frmMain.cmdSelectTarvoPath_Click"},
        {IDM_mnuFile_Save, [](frmMain& w, HWND) { w.SaveData(); }, "frmMain.mnuFile_Save_Click"},
        {IDM_mnuFile_Quit, [](frmMain&, HWND h) { PostMessageA(h, WM_CLOSE, 0, 0); },
         "frmMain.mnuFile_Quit_Click"},
        {IDM_mnuFile_SendFeedback, [](frmMain&, HWND h) { App().ContactAuthor(OwnerOf(h)); },
         "frmMain.mnuFile_SendFeedback_Click"},
        {IDM_mnuProfile_New, [](frmMain& w, HWND) { w.mnuProfile_New_Click(); },
         "frmMain.mnuProfile_New_Click"},
        {IDM_mnuProfile_Edit, [](frmMain& w, HWND) { w.mnuProfile_Edit_Click(); },
         "frmMain.mnuProfile_Edit_Click"},
        {IDM_mnuProfil_Manager, [](frmMain& w, HWND) { w.mnuProfil_Manager_Click(); },
         "frmMain.mnuProfil_Manager_Click"},
        {IDM_mnuProfile_Rename, [](frmMain& w, HWND) { w.mnuProfile_Rename_Click(); },
         "frmMain.mnuProfile_Rename_Click"},
        {IDM_mnuProfile_Duplicate, [](frmMain& w, HWND) { w.RunProfileCommand(ProfileCommand::Duplicate); },
         "frmMain.mnuProfile_Duplicate_Click"},
        {IDM_mnuProfile_Delete, [](frmMain& w, HWND) { w.RunProfileCommand(ProfileCommand::Delete); },
         "frmMain.mnuProfile_Delete_Click"},
        {IDM_mnuFile_ImportProfile, [](frmMain& w, HWND) { w.RunProfileCommand(ProfileCommand::Import); },
         "frmMain.mnuFile_ImportProfile_Click"},
        {IDM_mnuFile_ExportProfile, [](frmMain& w, HWND) { w.RunProfileCommand(ProfileCommand::Export); },
         "frmMain.mnuFile_ExportProfile_Click"},
        {IDM_mnuEditCopy_Profile, [](frmMain& w, HWND) { w.RunProfileCommand(ProfileCommand::Copy); },
         "frmMain.mnuEditCopy_Profile_Click"},
        {IDM_mnuEditPaste_Profile, [](frmMain& w, HWND) { w.RunProfileCommand(ProfileCommand::Paste); },
         "frmMain.mnuEditPaste_Profile_Click"},
        {IDM_mnuEditCopy_CmdLine, [](frmMain& w, HWND) { w.mnuEditCopy_CmdLine_Click(); },
         "frmMain.mnuEditCopy_CmdLine_Click"},
        {IDM_mnuExtra_CreateShortcut, [](frmMain& w, HWND) { w.mnuExtra_CreateShortcut_Click(); },
         "frmMain.mnuExtra_CreateShortcut_Click"},
        {IDM_mnuExtra_Options, Show<frmOptions>, "frmMain.mnuExtra_Options_Click"},
        {IDM_mnuExtra_Update, Show<frmUpdate>, "frmMain.mnuExtra_Update_Click"},
        {IDM_mnuHelp_About, Show<frmInfo>, "frmMain.mnuHelp_About_Click"},
        {IDM_mnuExtra_Accessories_LanguageEditor,
         [](frmMain&, HWND h) {
             Os().ShellExec(OwnerOf(h), "open", "LanguageEditor.exe", "", App().GetToolsDirectory(),
                            kSwShowNormal);
         },
         "frmMain.mnuExtra_Accessories_LanguageEditor_Click"},
        {IDM_mnuHelp_FAQ, [](frmMain&, HWND h) { App().ShowFAQ(OwnerOf(h), App().Options().Language()); },
         "frmMain.mnuHelp_FAQ_Click"},
        {IDM_mnuHelp_FAQ_EN, [](frmMain&, HWND h) { App().ShowFAQ(OwnerOf(h), "EN"); },
         "frmMain.mnuHelp_FAQ_EN_Click"},
        {IDM_mnuHelp_Webpage, [](frmMain&, HWND h) { App().ShowPavonelWebpage(OwnerOf(h)); },
         "frmMain.mnuHelp_Webpage_Click"},
    };
    for (const Command& command : kCommands) {
        if (command.id == id && !m_unloaded) {
            mError::AsEntryPoint(command.trail, [&] { command.run(*this, Handle()); });
            return;
        }
    }
}

// The wizard gets the profile with the window's input written into it.
void frmMain::mnuExtra_CreateShortcut_Click() {
    RefreshProfileData();
    frmCreateTarvolinShortcut_New dialog;
    dialog.InitDialog(*App().ActiveProfile());
    dialog.ShowModal(Handle());
}

void frmMain::cmdStart_Click() {
    RefreshProfileData();
    App().ActiveProfile()->StartTarvolin(OwnerOf(Handle()));
}

// A new game path refills the lists from its folder.
void frmMain::cmdSelectTarvoPath_Click() {
    const std::optional<std::string> chosen = frmMainCommands::ChooseGamePath(Values().tarvolinPath);
    if (!chosen)
        return;
    m_game->ShowTarvolinPath(*chosen);
    RefreshProfileData();
    LoadData(*App().ActiveProfile());
}

void frmMain::mnuProfile_New_Click() {
    RefreshProfileData();
    if (Profile* created = App().Profiles().ShowAddNewDialog())
        LoadData(*created);
}

void frmMain::mnuProfile_Edit_Click() {
    frmEditProfile dialog;
    dialog.InitDialog(2, *App().ActiveProfile());
    dialog.ShowModal(Handle());
}

// The edits of the profile shown so far stay with it before the other one is shown.
void frmMain::mnuProfile_List_Click(int index) {
    RefreshProfileData();
    LoadData(App().Profiles().Item(m_profileTags.at(static_cast<std::size_t>(index))));
}

// The window may rename, duplicate or delete profiles: the active one (a copy, or the standard profile in the
// place of a deleted one) is then shown afresh, with the menu listing the profiles as they are.
void frmMain::mnuProfil_Manager_Click() {
    RefreshProfileData();
    frmProfiles dialog;
    dialog.InitDialog();
    dialog.ShowModal(Handle());
    if (dialog.ProfilesChanged())
        LoadData(*App().ActiveProfile());
}

// The commands on whole profiles act on the profile with the window's input written into it.
void frmMain::mnuProfile_Rename_Click() {
    RefreshProfileData();
    if (mManageProfiles::RenameProfile(*App().ActiveProfile()))
        FillProfileList();
}

// The others show the profile they made, or the one in the place of a deleted one.
void frmMain::RunProfileCommand(frmMainCommands::ProfileCommand command) {
    Profile* shown = frmMainCommands::RunProfileCommand(
        command, [this] { RefreshProfileData(); }, OwnerOf(Handle()));
    if (shown != nullptr)
        LoadData(*shown);
}

void frmMain::mnuEditCopy_CmdLine_Click() {
    Ui().SetClipboardText(
        frmMainRules::CleanText(App().ActiveProfile()->TarvolinPath() + GetCmdLineParameters()));
}

// The language changes at once: every caption, both lists and the version line.
void frmMain::mnuOptions_Lang_Item_Click(int index) try {
    App().Options().SetLanguage(m_languageTags.at(static_cast<std::size_t>(index)));
    HighligthSelectedLanguage();
    TranslateDialog();
} catch (...) {
    mError::ShowError("frmMain.mnuOptions_Lang_Item_Click");
}

void frmMain::Form_QueryUnloadAndClose() {
    if (!frmMainCommands::QueryUnload([this] { RefreshProfileData(); }, [this] { return SaveData(); }))
        return;
    Form_Unload();
    DestroyWindow(Handle());
}

void frmMain::Form_Unload() try {
    m_unloaded = true;
    frmMainCommands::Unload([](platform::WriteFault fault) { App().TellUnsaved(fault); });
} catch (...) {
    mError::ShowError("frmMain.Form_Unload");
}
