#include "ui/QtUserInterface.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPlainTextEdit>

#include "error/mError.h"
#include "ui/dialogs/UiFixture.h"

namespace {

class QtUserInterfaceTest : public UiFixture {};

struct ButtonCase {
    int style;
    QMessageBox::StandardButton pressed;
    int result;
};

class MsgBoxAnswers : public UiFixture, public ::testing::WithParamInterface<ButtonCase> {};

TEST_P(MsgBoxAnswers, ReturnThePressedButton) {
    qtUi.answer = [](QDialog& dialog) {
        auto& box = dynamic_cast<QMessageBox&>(dialog);
        ASSERT_NE(box.button(GetParam().pressed), nullptr);
        box.button(GetParam().pressed)->click();
    };
    EXPECT_EQ(Ui().MsgBox("Really?", GetParam().style), GetParam().result);
    EXPECT_EQ(qtUi.modalWindows, 1);
}

// Every button once, most in a set where it is not the first.
INSTANTIATE_TEST_SUITE_P(Buttons, MsgBoxAnswers,
                         ::testing::Values(ButtonCase{vbOKOnly, QMessageBox::Ok, vbOK},
                                           ButtonCase{vbOKCancel, QMessageBox::Cancel, vbCancel},
                                           ButtonCase{vbAbortRetryIgnore, QMessageBox::Abort, vbAbort},
                                           ButtonCase{vbAbortRetryIgnore, QMessageBox::Retry, vbRetry},
                                           ButtonCase{vbAbortRetryIgnore, QMessageBox::Ignore, vbIgnore},
                                           ButtonCase{vbYesNoCancel | vbDefaultButton3, QMessageBox::Yes,
                                                      vbYes},
                                           ButtonCase{vbYesNo, QMessageBox::No, vbNo},
                                           ButtonCase{vbRetryCancel, QMessageBox::Retry, vbRetry}));

TEST_F(QtUserInterfaceTest, BoxClosedWithoutAButtonAnswersWithEscapeOrDefault) {
    EXPECT_EQ(Ui().MsgBox("Continue?", vbYesNoCancel), vbCancel);
    EXPECT_EQ(Ui().MsgBox("Done.", vbOKOnly), vbOK);
    EXPECT_EQ(Ui().MsgBox("Overwrite?", vbYesNo | vbDefaultButton2), vbNo);
}

TEST_F(QtUserInterfaceTest, ClipboardTakesTheTextUnchanged) {
    Ui().SetClipboardText("-log -res 2 \xC3\xBC\r\nnext");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromUtf8("-log -res 2 ü\r\nnext"));
}

// A failure that reaches an entry point opens the report window, with the whole report in it.
TEST_F(QtUserInterfaceTest, ShowErrorOpensTheReportWindow) {
    QString shownName;
    QString shownReport;
    qtUi.answer = [&](QDialog& dialog) {
        shownName = dialog.objectName();
        shownReport = dialog.findChild<QPlainTextEdit*>("txtErrorNote")->toPlainText();
        dialog.close();
    };
    try {
        try {
            mError::RaiseError(5, "Tarvolin was not found");
        } catch (...) {
            mError::PassOn("Profile.StartTarvolin");
        }
    } catch (...) {
        mError::ShowError("frmMain.cmdStart_Click");
    }
    EXPECT_EQ(qtUi.modalWindows, 1);
    EXPECT_EQ(shownName, "frmError");
    EXPECT_TRUE(shownReport.contains("Description:\nTarvolin was not found\n"));
    EXPECT_TRUE(shownReport.contains("Err.-Number: -2147221499 (5)"));
    EXPECT_TRUE(
        shownReport.contains("Err.-Source: \nfrmMain.cmdStart_Click\nProfile.StartTarvolin\nPavonel"));
    EXPECT_TRUE(ui.reports.empty());
}

}  // namespace
