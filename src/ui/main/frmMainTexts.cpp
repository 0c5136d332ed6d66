// Every caption of the main window from the language files, with keyboard access for each, and the
// version line.
#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/mMain.h"
#include "error/mError.h"
#include "mainwindow/frmMainRules.h"
#include "profiles/Profile.h"
#include "translate/cTranslate.h"
#include "ui/QtText.h"
#include "ui/controls/ucTab.h"
#include "ui/dialogs/MnemonicSet.h"
#include "ui/main/frmMain.h"

namespace {

QString MainText(const char* key) {
    return QtText::ToQt(Translator().TranslateEx("MAIN_DIALOG", key));
}

QString ListEntry(const char* prefix, int index) {
    return QtText::ToQt(Translator().TranslateEx("MAIN_DIALOG", prefix + std::to_string(index + 1)));
}

}  // namespace

void frmMain::TranslateDialog() try {
    TranslatePages();
    TranslateMenus();
    for (int i = 0; i < kListEntries; ++i) {
        lstResolution->item(i)->setText(ListEntry("LST_RESOLUTION_", i));
        lstRefresh->item(i)->setText(ListEntry("LST_REFRESH_", i));
    }
    UpdateVersionLabels();
    HideFAQMenu();
    PlaceTabs();
} catch (...) {
    mError::PassOn("frmMain.TranslateDialog");
}

// The captions of all pages share the keys of the whole window: every label and button gets its own letter.
void frmMain::TranslatePages() {
    static constexpr const char* kTabs[kTabCount] = {"TAB_GAMESETTINGS", "TAB_SCENARIO", "TAB_DISPLAY",
                                                     "TAB_REFRESH", "TAB_EXTRA"};
    for (int i = 0; i < kTabCount; ++i)
        ucTab1[i]->SetCaption(MainText(kTabs[i]));
    // The menu bar's letters are taken first, so that no caption of a page competes with a menu.
    MnemonicSet keys;
    for (const char* menu : {"MNU_FILE", "MNU_PROFILES", "MNU_EDIT", "MNU_EXTRA", "MNU_HELP"})
        keys.Add(MainText(menu));
    cmdStart->setText(keys.Add(MainText("BTN_START_TARVOLIN")));
    lblTarvoPath->setText(keys.Add(MainText("LBL_TARVOPATH")));
    cmdSelectTarvoPath->setText(keys.Add(QtText::ToQt(Translator().TranslateEx("GLOBAL", "BTN_Browse"))));
    ckLogMessages->setText(keys.Add(MainText("CHK_LOG")));
    ckFreeplay->setText(keys.Add(MainText("CHK_FREEPLAY")));
    cmdLogfile->setText(keys.Add(MainText("BTN_DISPLAY_LOGFILE")));
    cmdLogfile2->setText(cmdLogfile->text());
    lblScenarios->setText(keys.Add(MainText("LBL_SCENARIO_LIST")));
    lblGraphicPak->setText(keys.Add(MainText("LBL_GRAPHICPAK_LIST")));
    opResolution[0]->setText(keys.Add(MainText("OP_STANDARD_RESOLUTION")));
    opResolution[1]->setText(keys.Add(MainText("OP_USERDEFINED_RESOLUTION")));
    lblwidth_heigth->setText(keys.Add(MainText("LBL_RESOLUTION_WIDTH_HEIGTH")));
    frmScreenRefresh->setTitle(keys.Add(MainText("LBL_SCREEN_REFRESH")));
    cmdOpenTarvoDir->setText(keys.Add(MainText("BTN_OPEN_TARVOFOLDER")));
    // Fields without a label of their own are named for screen readers.
    txtRes_Height->setAccessibleName(MainText("LBL_RESOLUTION_WIDTH_HEIGTH"));
    lstResolution->setAccessibleName(MainText("OP_STANDARD_RESOLUTION"));
    lstRefresh->setAccessibleName(MainText("LBL_SCREEN_REFRESH"));
    txtCommandLine->setAccessibleName(MainText("LBL_COMMANDLINE"));
    txtCommandLine->setToolTip(MainText("LBL_COMMANDLINE"));
    lblLogMsg->setText(MainText("LBL_LOG_DESC"));
    lblFreeplayMode_Desc->setText(MainText("LBL_FREEPLAY_DESC"));
    lblScenarioInfo->setText(MainText("LBL_SCENARIO_LIST_INFO"));
    lblGraphicPakInfo->setText(MainText("LBL_GRAPHICPAK_LIST_INFO"));
    frmResolution->setTitle(MainText("LBL_RESOLUTION_FRAME"));
    lblResolution_Warning->setText(MainText("LBL_RESOLUTION_WARNING"));
    frmOpenLogfile->setTitle(MainText("LBL_LOGFILE_FRAME"));
    frmOpenTarvoFolder->setTitle(MainText("LBL_TARVOFOLDER_FRAME"));
    lblOpenLogfileDesc->setText(MainText("LBL_LOGFILE_FRAME_TEXT"));
    lblOpenTarvoFolder->setText(MainText("LBL_TARVOFOLDER_FRAME_TEXT"));
}

// The menu texts of the language files carry their own "&" letters.
void frmMain::TranslateMenus() {
    const std::pair<QMenu*, const char*> menus[] = {{mnuFile, "MNU_FILE"},
                                                    {mnuFile_Profiles, "MNU_PROFILES"},
                                                    {mnuEdit, "MNU_EDIT"},
                                                    {mnuExtra, "MNU_EXTRA"},
                                                    {mnuOptions_Lang, "MNU_EXTRA_LANGUAGE"},
                                                    {mnuExtra_Accessories, "MNU_ACCESSORIES"},
                                                    {mnuHelp, "MNU_HELP"}};
    for (const auto& [menu, key] : menus)
        menu->setTitle(MainText(key));
    const std::pair<QAction*, const char*> actions[] = {
        {mnuFile_Save, "MNU_FILE_SAVE"},
        {mnuFile_Quit, "MNU_FILE_QUIT"},
        {mnuProfile_New, "MNU_PROFILES_NEW"},
        {mnuProfile_Edit, "MNU_PROFILES_EDIT"},
        {mnuProfil_Manager, "MNU_PROFILES_MANAGER"},
        {mnuEditCopy_CmdLine, "MNU_EDIT_COPYCMDLINE"},
        {mnuExtra_CreateShortcut, "MNU_EXTRA_CREATESHORTCUT"},
        {mnuExtra_Options, "MNU_EXTRA_OPTIONS"},
        {mnuExtra_Update, "MNU_EXTRA_INTERNETUPDATE"},
        {mnuExtra_Accessories_LanguageEditor, "MNU_ACCESSORIES_LANGUAGEEDITOR"},
        {mnuHelp_Webpage, "MNU_HELP_HOMEPAGE"},
        {mnuFile_SendFeedback, "MNU_HELP_FEEDBACK"},
        {mnuHelp_About, "MNU_HELP_ABOUT"},
        {mnuHelp_FAQ, "MNU_HELP_FAQ"}};
    for (const auto& [action, key] : actions)
        action->setText(MainText(key));
    const bool english = App().Options().Language() == "EN";
    mnuHelp_FAQ_EN->setText(MainText(english ? "MNU_HELP_FAQ" : "MNU_HELP_FAQ_EN"));
}

void frmMain::UpdateVersionLabels() try {
    const Profile* active = App().ActiveProfile();
    const std::string game =
        mMain::GetTarvolinFile_VersionInfo(active != nullptr ? active->TarvolinPath() : "");
    lblVersion->setText(
        QtText::ToQt(frmMainRules::VersionLine(Translator().TranslateEx("GLOBAL", "WITH"), game)));
    setWindowTitle(QStringLiteral("Pavonel"));
} catch (...) {
    mError::PassOn("frmMain.UpdateVersionLabels");
}
