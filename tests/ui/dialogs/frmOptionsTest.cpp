// The options window: copied in when it opens, back only on OK, and written to the file only at the end.
#include "ui/dialogs/frmOptions.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

#include "ui/controls/ucPath.h"
#include "ui/dialogs/UiFixture.h"

namespace {

class frmOptionsTest : public UiFixture {
protected:
    frmOptionsTest() {
        WriteIni("[OPTIONS]\r\nEDITORPATH=/usr/bin/kate\r\nSTARTTARVOLINDIALOG=1\r\n");
        options().LoadData();
        dialog.InitDialog();
        dialog.show();
    }

    static Options& options() { return g_cApp->Options(); }
    ucPath* path() { return Find<ucPath>(dialog, "txtEditorPath"); }
    QCheckBox* box() { return Find<QCheckBox>(dialog, "ckSafetyPromptBeforeStartOfTarvolin"); }

    frmOptions dialog;
};

TEST_F(frmOptionsTest, ShowsTheOptionsWithLabelledFields) {
    EXPECT_EQ(dialog.windowTitle(), "Options");
    EXPECT_EQ(path()->Text(), "/usr/bin/kate");
    EXPECT_TRUE(box()->isChecked());
    EXPECT_EQ(Find<QLabel>(dialog, "lblEditor")->text().remove('&'), "Text editor for the log file:");
    EXPECT_EQ(Find<QLabel>(dialog, "lblEditor")->buddy(), path());
}

TEST_F(frmOptionsTest, CancelKeepsTheOptionsAndOkCopiesThemBack) {
    path()->SetText("/opt/editor");
    box()->setChecked(false);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_TRUE(dialog.Cancel());
    EXPECT_EQ(options().EditorPath(), "/usr/bin/kate");
    EXPECT_TRUE(options().ShowStartTarvolinDialog());
    EXPECT_FALSE(options().DataChanged());

    dialog.InitDialog();
    dialog.show();
    path()->SetText("/opt/editor");
    box()->setChecked(false);
    QTest::mouseClick(Find(dialog, "cmdOk"), Qt::LeftButton);
    EXPECT_FALSE(dialog.Cancel());
    EXPECT_EQ(options().EditorPath(), "/opt/editor");
    EXPECT_FALSE(options().ShowStartTarvolinDialog());
    EXPECT_TRUE(options().DataChanged());
    EXPECT_EQ(ReadIni(), "[OPTIONS]\r\nEDITORPATH=/usr/bin/kate\r\nSTARTTARVOLINDIALOG=1\r\n");
}

TEST_F(frmOptionsTest, OkWithoutChangesChangesNothing) {
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_FALSE(dialog.Cancel());
    EXPECT_FALSE(options().DataChanged());
}

// A cancelled chooser hands back its proposal: the system's editor when the field names no file.
TEST_F(frmOptionsTest, BrowsingFromAnEmptyFieldProposesTheSystemsEditor) {
    path()->SetText("");
    QTest::mouseClick(Find(dialog, "cmdEditorPath"), Qt::LeftButton);
    EXPECT_EQ(modalWindows, 1);
    EXPECT_EQ(path()->Text(), "/usr/bin/write.exe");
}

TEST_F(frmOptionsTest, BrowsingPutsTheChosenEditorIntoTheField) {
    const std::string chosen = dir.Write("editor.exe", "MZ");
    answer = [&](QDialog& shown) {
        auto& chooser = dynamic_cast<QFileDialog&>(shown);
        chooser.selectFile(QtText::ToQt(chosen));
        shown.accept();
    };
    QTest::mouseClick(Find(dialog, "cmdEditorPath"), Qt::LeftButton);
    EXPECT_EQ(path()->Text(), QtText::ToQt(chosen));
}

TEST_F(frmOptionsTest, TheLabelEndsWithAColonEvenWithoutItsText) {
    WriteLanguage("EN", "[OPTIONS_DIALOG]\r\n");
    dialog.TranslateDialog();
    EXPECT_EQ(Find<QLabel>(dialog, "lblEditor")->text().remove('&'), "<NO TEXT AVAILABLE>:");
}

// Tab walks the window in reading order, and the label's mnemonic reaches the path field.
TEST_F(frmOptionsTest, KeyboardReachesEveryControlInReadingOrder) {
    QApplication::setActiveWindow(&dialog);
    QStringList order;
    for (int i = 0; i < 5; ++i) {
        order << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(order, (QStringList{"txtPath", "cmdEditorPath", "ckSafetyPromptBeforeStartOfTarvolin", "cmdOk",
                                  "cmdCancel"}));
    QTest::keyClick(&dialog, Qt::Key_T, Qt::AltModifier);
    EXPECT_EQ(QApplication::focusWidget()->parentWidget(), path());
}

}  // namespace
