// What a screen reader meets in every window of the program, through Qt's accessibility interface.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QAction>
#include <QTabBar>

#include "ui/dialogs/frmError.h"
#include "ui/dialogs/frmLoadProfile.h"
#include "ui/dialogs/frmSave.h"
#include "ui/main/MainWindowFixture.h"
#include "ui/shortcuts/ucWizard_Nav.h"

namespace {

// The focusable controls of `window` that a screen reader could not tell apart: each without a name or
// with a role that says nothing of what it does, as its objectName and role.
QStringList Silent(const QWidget& window) {
    QStringList silent;
    for (QWidget* control : window.findChildren<QWidget*>()) {
        if (!control->isVisibleTo(&window) || !control->isEnabled() ||
            !(control->focusPolicy() & Qt::TabFocus))
            continue;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(control);
        const QAccessible::Role role = face->role();
        if (face->text(QAccessible::Name).trimmed().isEmpty() || role == QAccessible::NoRole ||
            role == QAccessible::Client || role == QAccessible::Pane || role == QAccessible::Grouping)
            silent << control->parentWidget()->objectName() + "/" + control->objectName() + " " +
                          QString::number(role, 16);
    }
    return silent;
}

using AccessibilityTest = MainWindowFixture;

TEST_F(AccessibilityTest, EveryFocusableControlIsNamedAndHasItsRole) {
    QStringList silent;
    for (int page = 0; page < frmMain::kTabCount; ++page) {
        main->ucTab1_Click(page);
        silent << Silent(*main);
    }
    // Every step of the wizard, every page of a window with tabs.
    window = [&](QDialog& shown) {
        silent << Silent(shown);
        if (auto* steps = shown.findChild<ucWizard_Nav*>()) {
            for (int16_t step = 2; step <= steps->PageCount(); ++step) {
                steps->ShowPage(step);
                silent << Silent(shown);
            }
        }
        for (auto* tab : shown.findChildren<ucTab*>()) {
            QAccessible::queryAccessibleInterface(tab)->actionInterface()->doAction(
                QAccessibleActionInterface::pressAction());
            silent << Silent(shown);
        }
    };
    for (const char* command : {"mnuProfile_New", "mnuProfile_Edit", "mnuProfil_Manager", "mnuExtra_Options",
                                "mnuExtra_Update", "mnuHelp_About", "mnuExtra_CreateShortcut"})
        Choose(command);
    g_cApp->Options().SetShowStartTarvolinDialog(true);
    Click("cmdStart");  // the start confirmation
    frmError report(main);
    report.InitDialog(ErrorReport{53, "File not found", "frmMain.cmdStart_Click", "the report"});
    for (int page = 0; page < 2; ++page) {
        Find<QTabBar>(report, "TabStrip1")->setCurrentIndex(page);
        silent << Silent(report);
    }
    frmSave save(main);
    frmLoadProfile load(main);
    save.InitDialog();
    load.InitDialog();
    silent << Silent(save) << Silent(load);
    silent.removeDuplicates();
    EXPECT_TRUE(silent.isEmpty()) << silent.join(u'\n').toStdString();
}

// A screen reader chooses as a click does: a pressed tab shows its page, a row selected in a list becomes the
// current one (the preview and the command line follow), a row selected in a list box's popup is taken.
TEST_F(AccessibilityTest, ChoosingThroughTheAccessibilityInterfaceActsLikeAClick) {
    // The path field's text box speaks its label, without the mnemonic's mark.
    EXPECT_EQ(QAccessible::queryAccessibleInterface(Control("txtPath"))->text(QAccessible::Name),
              Control<QLabel>("lblTarvoPath")->text().remove(u'&'));
    QAccessibleInterface* tab = QAccessible::queryAccessibleInterface(Control("ucTab1_2"));
    EXPECT_EQ(tab->role(), QAccessible::PageTab);
    tab->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(Control("picPage_3")->isVisible());
    EXPECT_TRUE(tab->state().selected);
    Control<QRadioButton>("opResolution_1")->setChecked(true);
    QAccessible::queryAccessibleInterface(Control("lstResolution"))->tableInterface()->selectRow(2);
    EXPECT_EQ(Control<QListWidget>("lstResolution")->currentRow(), 2);
    EXPECT_TRUE(Control<QRadioButton>("opResolution_0")->isChecked());
    EXPECT_EQ(Control<QLineEdit>("txtCommandLine")->text().toStdString(), "-log -res 3 -refresh 1");
    QAccessible::queryAccessibleInterface(Control("lstRefresh"))->tableInterface()->selectRow(1);
    EXPECT_EQ(Control<QLineEdit>("txtCommandLine")->text().toStdString(), "-log -res 3 -refresh 2");
    // The list box's first child is its popup's list.
    QAccessibleInterface* popup = QAccessible::queryAccessibleInterface(Control("txtGraphicPack"))->child(0);
    ASSERT_NE(popup->tableInterface(), nullptr);
    popup->tableInterface()->selectRow(0);
    EXPECT_EQ(Control<QComboBox>("txtGraphicPack")->currentText().toStdString(), "pak128.pak");
}

}  // namespace
