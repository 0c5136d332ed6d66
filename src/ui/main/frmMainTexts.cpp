// Every caption of the main window from the language files, with keyboard access for each, and the
// version line.
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/mMain.h"
#include "error/mError.h"
#include "mainwindow/frmMainRules.h"
#include "profiles/Profile.h"
#include "translate/cTranslate.h"
#include "ui/QtText.h"
#include "ui/controls/FieldNames.h"
#include "ui/controls/ucTab.h"
#include "ui/dialogs/MnemonicSet.h"
#include "ui/main/MainPage.h"
#include "ui/main/frmMain.h"

namespace {

QString MainText(const char* key) {
    return MainPage::Text(key);
}

}  // namespace

void frmMain::TranslateDialog() try {
    const cTranslate::Batch texts;
    TranslatePages();
    TranslateMenus();
    UpdateVersionLabels();
    HideFAQMenu();
    PlaceTabs();
} catch (...) {
    mError::PassOn("frmMain.TranslateDialog");
}

// The pages share the keys of the whole window: every label and button gets its own letter.
void frmMain::TranslatePages() {
    for (int i = 0; i < kTabCount; ++i)
        ucTab1[i]->SetCaption(MainText(frmMainRules::kTabKeys[i]));
    // The menu bar's letters are taken first, so that no caption of a page competes with a menu.
    MnemonicSet keys;
    for (const char* menu : frmMainRules::kMenuKeys)
        keys.Add(MainText(menu));
    cmdStart->setText(keys.Add(MainText("BTN_START_TARVOLIN")));
    for (int i = 1; i <= kTabCount; ++i)
        picPage[i]->Retranslate(keys);
    txtCommandLine->setAccessibleName(MainText("LBL_COMMANDLINE"));
    txtCommandLine->setToolTip(MainText("LBL_COMMANDLINE"));
    FieldNames::FollowLabels(*this);
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
        {mnuFile_ImportProfile, "MNU_FILE_IMPORTPROFILE"},
        {mnuFile_ExportProfile, "MNU_FILE_EXPORTPROFILE"},
        {mnuProfile_New, "MNU_PROFILES_NEW"},
        {mnuProfile_Edit, "MNU_PROFILES_EDIT"},
        {mnuProfile_Rename, "MNU_PROFILES_RENAME"},
        {mnuProfile_Duplicate, "MNU_PROFILES_DUPLICATE"},
        {mnuProfile_Delete, "MNU_PROFILES_DELETE"},
        {mnuProfil_Manager, "MNU_PROFILES_MANAGER"},
        {mnuEditCopy_CmdLine, "MNU_EDIT_COPYCMDLINE"},
        {mnuEditCopy_Profile, "MNU_EDIT_COPYPROFILE"},
        {mnuEditPaste_Profile, "MNU_EDIT_PASTEPROFILE"},
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
