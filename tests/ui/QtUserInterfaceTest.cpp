#include "ui/QtUserInterface.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QMessageBox>

#include "ui/dialogs/UiFixture.h"

namespace {

using QtUserInterfaceTest = UiFixture;

// Texts from the UTF-8 language files must reach the widgets and the clipboard unchanged and come back byte
// for byte.
TEST_F(QtUserInterfaceTest, TextsCrossIntoQtUnchanged) {
    const std::string text = "Größe \xE2\x80\x93 Spiel \xE6\xBC\xA2\r\n-log";
    const QString expected = QString::fromUtf8("Größe – Spiel 漢\r\n-log");
    EXPECT_EQ(QtText::ToQt(text), expected);
    EXPECT_EQ(QtText::FromQt(expected), text);
    Ui().SetClipboardText(text);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), expected);
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

}  // namespace
