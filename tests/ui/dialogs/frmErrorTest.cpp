#include "ui/dialogs/frmError.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QFontInfo>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QTest>
#include <map>
#include <set>

#include "Version.h"
#include "ui/dialogs/UiFixture.h"

namespace {

ErrorReport SampleReport() {
    return ErrorReport{
        static_cast<int32_t>(0x80040005u), "Tarvolin was not found", "frmMain.cmdStart_Click\r\nPavonel",
        "Pavonel-Version: 0.1.0\r\n\r\nDescription:\r\nTarvolin was not found\r\n\r\n"
        "Err.-Source: \r\nfrmMain.cmdStart_Click\r\nPavonel\r\n\r\nTarvolin-Path: /games/tä.exe"};
}

class frmErrorTest : public UiFixture {
protected:
    frmErrorTest() { dialog.InitDialog(SampleReport()); }

    template <class T>
    T* Find(const char* name) const {
        T* widget = dialog.findChild<T*>(name);
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }

    void ShowActive() {
        dialog.show();
        QApplication::setActiveWindow(&dialog);
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    }

    QString CurrentPage() const { return dialog.findChild<QStackedWidget*>()->currentWidget()->objectName(); }

    frmError dialog;
};

// Every caption of the window, by the control that shows it.
std::map<QString, QString> Captions(const frmError& window) {
    std::map<QString, QString> captions{{"window", window.windowTitle()}};
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>())
        captions[button->objectName()] = button->text();
    for (const QLabel* label : window.findChildren<QLabel*>())
        captions[label->objectName()] = label->text();
    const auto* tabs = window.findChild<QTabBar*>("TabStrip1");
    captions["tab0"] = tabs->tabText(0);
    captions["tab1"] = tabs->tabText(1);
    return captions;
}

TEST_F(frmErrorTest, ShowsTheReportAndTheDescription) {
    auto* report = Find<QPlainTextEdit>("txtErrorNote");
    EXPECT_EQ(report->toPlainText(), QtText::ToQt(SampleReport().text).replace("\r\n", "\n"));
    EXPECT_TRUE(report->isReadOnly());
    EXPECT_TRUE(QFontInfo(report->font()).fixedPitch());
    EXPECT_EQ(Find<QPlainTextEdit>("txtDescription")->toPlainText(), "Tarvolin was not found");
    EXPECT_EQ(Find<QLabel>("lblNote")->text(),
              QString("Please send an E-Mail with the following text to ") + Version::kContactEmail);
}

TEST_F(frmErrorTest, CopyPutsExactlyTheReportOnTheClipboard) {
    QGuiApplication::clipboard()->setText("old content");
    QTest::mouseClick(Find<QPushButton>("cmdCopy"), Qt::LeftButton);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QtText::ToQt(SampleReport().text));
}

TEST_F(frmErrorTest, ContactAndDetailsSwitchPagesAndFocusTheMailButton) {
    ShowActive();
    EXPECT_EQ(CurrentPage(), "picPage_0");
    QTest::mouseClick(Find<QPushButton>("cmdContact"), Qt::LeftButton);
    EXPECT_EQ(CurrentPage(), "picPage_1");
    EXPECT_EQ(Find<QTabBar>("TabStrip1")->currentIndex(), frmError::kContactPage);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "Command1");
    QTest::mouseClick(Find<QPushButton>("cmdDetails"), Qt::LeftButton);
    EXPECT_EQ(CurrentPage(), "picPage_0");
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "Command1");
}

TEST_F(frmErrorTest, ClickingATabBringsItsPage) {
    ShowActive();
    auto* tabs = Find<QTabBar>("TabStrip1");
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(frmError::kContactPage).center());
    EXPECT_EQ(CurrentPage(), "picPage_1");
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(frmError::kReportPage).center());
    EXPECT_EQ(CurrentPage(), "picPage_0");
}

TEST_F(frmErrorTest, TabKeyWalksThroughTheReportPage) {
    ShowActive();
    Find<QPlainTextEdit>("txtDescription")->setFocus();
    QStringList visited{QApplication::focusWidget()->objectName()};
    for (int i = 0; i < 6; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        visited << QApplication::focusWidget()->objectName();
    }
    EXPECT_EQ(visited, (QStringList{"txtDescription", "TabStrip1", "txtErrorNote", "cmdContact", "cmdCopy",
                                    "Command1", "cmdClose"}));
}

TEST_F(frmErrorTest, WriteMailAsksTheShellForTheMakersAddress) {
    QTest::mouseClick(Find<QPushButton>("Command1"), Qt::LeftButton);
    g_cApp.reset();
    QTest::mouseClick(Find<QPushButton>("Command1"), Qt::LeftButton);
    ASSERT_EQ(platform.calls.size(), 2u);
    for (const ShellCall& call : platform.calls) {
        EXPECT_EQ(call.verb, "open");
        EXPECT_EQ(call.file, std::string("mailto:") + Version::kContactEmail);
    }
}

TEST_F(frmErrorTest, ButtonsHaveDistinctKeys) {
    std::set<QString> keys;
    for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
        const QString key = QKeySequence::mnemonic(button->text()).toString();
        EXPECT_FALSE(key.isEmpty()) << button->objectName().toStdString();
        EXPECT_TRUE(keys.insert(key).second) << key.toStdString();
    }
}

TEST_F(frmErrorTest, GermanTextsComeFromTheLanguageFile) {
    UseLanguage("DE");
    frmError german;
    EXPECT_EQ(german.windowTitle(), "Fehlerbericht");
    EXPECT_EQ(german.findChild<QTabBar*>("TabStrip1")->tabText(1), "Kontakt");
    EXPECT_EQ(german.findChild<QPushButton*>("cmdClose")->text(), QString::fromUtf8("&Schließen"));
}

// A failure at start-up, before the program-wide objects exist, gets the same English window.
TEST_F(frmErrorTest, WithoutTheProgramWideObjectsTheTextsAreTheEnglishOnes) {
    const std::map<QString, QString> translated = Captions(dialog);
    g_cTranslate.reset();
    g_cApp.reset();
    frmError early;
    EXPECT_EQ(Captions(early), translated);
}

}  // namespace
