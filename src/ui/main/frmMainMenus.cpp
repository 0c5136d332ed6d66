// The menu bar, and the menus built while the program runs: one item per profile, one per language file,
// the accessories and the FAQ entries. Built items are hidden when they are not needed, never removed.
#include <QAction>
#include <QListWidget>
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

// The item `index` of a built menu, created with its handler when it does not exist yet.
template <class Handler>
QAction* BuiltItem(std::vector<QAction*>& items, std::size_t index, QMenu* menu, const QString& name,
                   Handler handler) {
    while (items.size() <= index) {
        auto* item = menu->addAction(QString());
        item->setObjectName(name + QStringLiteral("_%1").arg(items.size()));
        item->setCheckable(true);
        QObject::connect(item, &QAction::triggered, menu,
                         [handler, i = static_cast<int>(items.size())] { handler(i); });
        items.push_back(item);
    }
    return items[index];
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
    mnuFile_Quit = NewAction(mnuFile, "mnuFile_Quit");
    mnuFile_Profiles = menuBar()->addMenu(NewMenu(this, "mnuFile_Profiles"))->menu();
    mnuProfile_New = NewAction(mnuFile_Profiles, "mnuProfile_New");
    mnuProfile_Edit = NewAction(mnuFile_Profiles, "mnuProfile_Edit");
    mnuProfil_Manager = NewAction(mnuFile_Profiles, "mnuProfil_Manager");
    mnuFile_Profiles->addSeparator();
    mnuEdit = menuBar()->addMenu(NewMenu(this, "mnuEdit"))->menu();
    mnuEditCopy_CmdLine = NewAction(mnuEdit, "mnuEditCopy_CmdLine");
    mnuExtra = menuBar()->addMenu(NewMenu(this, "mnuExtra"))->menu();
    // The shortcut wizard and the update check come with their own windows; until then they do not show.
    mnuExtra_CreateShortcut = NewAction(mnuExtra, "mnuExtra_CreateShortcut");
    mnuExtra_CreateShortcut->setVisible(false);
    mnuOptions_Lang = NewMenu(this, "mnuOptions_Lang");
    mnuExtra->addMenu(mnuOptions_Lang);
    mnuExtra_Options = NewAction(mnuExtra, "mnuExtra_Options");
    mnuExtra_Update = NewAction(mnuExtra, "mnuExtra_Update");
    mnuExtra_Update->setVisible(false);
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

void frmMain::FillProfileList() try {
    for (QAction* item : mnuProfile_List)
        item->setVisible(false);
    const std::vector<frmMainLists::MenuItem> items =
        frmMainLists::ProfileMenuItems(App().Profiles(), App().ActiveProfile());
    for (std::size_t i = 0; i < items.size(); ++i) {
        QAction* item = BuiltItem(mnuProfile_List, i, mnuFile_Profiles, QStringLiteral("mnuProfile_List"),
                                  [this](int index) { mnuProfile_List_Click(index); });
        item->setVisible(true);
        item->setText(QtText::ToQt(items[i].caption).replace(u'&', QStringLiteral("&&")));
        item->setData(QtText::ToQt(items[i].tag));
        item->setChecked(items[i].checked);
    }
} catch (...) {
    mError::PassOn("frmMain.FillProfileList");
}

void frmMain::InitLanguageList() try {
    const std::vector<frmMainLists::MenuItem> items =
        frmMainLists::LanguageMenuItems(App(), App().Options().Language());
    for (std::size_t i = 0; i < items.size(); ++i) {
        QAction* item =
            BuiltItem(mnuOptions_Lang_Item, i, mnuOptions_Lang, QStringLiteral("mnuOptions_Lang_Item"),
                      [this](int index) { mnuOptions_Lang_Item_Click(index); });
        item->setText(QtText::ToQt(items[i].caption).replace(u'&', QStringLiteral("&&")));
        item->setData(QtText::ToQt(items[i].tag));
    }
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
    for (QListWidget* list : {lstResolution, lstRefresh}) {
        for (int i = 0; i < kListEntries; ++i)
            list->addItem(QString());
    }
    InitLanguageList();
    TranslateDialog();
    FillProfileList();
    RefreshAccessoriesMenu();
    ucTab1_Click(0);
} catch (...) {
    mError::PassOn("frmMain.InitDialog");
}
