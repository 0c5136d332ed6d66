// The options window: copied in when it opens, back only on OK, and written to the file only at the end.
#include "ui/dialogs/frmOptions.h"

#include <gtest/gtest.h>

#include <QFileDialog>

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

// The options as they are, the label as the path field's buddy, Tab in reading order, Alt+T into the field.
TEST_F(frmOptionsTest, ShowsTheOptionsAndWalksThemByKeyboard) {
    EXPECT_EQ(dialog.windowTitle(), "Options");
    EXPECT_EQ(path()->Text(), "/usr/bin/kate");
    EXPECT_TRUE(box()->isChecked());
    EXPECT_EQ(Find<QLabel>(dialog, "lblEditor")->text().remove('&'), "Text editor for the log file:");
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

// OK unchanged changes nothing; Escape drops the edits; OK copies them into the options, not into the file.
TEST_F(frmOptionsTest, OnlyOkCopiesTheFieldsBack) {
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_FALSE(dialog.Cancel());
    EXPECT_FALSE(options().DataChanged());
    for (const bool confirm : {false, true}) {
        dialog.InitDialog();
        dialog.show();
        path()->SetText("/opt/editor");
        box()->setChecked(false);
        QTest::keyClick(&dialog, confirm ? Qt::Key_Return : Qt::Key_Escape);
        EXPECT_EQ(dialog.Cancel(), !confirm);
        EXPECT_EQ(options().EditorPath(), confirm ? "/opt/editor" : "/usr/bin/kate");
        EXPECT_EQ(options().ShowStartTarvolinDialog(), !confirm);
        EXPECT_EQ(options().DataChanged(), confirm);
    }
    EXPECT_EQ(ReadIni(), "[OPTIONS]\r\nEDITORPATH=/usr/bin/kate\r\nSTARTTARVOLINDIALOG=1\r\n");
}

// A cancelled chooser hands back its proposal, the system's editor when the field names no file; a chosen
// file replaces the field.
TEST_F(frmOptionsTest, BrowsingFillsTheField) {
    path()->SetText("");
    QTest::mouseClick(Find(dialog, "cmdEditorPath"), Qt::LeftButton);
    EXPECT_EQ(path()->Text(), "/usr/bin/write.exe");
    const std::string chosen = dir.Write("editor.exe", "MZ");
    answer = [&](QDialog& shown) {
        dynamic_cast<QFileDialog&>(shown).selectFile(QtText::ToQt(chosen));
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

}  // namespace
