#include "ui/dialogs/mMessageBox.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>
#include <set>

#include "app/UserInterface.h"

namespace {

using Button = QMessageBox::StandardButton;

struct StyleCase {
    const char* name;
    int style;
    std::set<Button> buttons;
    QMessageBox::Icon icon;
    Button defaultButton;
    int escapeResult;  // 0: Escape does nothing
};

class MessageBoxStyles : public ::testing::TestWithParam<StyleCase> {
protected:
    std::unique_ptr<QMessageBox> box = mMessageBox::Create("Save the changes?", GetParam().style, nullptr);
};

TEST_P(MessageBoxStyles, OfferTheStylesButtonsIconAndDefault) {
    std::set<Button> shown;
    for (QAbstractButton* button : box->buttons())
        shown.insert(box->standardButton(button));
    EXPECT_EQ(shown, GetParam().buttons);
    EXPECT_EQ(box->icon(), GetParam().icon);
    ASSERT_NE(box->defaultButton(), nullptr);
    EXPECT_EQ(box->standardButton(box->defaultButton()), GetParam().defaultButton);
    EXPECT_EQ(box->windowTitle(), "Pavonel");
}

TEST_P(MessageBoxStyles, EscapeAnswersOnlyWhereWindowsLetsIt) {
    box->show();
    QTest::keyClick(box.get(), Qt::Key_Escape);
    if (GetParam().escapeResult == 0) {
        EXPECT_TRUE(box->isVisible());
        EXPECT_EQ(box->clickedButton(), nullptr);
    } else {
        EXPECT_FALSE(box->isVisible());
        EXPECT_EQ(mMessageBox::ResultOf(*box), GetParam().escapeResult);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Styles, MessageBoxStyles,
    ::testing::Values(
        StyleCase{"OkOnly", vbOKOnly, {QMessageBox::Ok}, QMessageBox::NoIcon, QMessageBox::Ok, vbOK},
        StyleCase{"OkCancel",
                  vbOKCancel,
                  {QMessageBox::Ok, QMessageBox::Cancel},
                  QMessageBox::NoIcon,
                  QMessageBox::Ok,
                  vbCancel},
        StyleCase{"AbortRetryIgnoreExclamation",
                  vbAbortRetryIgnore | vbExclamation,
                  {QMessageBox::Abort, QMessageBox::Retry, QMessageBox::Ignore},
                  QMessageBox::Warning,
                  QMessageBox::Abort,
                  0},
        StyleCase{"WizardNotFoundNamesNoButtonSet",
                  10,
                  {QMessageBox::Ok},
                  QMessageBox::NoIcon,
                  QMessageBox::Ok,
                  vbOK},
        StyleCase{"YesNoCancelThirdDefault",
                  vbYesNoCancel | vbQuestion | vbDefaultButton3,
                  {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel},
                  QMessageBox::Question,
                  QMessageBox::Cancel,
                  vbCancel},
        StyleCase{"YesNoQuestion",
                  vbYesNo | vbQuestion,
                  {QMessageBox::Yes, QMessageBox::No},
                  QMessageBox::Question,
                  QMessageBox::Yes,
                  0},
        StyleCase{"YesNoSecondDefault",
                  vbYesNo | vbDefaultButton2,
                  {QMessageBox::Yes, QMessageBox::No},
                  QMessageBox::NoIcon,
                  QMessageBox::No,
                  0},
        StyleCase{"ThirdDefaultOfTwoFallsBackToFirst",
                  vbRetryCancel | vbDefaultButton3,
                  {QMessageBox::Retry, QMessageBox::Cancel},
                  QMessageBox::NoIcon,
                  QMessageBox::Retry,
                  vbCancel},
        StyleCase{"RetryCancelCritical",
                  vbRetryCancel | vbCritical,
                  {QMessageBox::Retry, QMessageBox::Cancel},
                  QMessageBox::Critical,
                  QMessageBox::Retry,
                  vbCancel},
        StyleCase{
            "Information", vbInformation, {QMessageBox::Ok}, QMessageBox::Information, QMessageBox::Ok, vbOK},
        StyleCase{"UnknownSetShowsOk",
                  6 | vbInformation,
                  {QMessageBox::Ok},
                  QMessageBox::Information,
                  QMessageBox::Ok,
                  vbOK}),
    [](const ::testing::TestParamInfo<StyleCase>& info) { return info.param.name; });

TEST(mMessageBox, ShowsThePromptAsPlainLines) {
    auto box = mMessageBox::Create("First <b>line</b>\r\nSecond line", vbOKOnly, nullptr);
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    EXPECT_EQ(box->text(), "First <b>line</b>\nSecond line");
}

}  // namespace
