// The buttons, the menu commands and closing the window. Every command is an event entry point: it reports
// its own failure under "frmMain." and its name (wired with the name in ConnectCommands), and the action
// ends there.
#include <QAction>
#include <QCloseEvent>
#include <QPushButton>
#include <iostream>
#include <optional>
#include <tuple>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/UserInterface.h"
#include "error/mError.h"
#include "mainwindow/frmMainCommands.h"
#include "mainwindow/frmMainRules.h"
#include "platform/Platform.h"
#include "profiles/Profile.h"
#include "profiles/mManageProfiles.h"
#include "translate/cTranslate.h"
#include "ui/EntryPoint.h"
#include "ui/QtText.h"
#include "ui/QtTranslation.h"
#include "ui/dialogs/frmEditProfile.h"
#include "ui/dialogs/frmInfo.h"
#include "ui/dialogs/frmOptions.h"
#include "ui/dialogs/frmProfiles.h"
#include "ui/dialogs/frmUpdate.h"
#include "ui/main/ExtraPage.h"
#include "ui/main/GamePage.h"
#include "ui/main/frmMain.h"
#include "ui/shortcuts/frmCreateTarvolinShortcut_New.h"

namespace {

int64_t Owner(const QWidget* window) {
    return static_cast<int64_t>(window->winId());
}

}  // namespace

void frmMain::cmdStart_Click() {
    RefreshProfileData();
    App().ActiveProfile()->StartTarvolin(Owner(this));
}

void frmMain::cmdLogfile_Click() {
    frmMainCommands::OpenLogFile(Owner(this));
}

void frmMain::cmdLogfile2_Click() {
    frmMainCommands::OpenLogFile(Owner(this));
}

void frmMain::cmdOpenTarvoDir_Click() {
    frmMainCommands::OpenGameFolder(Owner(this));
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

void frmMain::mnuFile_Save_Click() {
    SaveData();
}

void frmMain::mnuFile_Quit_Click() {
    close();
}

// The commands on whole profiles act on the profile with the window's input written into it.
void frmMain::mnuFile_ImportProfile_Click() {
    RunProfileCommand(frmMainCommands::ProfileCommand::Import);
}

void frmMain::mnuFile_ExportProfile_Click() {
    RunProfileCommand(frmMainCommands::ProfileCommand::Export);
}

void frmMain::mnuFile_SendFeedback_Click() {
    App().ContactAuthor(Owner(this));
}

void frmMain::mnuProfile_New_Click() {
    RefreshProfileData();
    if (Profile* created = App().Profiles().ShowAddNewDialog())
        LoadData(*created);
}

void frmMain::mnuProfile_Edit_Click() {
    frmEditProfile dialog(this);
    dialog.InitDialog(2, *App().ActiveProfile());
    dialog.ShowModal();
}

void frmMain::mnuProfile_Rename_Click() {
    RefreshProfileData();
    if (mManageProfiles::RenameProfile(*App().ActiveProfile()))
        FillProfileList();
}

void frmMain::mnuProfile_Duplicate_Click() {
    RunProfileCommand(frmMainCommands::ProfileCommand::Duplicate);
}

// Deleting the active profile shows the standard profile, which took its place.
void frmMain::mnuProfile_Delete_Click() {
    RunProfileCommand(frmMainCommands::ProfileCommand::Delete);
}

void frmMain::RunProfileCommand(frmMainCommands::ProfileCommand command) {
    ShowMadeProfile(frmMainCommands::RunProfileCommand(
        command, [this] { RefreshProfileData(); }, Owner(this)));
}

void frmMain::ShowMadeProfile(Profile* profile) {
    if (profile != nullptr)
        LoadData(*profile);
}

// The edits of the profile shown so far stay with it before the other one is shown.
void frmMain::mnuProfile_List_Click(int index) {
    RefreshProfileData();
    const std::string name = QtText::FromQt(mnuProfile_List[index]->data().toString());
    LoadData(App().Profiles().Item(name));
}

// The window may rename, duplicate or delete profiles: the active one (a copy, or the standard profile in the
// place of a deleted one) is then shown afresh, with the menu listing the profiles as they are.
void frmMain::mnuProfil_Manager_Click() {
    RefreshProfileData();
    frmProfiles dialog(this);
    dialog.InitDialog();
    dialog.ShowModal();
    if (dialog.ProfilesChanged())
        LoadData(*App().ActiveProfile());
}

void frmMain::mnuEditCopy_CmdLine_Click() {
    Ui().SetClipboardText(
        frmMainRules::CleanText(App().ActiveProfile()->TarvolinPath() + GetCmdLineParameters()));
}

void frmMain::mnuEditCopy_Profile_Click() {
    RunProfileCommand(frmMainCommands::ProfileCommand::Copy);
}

void frmMain::mnuEditPaste_Profile_Click() {
    RunProfileCommand(frmMainCommands::ProfileCommand::Paste);
}

// The wizard gets the profile with the window's input written into it.
void frmMain::mnuExtra_CreateShortcut_Click() {
    RefreshProfileData();
    frmCreateTarvolinShortcut_New dialog(this);
    dialog.InitDialog(*App().ActiveProfile());
    dialog.ShowModal();
}

void frmMain::mnuExtra_Update_Click() {
    frmUpdate dialog(this);
    dialog.InitDialog();
    dialog.ShowModal();
}

void frmMain::mnuExtra_Options_Click() {
    frmOptions dialog(this);
    dialog.InitDialog();
    dialog.ShowModal();
}

void frmMain::mnuExtra_Accessories_LanguageEditor_Click() {
    Os().ShellExec(Owner(this), "open", "LanguageEditor.exe", "", App().GetToolsDirectory(), kSwShowNormal);
}

// The language changes at once: every caption, both lists, the version line and Qt's own texts.
void frmMain::mnuOptions_Lang_Item_Click(int index) try {
    std::string language = QtText::FromQt(mnuOptions_Lang_Item[index]->data().toString());
    App().Options().SetLanguage(language);
    QtTranslation::Follow(language);
    HighligthSelectedLanguage();
    TranslateDialog();
} catch (...) {
    mError::ShowError("frmMain.mnuOptions_Lang_Item_Click");
}

void frmMain::mnuHelp_FAQ_Click() {
    App().ShowFAQ(Owner(this), App().Options().Language());
}

void frmMain::mnuHelp_FAQ_EN_Click() {
    App().ShowFAQ(Owner(this), "EN");
}

void frmMain::mnuHelp_Webpage_Click() {
    App().ShowPavonelWebpage(Owner(this));
}

void frmMain::mnuHelp_About_Click() {
    frmInfo dialog(this);
    dialog.InitDialog();
    dialog.ShowModal();
}

bool frmMain::Form_QueryUnload() {
    return frmMainCommands::QueryUnload([this] { RefreshProfileData(); }, [this] { return SaveData(); });
}

void frmMain::Form_Unload() try {
    m_unloaded = true;
    frmMainCommands::Unload([this](platform::WriteFault fault) { TellUnsaved(fault); });
} catch (...) {
    mError::ShowError("frmMain.Form_Unload");
}

void frmMain::EndOnRequest() {
    m_ending = true;
    try {
        RefreshProfileData();
    } catch (...) {
        // Edits that do not pass the checks cannot be kept; everything already in the profiles is.
    }
    try {
        TellUnsaved(App().SaveDataEx(App().Profiles().ChangedProfileNames()));
    } catch (...) {
        mError::ShowError("frmMain.EndOnRequest");
    }
    close();
}

// A menu command runs once the menu has handed over: a screen reader presses a menu entry and waits for the
// press to return, which a command that opens a window would otherwise hold until the window closes
// (buttons are pressed that way already). A command still waiting when the window has closed is dropped.
void frmMain::Queue(std::function<void()> command, const char* trail) {
    QMetaObject::invokeMethod(
        this,
        [this, command = std::move(command), trail] {
            if (!m_unloaded)
                mError::AsEntryPoint(trail, command);
        },
        Qt::QueuedConnection);
}

void frmMain::Queue(void (frmMain::*handler)(), const char* trail) {
    Queue([this, handler] { (this->*handler)(); }, trail);
}

void frmMain::TellUnsaved(platform::WriteFault fault) const {
    if (fault == platform::WriteFault::None)
        return;
    if (m_ending)
        std::cerr << App().SaveFailureText(fault) << std::endl;
    else
        App().TellUnsaved(fault);
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (m_ending) {
        Form_Unload();
        event->accept();
        return;
    }
    if (!Form_QueryUnload()) {
        event->ignore();
        return;
    }
    Form_Unload();
    event->accept();
}

// Every command is an event entry point: it reports its failure under the name in its row, once, here.
void frmMain::ConnectCommands() {
    const std::tuple<QPushButton*, void (frmMain::*)(), const char*> buttons[] = {
        {cmdStart, &frmMain::cmdStart_Click, "frmMain.cmdStart_Click"},
        {m_extra->LogFileButton(), &frmMain::cmdLogfile_Click, "frmMain.cmdLogfile_Click"},
        {m_game->LogFileButton(), &frmMain::cmdLogfile2_Click, "frmMain.cmdLogfile2_Click"},
        {m_extra->OpenFolderButton(), &frmMain::cmdOpenTarvoDir_Click, "frmMain.cmdOpenTarvoDir_Click"},
        {m_game->BrowseButton(), &frmMain::cmdSelectTarvoPath_Click, "frmMain.cmdSelectTarvoPath_Click"}};
    for (const auto& [button, handler, trail] : buttons)
        ConnectEntryPoint(button, &QPushButton::clicked, this, handler, trail);
    const std::tuple<QAction*, void (frmMain::*)(), const char*> actions[] = {
        {mnuFile_Save, &frmMain::mnuFile_Save_Click, "frmMain.mnuFile_Save_Click"},
        {mnuFile_Quit, &frmMain::mnuFile_Quit_Click, "frmMain.mnuFile_Quit_Click"},
        {mnuFile_ImportProfile, &frmMain::mnuFile_ImportProfile_Click, "frmMain.mnuFile_ImportProfile_Click"},
        {mnuFile_ExportProfile, &frmMain::mnuFile_ExportProfile_Click, "frmMain.mnuFile_ExportProfile_Click"},
        {mnuFile_SendFeedback, &frmMain::mnuFile_SendFeedback_Click, "frmMain.mnuFile_SendFeedback_Click"},
        {mnuProfile_New, &frmMain::mnuProfile_New_Click, "frmMain.mnuProfile_New_Click"},
        {mnuProfile_Edit, &frmMain::mnuProfile_Edit_Click, "frmMain.mnuProfile_Edit_Click"},
        {mnuProfile_Rename, &frmMain::mnuProfile_Rename_Click, "frmMain.mnuProfile_Rename_Click"},
        {mnuProfile_Duplicate, &frmMain::mnuProfile_Duplicate_Click, "frmMain.mnuProfile_Duplicate_Click"},
        {mnuProfile_Delete, &frmMain::mnuProfile_Delete_Click, "frmMain.mnuProfile_Delete_Click"},
        {mnuProfil_Manager, &frmMain::mnuProfil_Manager_Click, "frmMain.mnuProfil_Manager_Click"},
        {mnuEditCopy_CmdLine, &frmMain::mnuEditCopy_CmdLine_Click, "frmMain.mnuEditCopy_CmdLine_Click"},
        {mnuEditCopy_Profile, &frmMain::mnuEditCopy_Profile_Click, "frmMain.mnuEditCopy_Profile_Click"},
        {mnuEditPaste_Profile, &frmMain::mnuEditPaste_Profile_Click, "frmMain.mnuEditPaste_Profile_Click"},
        {mnuExtra_CreateShortcut, &frmMain::mnuExtra_CreateShortcut_Click,
         "frmMain.mnuExtra_CreateShortcut_Click"},
        {mnuExtra_Options, &frmMain::mnuExtra_Options_Click, "frmMain.mnuExtra_Options_Click"},
        {mnuExtra_Update, &frmMain::mnuExtra_Update_Click, "frmMain.mnuExtra_Update_Click"},
        {mnuExtra_Accessories_LanguageEditor, &frmMain::mnuExtra_Accessories_LanguageEditor_Click,
         "frmMain.mnuExtra_Accessories_LanguageEditor_Click"},
        {mnuHelp_FAQ, &frmMain::mnuHelp_FAQ_Click, "frmMain.mnuHelp_FAQ_Click"},
        {mnuHelp_FAQ_EN, &frmMain::mnuHelp_FAQ_EN_Click, "frmMain.mnuHelp_FAQ_EN_Click"},
        {mnuHelp_Webpage, &frmMain::mnuHelp_Webpage_Click, "frmMain.mnuHelp_Webpage_Click"},
        // Its report has always carried the name of the profile list's handler.
        {mnuHelp_About, &frmMain::mnuHelp_About_Click, "frmMain.mnuProfil_Manager_Click"}};
    for (const auto& [action, handler, trail] : actions)
        connect(action, &QAction::triggered, this, [this, handler, trail] { Queue(handler, trail); });
}
