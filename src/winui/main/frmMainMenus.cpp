// The menu bar and the menus built while the program runs: one item per profile, one per language file,
// the accessories and the FAQ entries. Windows' menus cannot hide an item, so the bar is made anew from
// what it shows now whenever that changes; a command finds its profile or language by its item's tag.
// The entries of the options, update, about and shortcut windows come with those windows.
#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "mainwindow/frmMainLists.h"
#include "resource.h"
#include "winui/main/MainPage.h"
#include "winui/main/frmMain.h"

namespace {

// The extra menu opens with the shortcut wizard's entry, then the language list.
constexpr int kLanguageListPosition = 1;

// A caption shown as it is: a name's "&" is no Alt+letter.
std::string Literal(const std::string& text) {
    std::string escaped;
    for (char c : text) {
        escaped += c;
        if (c == '&')
            escaped += '&';
    }
    return escaped;
}

void Add(HMENU menu, int id, const char* key) {
    AppendMenuA(menu, MF_STRING, static_cast<UINT_PTR>(id), MainPage::Text(key).c_str());
}

HMENU AddPopup(HMENU bar, const char* key) {
    HMENU popup = CreatePopupMenu();
    AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(popup), MainPage::Text(key).c_str());
    return popup;
}

// Appends `items` with ids from `first` on, and returns their tags.
std::vector<std::string> AddBuilt(HMENU menu, int first, const std::vector<frmMainLists::MenuItem>& items) {
    std::vector<std::string> tags;
    for (const frmMainLists::MenuItem& item : items) {
        const UINT flags = MF_STRING | (item.checked ? MF_CHECKED : 0);
        AppendMenuA(menu, flags, static_cast<UINT_PTR>(first + static_cast<int>(tags.size())),
                    Literal(item.caption).c_str());
        tags.push_back(item.tag);
    }
    return tags;
}

}  // namespace

// The bar with its five menus, so that the window makes room for it at once; TranslateMenus fills it.
void frmMain::CreateMenus() {
    HMENU bar = CreateMenu();
    for (int i = 0; i < 5; ++i)
        AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(CreatePopupMenu()), "-");
    SetMenu(Handle(), bar);
}

// The menu texts of the language files carry their own "&" letters.
void frmMain::TranslateMenus() {
    HMENU bar = CreateMenu();
    HMENU file = AddPopup(bar, "MNU_FILE");
    Add(file, IDM_mnuFile_Save, "MNU_FILE_SAVE");
    AppendMenuA(file, MF_SEPARATOR, 0, nullptr);
    Add(file, IDM_mnuFile_ImportProfile, "MNU_FILE_IMPORTPROFILE");
    Add(file, IDM_mnuFile_ExportProfile, "MNU_FILE_EXPORTPROFILE");
    AppendMenuA(file, MF_SEPARATOR, 0, nullptr);
    Add(file, IDM_mnuFile_Quit, "MNU_FILE_QUIT");
    mnuFile_Profiles = AddPopup(bar, "MNU_PROFILES");
    HMENU edit = AddPopup(bar, "MNU_EDIT");
    Add(edit, IDM_mnuEditCopy_CmdLine, "MNU_EDIT_COPYCMDLINE");
    AppendMenuA(edit, MF_SEPARATOR, 0, nullptr);
    Add(edit, IDM_mnuEditCopy_Profile, "MNU_EDIT_COPYPROFILE");
    Add(edit, IDM_mnuEditPaste_Profile, "MNU_EDIT_PASTEPROFILE");
    mnuExtra = AddPopup(bar, "MNU_EXTRA");
    mnuHelp = AddPopup(bar, "MNU_HELP");
    HMENU old = GetMenu(Handle());
    SetMenu(Handle(), bar);
    if (old != nullptr)
        DestroyMenu(old);
    FillProfileList();
    InitLanguageList();
    HideFAQMenu();
}

// The items are made when the menu opens: with a thousand profiles they would be most of the window's
// start, and nobody sees them before.
void frmMain::FillProfileList() {
    m_profileListShown = false;
}

void frmMain::ShowProfileList() try {
    if (m_profileListShown)
        return;
    m_profileListShown = true;
    while (GetMenuItemCount(mnuFile_Profiles) > 0)
        DeleteMenu(mnuFile_Profiles, 0, MF_BYPOSITION);
    Add(mnuFile_Profiles, IDM_mnuProfile_New, "MNU_PROFILES_NEW");
    Add(mnuFile_Profiles, IDM_mnuProfile_Edit, "MNU_PROFILES_EDIT");
    Add(mnuFile_Profiles, IDM_mnuProfile_Rename, "MNU_PROFILES_RENAME");
    Add(mnuFile_Profiles, IDM_mnuProfile_Duplicate, "MNU_PROFILES_DUPLICATE");
    Add(mnuFile_Profiles, IDM_mnuProfile_Delete, "MNU_PROFILES_DELETE");
    Add(mnuFile_Profiles, IDM_mnuProfil_Manager, "MNU_PROFILES_MANAGER");
    AppendMenuA(mnuFile_Profiles, MF_SEPARATOR, 0, nullptr);
    m_profileTags = AddBuilt(mnuFile_Profiles, IDM_mnuProfile_List_0,
                             frmMainLists::ProfileMenuItems(App().Profiles(), App().ActiveProfile()));
} catch (...) {
    mError::ShowError("frmMain.FillProfileList");
}

// The extra menu: the shortcut wizard, the language list, and the accessories when the language editor is
// there.
void frmMain::InitLanguageList() try {
    while (GetMenuItemCount(mnuExtra) > 0)
        DeleteMenu(mnuExtra, 0, MF_BYPOSITION);
    Add(mnuExtra, IDM_mnuExtra_CreateShortcut, "MNU_EXTRA_CREATESHORTCUT");
    mnuOptions_Lang = CreatePopupMenu();
    AppendMenuA(mnuExtra, MF_POPUP, reinterpret_cast<UINT_PTR>(mnuOptions_Lang),
                MainPage::Text("MNU_EXTRA_LANGUAGE").c_str());
    m_languageTags = AddBuilt(mnuOptions_Lang, IDM_mnuOptions_Lang_Item_0,
                              frmMainLists::LanguageMenuItems(App(), App().Options().Language()));
    RefreshAccessoriesMenu();
} catch (...) {
    mError::PassOn("frmMain.InitLanguageList");
}

void frmMain::HighligthSelectedLanguage() try {
    const std::string& language = App().Options().Language();
    for (std::size_t i = 0; i < m_languageTags.size(); ++i)
        CheckMenuItem(mnuOptions_Lang, IDM_mnuOptions_Lang_Item_0 + static_cast<UINT>(i),
                      MF_BYCOMMAND | (m_languageTags[i] == language ? MF_CHECKED : MF_UNCHECKED));
} catch (...) {
    mError::PassOn("frmMain.HighligthSelectedLanguage");
}

// Everything below the language list: the options, the update check, and the accessories when the language
// editor is there.
void frmMain::RefreshAccessoriesMenu() try {
    const int count = GetMenuItemCount(mnuExtra);
    for (int i = count - 1; i > kLanguageListPosition; --i)
        DeleteMenu(mnuExtra, static_cast<UINT>(i), MF_BYPOSITION);
    Add(mnuExtra, IDM_mnuExtra_Options, "MNU_EXTRA_OPTIONS");
    Add(mnuExtra, IDM_mnuExtra_Update, "MNU_EXTRA_INTERNETUPDATE");
    if (!frmMainLists::HasLanguageEditor(App()))
        return;
    AppendMenuA(mnuExtra, MF_SEPARATOR, 0, nullptr);
    HMENU accessories = CreatePopupMenu();
    Add(accessories, IDM_mnuExtra_Accessories_LanguageEditor, "MNU_ACCESSORIES_LANGUAGEEDITOR");
    AppendMenuA(mnuExtra, MF_POPUP, reinterpret_cast<UINT_PTR>(accessories),
                MainPage::Text("MNU_ACCESSORIES").c_str());
} catch (...) {
    mError::PassOn("frmMain.RefreshAccessoriesMenu");
}

// English users see one FAQ entry; others see their own beside the English one when its file exists.
void frmMain::HideFAQMenu() try {
    while (GetMenuItemCount(mnuHelp) > 0)
        DeleteMenu(mnuHelp, 0, MF_BYPOSITION);
    const std::string& language = App().Options().Language();
    if (!frmMainLists::IsLocalFaqHidden(App(), language))
        Add(mnuHelp, IDM_mnuHelp_FAQ, "MNU_HELP_FAQ");
    Add(mnuHelp, IDM_mnuHelp_FAQ_EN, language == "EN" ? "MNU_HELP_FAQ" : "MNU_HELP_FAQ_EN");
    AppendMenuA(mnuHelp, MF_SEPARATOR, 0, nullptr);
    Add(mnuHelp, IDM_mnuHelp_Webpage, "MNU_HELP_HOMEPAGE");
    Add(mnuHelp, IDM_mnuFile_SendFeedback, "MNU_HELP_FEEDBACK");
    AppendMenuA(mnuHelp, MF_SEPARATOR, 0, nullptr);
    Add(mnuHelp, IDM_mnuHelp_About, "MNU_HELP_ABOUT");
    DrawMenuBar(Handle());
} catch (...) {
    mError::PassOn("frmMain.HideFAQMenu");
}
