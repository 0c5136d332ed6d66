// The "All profiles" window opened from the main window and driven with the keyboard and the mouse: what it
// does to the profiles reaches the settings file, the main window and its profile menu.
#include "ui/dialogs/frmProfiles.h"

#include <gtest/gtest.h>

#include <QMenuBar>
#include <QTreeWidget>

#include "ui/main/MainWindowFixture.h"

namespace {

using frmProfilesTest = MainWindowFixture;

// Alt+R renames the selected profile, Alt+D duplicates it under the proposed name, and a click on Delete
// deletes another one after Yes. Every button has a key of its own.
TEST_F(frmProfilesTest, RenamesDuplicatesAndDeletesTheSelectedProfile) {
    QStringList named;
    window = [&](QDialog& shown) {
        shown.show();
        QApplication::setActiveWindow(&shown);
        if (shown.objectName() == "frmEditProfile") {
            auto* name = Find<QLineEdit>(shown, "txtName");
            named << shown.windowTitle() + ": " + name->text();
            if (name->text() == "A") {
                QTest::keyClicks(name, "Rally");
                QTest::keyClicks(Find<QLineEdit>(shown, "txtDescription"), "Fast");
            }
            QTest::keyClick(name, Qt::Key_Return);
            return;
        }
        QStringList keys;
        for (const char* button : {"cmdRename", "cmdDuplicate", "cmdDelete", "cmdClose"})
            keys << QKeySequence::mnemonic(Find(shown, button)->text()).toString();
        EXPECT_EQ(keys, (QStringList{"Alt+R", "Alt+D", "Alt+E", "Alt+C"}));
        EXPECT_EQ(Captions(shown), (QStringList{"A*", "B"}));
        // A button's letter presses it the way a click does, a moment later.
        const auto press = [&](Qt::Key key) {
            const qsizetype before = named.size();
            QApplication::setActiveWindow(&shown);
            QTest::keyClick(&shown, key, Qt::AltModifier);
            EXPECT_TRUE(QTest::qWaitFor([&] { return named.size() > before; }, 1000));
        };
        press(Qt::Key_R);
        EXPECT_EQ(Captions(shown), (QStringList{"Rally*", "B"}));
        press(Qt::Key_D);
        EXPECT_EQ(Captions(shown), (QStringList{"Rally", "B", "Rally (2)*"}));
        auto* list = Find<QTreeWidget>(shown, "ListView1");
        list->setFocus();
        QTest::keyClick(list, Qt::Key_Up);
        QTest::mouseClick(Find(shown, "cmdDelete"), Qt::LeftButton);
        EXPECT_EQ(Captions(shown), (QStringList{"Rally", "Rally (2)*"}));
        QTest::keyClick(&shown, Qt::Key_Escape);
    };
    buttons = {QMessageBox::Yes};
    Choose("mnuProfil_Manager");
    EXPECT_EQ(named, (QStringList{"Rename Profile: A", "Duplicate Profile: Rally (2)"}));
    EXPECT_EQ(boxes, QStringList{QtText::ToQtLines(
                         Translator().TranslateEx("MAIN_DIALOG", "MSG_DeleteProfileQuestion", "B"))});
    EXPECT_EQ(Active().ProfileName(), "profile_Rally (2)");
    EXPECT_TRUE(Menu("mnuProfile_List_1")->isChecked());
    EXPECT_EQ(Menu("mnuProfile_List_0")->text() + "|" + Menu("mnuProfile_List_1")->text(), "Rally|Rally (2)");
    EXPECT_EQ(ReadIni(), "[PROFILES]\r\nLASTACTIVEPROFILE=profile_Rally\r\n[profile_Rally]\r\nTARVOPATH=" +
                             game + "\r\nFREEPLAY=0\r\n");
    EXPECT_EQ(Active().ProfileDescription(), "Fast");
}

// Each menu gives each of its entries a key of its own, in both languages (the menu texts carry their own).
TEST_F(frmProfilesTest, EveryMenuEntryHasAKeyOfItsOwn) {
    for (const char* language : {"EN", "DE"}) {
        UseLanguage(language);
        main->TranslateDialog();
        QList<QWidget*> menus;
        menus << main->menuBar();
        for (QMenu* menu : main->findChildren<QMenu*>())
            menus << menu;
        for (const QWidget* menu : menus) {
            QStringList keys;
            for (const QAction* entry : menu->actions()) {
                if (entry->isVisible())
                    keys << QKeySequence::mnemonic(entry->text()).toString();
            }
            keys.removeAll(QString());  // the built entries (profiles, languages) have none
            EXPECT_EQ(keys.removeDuplicates(), 0) << language << ": " << menu->objectName().toStdString();
        }
    }
}

}  // namespace
