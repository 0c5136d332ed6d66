#include "ui/dialogs/frmStartingTarvolin.h"

#include <gtest/gtest.h>

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
    const QStringList texts{german.windowTitle(),
                            Find<QLabel>(german, "lblCaption")->text(),
                            Find<QLabel>(german, "lblWarning")->text().left(23),
                            Find<QCheckBox>(german, "ckDontShowThisDialogAgain")->text(),
                            Find(german, "cmdOk")->text(),
                            Find(german, "cmdCancel")->text()};
    EXPECT_EQ(texts, (QStringList{"Tarvolin starten", "Tarvolin wird mit dieser Befehlszeile gestartet:",
                                  "Bitte achten Sie darauf", "&Dieses Fenster nicht mehr anzeigen", "OK",
                                  "Abbrechen"}));
}

// The option as it was and the check box as the user sets it.
class StartWindowAnswers : public frmStartingTarvolinTest,
                           public ::testing::WithParamInterface<std::tuple<bool, bool>> {};

// The window shows the profile's command line. OK stores the check box in the option whatever it was and lets
// the start go ahead; Cancel, by button or by Escape, or a window closed otherwise stops the start and leaves
// the option alone.
TEST_P(StartWindowAnswers, OnlyOkStoresTheCheckBoxAndLetsTheStartGoAhead) {
    const auto [optionBefore, boxChecked] = GetParam();
    options().SetShowStartTarvolinDialog(optionBefore);
    const bool changedBefore = options().DataChanged();
    for (const std::string pressed : {"", "Escape", "cmdCancel", "cmdOk"}) {
        SCOPED_TRACE(pressed);
        answer = [&](QDialog& shown) {
            EXPECT_EQ(Find<QLabel>(shown, "lblInfo")->text(), QtText::ToQt(profile.GetCmdLineParameters()));
            EXPECT_TRUE(Find<QLabel>(shown, "lblInfo")->text().startsWith("-log -screensize 1024x768"));
            shown.show();
            Find<QCheckBox>(shown, "ckDontShowThisDialogAgain")->setChecked(boxChecked);
            if (pressed == "Escape")
                QTest::keyClick(&shown, Qt::Key_Escape);
            else if (!pressed.empty())
                QTest::mouseClick(Find(shown, pressed.c_str()), Qt::LeftButton);
            EXPECT_NE(shown.isVisible(), !pressed.empty());
        };
        EXPECT_EQ(Ui().ShowStartTarvolinDialog(profile), pressed == "cmdOk");
        if (pressed != "cmdOk") {
            EXPECT_EQ(options().ShowStartTarvolinDialog(), optionBefore);
            EXPECT_EQ(options().DataChanged(), changedBefore);
        }
    }
    EXPECT_EQ(options().ShowStartTarvolinDialog(), !boxChecked);
    EXPECT_EQ(modalWindows, 4);
}

INSTANTIATE_TEST_SUITE_P(OptionAndCheckBox, StartWindowAnswers,
                         ::testing::Combine(::testing::Bool(), ::testing::Bool()));

}  // namespace
