#include "ui/dialogs/frmStartingTarvolin.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include "profiles/Profile.h"
#include "ui/dialogs/UiFixture.h"

namespace {

class frmStartingTarvolinTest : public UiFixture {
protected:
    frmStartingTarvolinTest() {
        profile.SetUsePreDefinedResolution(false);
        profile.SetResolutionWidth(1024);
        profile.SetResolutionHeight(768);
    }

    Options& options() { return g_cApp->Options(); }

    Profile profile;
};

TEST_F(frmStartingTarvolinTest, TextsComeFromTheDialogsSectionAndGlobal) {
    UseLanguage("DE");
    frmStartingTarvolin german;
    german.InitDialog(profile);
    EXPECT_EQ(german.windowTitle(), "Tarvolin starten");
    EXPECT_EQ(Find<QLabel>(german, "lblCaption")->text(), "Tarvolin wird mit dieser Befehlszeile gestartet:");
    EXPECT_TRUE(Find<QLabel>(german, "lblWarning")->text().startsWith("Bitte achten Sie darauf"));
    EXPECT_EQ(Find<QCheckBox>(german, "ckDontShowThisDialogAgain")->text(),
              "&Dieses Fenster nicht mehr anzeigen");
    EXPECT_EQ(Find(german, "cmdOk")->text(), "OK");
    EXPECT_EQ(Find(german, "cmdCancel")->text(), "Abbrechen");
}

// The option as it was and the check box as the user sets it.
class StartWindowAnswers : public frmStartingTarvolinTest,
                           public ::testing::WithParamInterface<std::tuple<bool, bool>> {};

// OK stores the check box in the option whatever it was; Cancel, by button or by Escape, leaves it alone.
TEST_P(StartWindowAnswers, OkStoresTheCheckBoxAndCancelLeavesTheOption) {
    const auto [optionBefore, boxChecked] = GetParam();
    options().SetShowStartTarvolinDialog(optionBefore);
    const bool changedBefore = options().DataChanged();
    for (const char* answer : {"Escape", "cmdCancel", "cmdOk"}) {
        frmStartingTarvolin dialog;
        dialog.InitDialog(profile);
        dialog.show();
        Find<QCheckBox>(dialog, "ckDontShowThisDialogAgain")->setChecked(boxChecked);
        if (answer == std::string("Escape"))
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            QTest::mouseClick(Find(dialog, answer), Qt::LeftButton);
        EXPECT_FALSE(dialog.isVisible()) << answer;
        EXPECT_EQ(dialog.Cancel(), answer != std::string("cmdOk")) << answer;
        if (dialog.Cancel()) {
            EXPECT_EQ(options().ShowStartTarvolinDialog(), optionBefore) << answer;
            EXPECT_EQ(options().DataChanged(), changedBefore) << answer;
        }
    }
    EXPECT_EQ(options().ShowStartTarvolinDialog(), !boxChecked);
}

INSTANTIATE_TEST_SUITE_P(OptionAndCheckBox, StartWindowAnswers,
                         ::testing::Combine(::testing::Bool(), ::testing::Bool()));

// The window shows the profile's command line; a window closed without OK stops the start.
TEST_F(frmStartingTarvolinTest, QtUserInterfaceReportsWhetherTheStartMayGoAhead) {
    const char* pressed = "cmdOk";
    answer = [&](QDialog& shown) {
        EXPECT_EQ(Find<QLabel>(shown, "lblInfo")->text(), QtText::ToQt(profile.GetCmdLineParameters()));
        EXPECT_TRUE(Find<QLabel>(shown, "lblInfo")->text().startsWith("-log -screensize 1024x768"));
        Find(shown, pressed)->click();
    };
    EXPECT_TRUE(Ui().ShowStartTarvolinDialog(profile));
    pressed = "cmdCancel";
    EXPECT_FALSE(Ui().ShowStartTarvolinDialog(profile));
    answer = nullptr;
    EXPECT_FALSE(Ui().ShowStartTarvolinDialog(profile));
    EXPECT_EQ(modalWindows, 3);
}

}  // namespace
