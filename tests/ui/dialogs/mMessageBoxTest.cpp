#include "ui/dialogs/mMessageBox.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>

#include "app/UserInterface.h"
#include "support/AppFixture.h"

namespace {

using MB = QMessageBox;

struct StyleCase {
    const char* name;
    int style;
    MB::StandardButtons buttons;
    MB::Icon icon;
    MB::StandardButton defaultButton;
    int escapeResult;  // 0: Escape does nothing
    MB::StandardButton pressed;
    int pressedResult;
};

// Every answer once, most from a button that is not the first of its box.
const StyleCase kStyles[] = {
    {"OkOnly", vbOKOnly, MB::Ok, MB::NoIcon, MB::Ok, vbOK, MB::Ok, vbOK},
    {"OkCancel", vbOKCancel, MB::Ok | MB::Cancel, MB::NoIcon, MB::Ok, vbCancel, MB::Cancel, vbCancel},
    {"AbortRetryIgnoreExclamation", vbAbortRetryIgnore | vbExclamation, MB::Abort | MB::Retry | MB::Ignore,
     MB::Warning, MB::Abort, 0, MB::Ignore, vbIgnore},
    {"AbortRetryIgnoreSecondDefault", vbAbortRetryIgnore | vbDefaultButton2,
     MB::Abort | MB::Retry | MB::Ignore, MB::NoIcon, MB::Retry, 0, MB::Abort, vbAbort},
    {"YesNoCancelQuestionThirdDefault", vbYesNoCancel | vbQuestion | vbDefaultButton3,
     MB::Yes | MB::No | MB::Cancel, MB::Question, MB::Cancel, vbCancel, MB::Yes, vbYes},
    {"YesNoSecondDefault", vbYesNo | vbDefaultButton2, MB::Yes | MB::No, MB::NoIcon, MB::No, 0, MB::No, vbNo},
    {"ThirdDefaultOfTwoFallsBackToFirst", vbRetryCancel | vbCritical | vbDefaultButton3,
     MB::Retry | MB::Cancel, MB::Critical, MB::Retry, vbCancel, MB::Retry, vbRetry},
    {"UnknownSetShowsOk", 10 | vbInformation, MB::Ok, MB::Information, MB::Ok, vbOK, MB::Ok, vbOK}};

// The prompt shows as plain lines, whatever it holds.
TEST(mMessageBox, EachStyleOffersItsButtonsIconAndDefaultAndAnswersAsWindowsDoes) {
    const char* const prompt = "First <b>line</b>\r\nSecond line";
    for (const StyleCase& expected : kStyles) {
        SCOPED_TRACE(expected.name);
        const std::unique_ptr<QMessageBox> box = mMessageBox::Create(prompt, expected.style, nullptr);
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        EXPECT_EQ(box->text(), "First <b>line</b>\nSecond line");
        MB::StandardButtons shown;
        for (QAbstractButton* button : box->buttons())
            shown |= box->standardButton(button);
        EXPECT_EQ(shown, expected.buttons);
        EXPECT_EQ(box->icon(), expected.icon);
        ASSERT_NE(box->defaultButton(), nullptr);
        EXPECT_EQ(box->standardButton(box->defaultButton()), expected.defaultButton);
        EXPECT_EQ(box->windowTitle(), "Pavonel");
        ASSERT_NE(box->button(expected.pressed), nullptr);
        box->button(expected.pressed)->click();
        EXPECT_EQ(mMessageBox::ResultOf(*box), expected.pressedResult);
        const std::unique_ptr<QMessageBox> escaped = mMessageBox::Create(prompt, expected.style, nullptr);
        escaped->show();
        QTest::keyClick(escaped.get(), Qt::Key_Escape);
        EXPECT_EQ(escaped->isVisible() ? 0 : mMessageBox::ResultOf(*escaped), expected.escapeResult);
    }
}

using TranslatedMessageBox = AppFixture;

// The buttons the language files name follow the chosen language; the others keep Qt's words.
TEST_F(TranslatedMessageBox, ButtonsSpeakTheChosenLanguage) {
    UseLanguage("DE");
    const auto box = mMessageBox::Create("Frage", vbYesNoCancel, nullptr);
    const QStringList german{box->button(MB::Yes)->text(), box->button(MB::No)->text(),
                             box->button(MB::Cancel)->text()};
    EXPECT_EQ(german, (QStringList{"Ja", "Nein", "Abbrechen"}));
    UseLanguage("EN");
    EXPECT_EQ(mMessageBox::Create("Question", vbOKOnly, nullptr)->button(MB::Ok)->text(), "OK");
}

}  // namespace
