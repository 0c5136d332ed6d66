// The menu bar, and the menus built while the program runs: one item per profile, one per language file,
// the accessories and the FAQ entries. Built items are hidden when they are not needed, never removed.
#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "mainwindow/frmMainLists.h"
#include "ui/QtText.h"
#include "ui/main/frmMain.h"

namespace {

QMenu* NewMenu(QWidget* parent, const char* name) {
    auto* menu = new QMenu(parent);
    menu->setObjectName(QString::fromLatin1(name));
    return menu;
}

// Shows `items` in a built menu: its first entries take their captions, tags and checks, the others are
// hidden. Missing entries are made whole before the menu gets them, all at once, and a property is set
// only when it changes (Qt's own setters compare; the data is compared here): with a thousand profiles
// every event the menu is spared counts.
template <class Handler>
void ShowBuiltItems(std::vector<QAction*>& built, const std::vector<frmMainLists::MenuItem>& items,
                    QMenu* menu, const QString& name, Handler handler) {
    QList<QAction*> added;
    while (built.size() < items.size()) {
        auto* item = new QAction(menu);
        item->setObjectName(name + QStringLiteral("_%1").arg(built.size()));
        item->setCheckable(true);
        QObject::connect(item, &QAction::triggered, menu,
                         [handler, i = static_cast<int>(built.size())] { handler(i); });
        built.push_back(item);
        added.push_back(item);
    }
    for (std::size_t i = 0; i < built.size(); ++i) {
        QAction* item = built[i];
        if (i < items.size()) {
            item->setText(QtText::ToQt(items[i].caption).replace(u'&', QStringLiteral("&&")));
            const QString tag = QtText::ToQt(items[i].tag);
            if (item->data().toString() != tag)
                item->setData(tag);
            item->setChecked(items[i].checked);
        }
        item->setVisible(i < items.size());
    }
    menu->addActions(added);
}

}  // namespace

QAction* frmMain::NewAction(QMenu* menu, const char* name) {
    QAction* action = menu->addAction(QString());
    action->setObjectName(QString::fromLatin1(name));
    return action;
}

void frmMain::CreateMenus() {
    mnuFile = menuBar()->addMenu(NewMenu(this, "mnuFile"))->menu();
    mnuFile_Save = NewAction(mnuFile, "mnuFile_Save");
    mnuFile->addSeparator();
    mnuFile_ImportProfile = NewAction(mnuFile, "mnuFile_ImportProfile");
    mnuFile_ExportProfile = NewAction(mnuFile, "mnuFile_ExportProfile");
    mnuFile->addSeparator();
    mnuFile_Quit = NewAction(mnuFile, "mnuFile_Quit");
    mnuFile_Profiles = menuBar()->addMenu(NewMenu(this, "mnuFile_Profiles"))->menu();
    mnuProfile_New = NewAction(mnuFile_Profiles, "mnuProfile_New");
    mnuProfile_Edit = NewAction(mnuFile_Profiles, "mnuProfile_Edit");
    mnuProfile_Rename = NewAction(mnuFile_Profiles, "mnuProfile_Rename");
    mnuProfile_Duplicate = NewAction(mnuFile_Profiles, "mnuProfile_Duplicate");
    mnuProfile_Delete = NewAction(mnuFile_Profiles, "mnuProfile_Delete");
    mnuProfil_Manager = NewAction(mnuFile_Profiles, "mnuProfil_Manager");
    mnuFile_Profiles->addSeparator();
    connect(mnuFile_Profiles, &QMenu::aboutToShow, this, [this] {
        try {
            ShowProfileList();
        } catch (...) {
            mError::ShowError("frmMain.FillProfileList");
        }
    });
    mnuEdit = menuBar()->addMenu(NewMenu(this, "mnuEdit"))->menu();
    mnuEditCopy_CmdLine = NewAction(mnuEdit, "mnuEditCopy_CmdLine");
    mnuEdit->addSeparator();
    mnuEditCopy_Profile = NewAction(mnuEdit, "mnuEditCopy_Profile");
    mnuEditPaste_Profile = NewAction(mnuEdit, "mnuEditPaste_Profile");
    mnuExtra = menuBar()->addMenu(NewMenu(this, "mnuExtra"))->menu();
    mnuExtra_CreateShortcut = NewAction(mnuExtra, "mnuExtra_CreateShortcut");
    mnuOptions_Lang = NewMenu(this, "mnuOptions_Lang");
    mnuExtra->addMenu(mnuOptions_Lang);
    mnuExtra_Options = NewAction(mnuExtra, "mnuExtra_Options");
    mnuExtra_Update = NewAction(mnuExtra, "mnuExtra_Update");
    mnuExtra_BarAfterAccessoriesMenu = mnuExtra->addSeparator();
    mnuExtra_Accessories = NewMenu(this, "mnuExtra_Accessories");
    mnuExtra->addMenu(mnuExtra_Accessories);
    mnuExtra_Accessories_LanguageEditor =
        NewAction(mnuExtra_Accessories, "mnuExtra_Accessories_LanguageEditor");
    mnuHelp = menuBar()->addMenu(NewMenu(this, "mnuHelp"))->menu();
    mnuHelp_FAQ = NewAction(mnuHelp, "mnuHelp_FAQ");
    mnuHelp_FAQ_EN = NewAction(mnuHelp, "mnuHelp_FAQ_EN");
    mnuHelp->addSeparator();
    mnuHelp_Webpage = NewAction(mnuHelp, "mnuHelp_Webpage");
    mnuFile_SendFeedback = NewAction(mnuHelp, "mnuFile_SendFeedback");
    mnuHelp->addSeparator();
    mnuHelp_About = NewAction(mnuHelp, "mnuHelp_About");
}

// The items are made when the menu is about to open, or at once while it is open: with a thousand profiles
// they would be most of the window's start, and nobody sees them before.
void frmMain::FillProfileList() try {
    m_profileListShown = false;
    if (mnuFile_Profiles->isVisible())
        ShowProfileList();
} catch (...) {
    mError::PassOn("frmMain.FillProfileList");
}

void frmMain::ShowProfileList() {
    if (m_profileListShown)
        return;
    ShowBuiltItems(mnuProfile_List, frmMainLists::ProfileMenuItems(App().Profiles(), App().ActiveProfile()),
                   mnuFile_Profiles, QStringLiteral("mnuProfile_List"), [this](int index) {
                       // A switch may have to ask or report: it runs as the other menu commands do.
                       Queue([this, index] { mnuProfile_List_Click(index); },
                             "frmMain.mnuProfile_List_Click");
                   });
    m_profileListShown = true;
}

void frmMain::InitLanguageList() try {
    ShowBuiltItems(mnuOptions_Lang_Item, frmMainLists::LanguageMenuItems(App(), App().Options().Language()),
                   mnuOptions_Lang, QStringLiteral("mnuOptions_Lang_Item"),
                   [this](int index) { mnuOptions_Lang_Item_Click(index); });
    HighligthSelectedLanguage();
} catch (...) {
    mError::PassOn("frmMain.InitLanguageList");
}

void frmMain::HighligthSelectedLanguage() try {
    const QString language = QtText::ToQt(App().Options().Language());
    for (QAction* item : mnuOptions_Lang_Item)
        item->setChecked(item->data().toString() == language);
} catch (...) {
    mError::PassOn("frmMain.HighligthSelectedLanguage");
}

void frmMain::RefreshAccessoriesMenu() try {
    const bool shown = frmMainLists::HasLanguageEditor(App());
    mnuExtra_Accessories->menuAction()->setVisible(shown);
    mnuExtra_BarAfterAccessoriesMenu->setVisible(shown);
} catch (...) {
    mError::PassOn("frmMain.RefreshAccessoriesMenu");
}

// English users see one FAQ entry; others see their own beside the English one when its file exists.
void frmMain::HideFAQMenu() try {
    mnuHelp_FAQ->setVisible(!frmMainLists::IsLocalFaqHidden(App(), App().Options().Language()));
} catch (...) {
    mError::PassOn("frmMain.HideFAQMenu");
}

void frmMain::InitDialog() try {
    InitLanguageList();
    TranslateDialog();
    FillProfileList();
    RefreshAccessoriesMenu();
    ucTab1_Click(0);
} catch (...) {
    mError::PassOn("frmMain.InitDialog");
}
