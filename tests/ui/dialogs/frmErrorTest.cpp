#include "ui/dialogs/frmError.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QFontInfo>
#include <QPlainTextEdit>
#include <QStackedWidget>
#include <QTabBar>

#include "Version.h"
#include "ui/dialogs/UiFixture.h"

namespace {

const ErrorReport kReport{static_cast<int32_t>(0x80040005u), "Tarvolin was not found",
                          "frmMain.cmdStart_Click\r\nPavonel",
                          "Description:\r\nTarvolin was not found\r\n\r\nTarvolin-Path: /games/tä.exe"};

class frmErrorTest : public UiFixture {
protected:
    frmErrorTest() { dialog.InitDialog(kReport); }

    void Click(const char* button) { QTest::mouseClick(Find(dialog, button), Qt::LeftButton); }
    // The shown page and the control with the focus.
    QString State() const {
        return dialog.findChild<QStackedWidget*>()->currentWidget()->objectName() + " " +
               QApplication::focusWidget()->objectName();
    }

    frmError dialog;
};

// Every caption of a window, in the order of its controls.
QStringList Captions(const frmError& window) {
    const auto* tabs = window.findChild<QTabBar*>("TabStrip1");
    QStringList captions{window.windowTitle(), tabs->tabText(0), tabs->tabText(1)};
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>())
        captions << button->text();
    for (const QLabel* label : window.findChildren<QLabel*>())
        captions << label->text();
    return captions;
}

TEST_F(frmErrorTest, ShowsTheReportInAFixedFontAndCopiesExactlyIt) {
    auto* report = Find<QPlainTextEdit>(dialog, "txtErrorNote");
    EXPECT_EQ(report->toPlainText(), QtText::ToQt(kReport.text).replace("\r\n", "\n"));
    EXPECT_TRUE(QFontInfo(report->font()).fixedPitch());
    EXPECT_EQ(Find<QPlainTextEdit>(dialog, "txtDescription")->toPlainText(), "Tarvolin was not found");
    EXPECT_EQ(Find<QLabel>(dialog, "lblNote")->text(),
              QString("Please send an E-Mail with the following text to ") + Version::kContactEmail);
    QGuiApplication::clipboard()->setText("old content");
    Click("cmdCopy");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QtText::ToQt(kReport.text));
}

// Contact and Details switch pages as the tabs do, and leave the focus on the mail button.
TEST_F(frmErrorTest, TabsAndPageButtonsBringTheirPages) {
    dialog.show();
    QApplication::setActiveWindow(&dialog);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    auto* tabs = Find<QTabBar>(dialog, "TabStrip1");
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(frmError::kContactPage).center());
    EXPECT_TRUE(State().startsWith("picPage_1 "));
    Click("cmdDetails");
    EXPECT_EQ(State(), "picPage_0 Command1");
    EXPECT_EQ(tabs->currentIndex(), frmError::kReportPage);
    Click("cmdContact");
    EXPECT_EQ(State(), "picPage_1 Command1");
}

// Before the application object exists the mail goes straight to the shell, to the same address.
TEST_F(frmErrorTest, WriteMailAsksTheShellForTheMakersAddress) {
    Click("Command1");
    g_cApp.reset();
    Click("Command1");
    ASSERT_EQ(platform.calls.size(), 2u);
    for (const ShellCall& call : platform.calls)
        EXPECT_EQ(call.verb + " " + call.file, std::string("open mailto:") + Version::kContactEmail);
}

// The buttons share one set of keys. A failure at start-up, before the program-wide objects exist, gets the
// same window as the English language file gives.
TEST_F(frmErrorTest, ButtonsHaveTheirOwnKeysAndTheEnglishTextsNeedNoLanguageFile) {
    QSet<QString> keys;
    for (const QPushButton* button : dialog.findChildren<QPushButton*>())
        keys << QKeySequence::mnemonic(button->text()).toString();
    EXPECT_EQ(keys.size(), dialog.findChildren<QPushButton*>().size());
    EXPECT_FALSE(keys.contains(QString()));
    const QStringList english = Captions(dialog);
    g_cTranslate.reset();
    g_cApp.reset();
    frmError early;
    EXPECT_EQ(Captions(early), english);
}

}  // namespace
