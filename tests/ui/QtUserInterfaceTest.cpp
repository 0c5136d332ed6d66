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

using QtUserInterfaceTest = UiFixture;

// Texts from the UTF-8 language files must reach the widgets unchanged and come back byte for byte.
TEST(QtText, RoundTripsNonAsciiText) {
    const std::string text = "Größe \xE2\x80\x93 Spiel \xE6\xBC\xA2";
    EXPECT_EQ(QtText::ToQt(text), QString::fromUtf8("Größe – Spiel 漢"));
    EXPECT_EQ(QtText::FromQt(QtText::ToQt(text)), text);
}

// A box closed without a button answers with its escape button or, where it has none, its default one.
TEST_F(QtUserInterfaceTest, MsgBoxAnswersWithTheButtonThatClosedIt) {
    answer = [](QDialog& dialog) { dynamic_cast<QMessageBox&>(dialog).button(QMessageBox::No)->click(); };
    EXPECT_EQ(Ui().MsgBox("Really?", vbYesNo), vbNo);
    answer = nullptr;
    EXPECT_EQ(Ui().MsgBox("Continue?", vbYesNoCancel), vbCancel);
    EXPECT_EQ(Ui().MsgBox("Overwrite?", vbYesNo | vbDefaultButton2), vbNo);
    EXPECT_EQ(modalWindows, 3);
}

TEST_F(QtUserInterfaceTest, ClipboardTakesTheTextUnchanged) {
    Ui().SetClipboardText("-log -res 2 \xC3\xBC\r\nnext");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromUtf8("-log -res 2 ü\r\nnext"));
}

// A failure that reaches an entry point opens the report window, with the whole report in it.
TEST_F(QtUserInterfaceTest, ShowErrorOpensTheReportWindow) {
    QString shown;
    answer = [&](QDialog& dialog) {
        shown = dialog.objectName() + "\n" + dialog.findChild<QPlainTextEdit*>("txtErrorNote")->toPlainText();
    };
    try {
        mError::RaiseError(5, "Tarvolin was not found");
    } catch (...) {
        mError::ShowError("frmMain.cmdStart_Click");
    }
    EXPECT_TRUE(shown.startsWith("frmError\n"));
    EXPECT_TRUE(shown.contains("Description:\nTarvolin was not found\n"));
    EXPECT_TRUE(ui.reports.empty());
}

}  // namespace
