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
        profile.SetScenarioPath("demo.sve");
    }

    template <class T>
    static T* Find(const QDialog& window, const char* name) {
        T* widget = window.findChild<T*>(name);
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }

    Options& options() { return g_cApp->Options(); }

    Profile profile;
};

TEST_F(frmStartingTarvolinTest, ShowsTheProfilesCommandLine) {
    frmStartingTarvolin dialog;
    dialog.InitDialog(profile);
    auto* info = Find<QLabel>(dialog, "lblInfo");
    EXPECT_EQ(info->text(), QtText::ToQt(profile.GetCmdLineParameters()));
    EXPECT_TRUE(info->text().startsWith("-log -screensize 1024x768"));
    EXPECT_TRUE(info->textInteractionFlags() & Qt::TextSelectableByMouse);
    EXPECT_TRUE(dialog.Cancel());
}

struct LanguageCase {
    const char* abbrev;
    const char* caption;
    const char* info;
    const char* checkBox;
    const char* cancel;
};

class StartDialogTexts : public frmStartingTarvolinTest,
                         public ::testing::WithParamInterface<LanguageCase> {};

TEST_P(StartDialogTexts, ComeFromTheDialogsSectionAndGlobal) {
    UseLanguage(GetParam().abbrev);
    frmStartingTarvolin dialog;
    dialog.InitDialog(profile);
    EXPECT_EQ(dialog.windowTitle(), QString::fromUtf8(GetParam().caption));
    EXPECT_EQ(Find<QLabel>(dialog, "lblCaption")->text(), QString::fromUtf8(GetParam().info));
    EXPECT_EQ(QtText::ToQt(dialog.TranslateDialogItem("LBL_WARNING")),
              Find<QLabel>(dialog, "lblWarning")->text());
    EXPECT_EQ(Find<QCheckBox>(dialog, "ckDontShowThisDialogAgain")->text(),
              QString::fromUtf8(GetParam().checkBox));
    EXPECT_EQ(Find<QPushButton>(dialog, "cmdOk")->text(), "OK");
    EXPECT_EQ(Find<QPushButton>(dialog, "cmdCancel")->text(), QString::fromUtf8(GetParam().cancel));
}

INSTANTIATE_TEST_SUITE_P(Languages, StartDialogTexts,
                         ::testing::Values(LanguageCase{"EN", "Start Tarvolin",
                                                        "Tarvolin will be started with this command line:",
                                                        "&Don't show this window again", "Cancel"},
                                           LanguageCase{"DE", "Tarvolin starten",
                                                        "Tarvolin wird mit dieser Befehlszeile gestartet:",
                                                        "&Dieses Fenster nicht mehr anzeigen", "Abbrechen"}));

struct OkCase {
    bool optionBefore;
    bool boxChecked;
    bool optionAfter;
};

class StartDialogOk : public frmStartingTarvolinTest, public ::testing::WithParamInterface<OkCase> {};

TEST_P(StartDialogOk, StoresTheCheckBoxInTheOption) {
    options().SetShowStartTarvolinDialog(GetParam().optionBefore);
    frmStartingTarvolin dialog;
    dialog.InitDialog(profile);
    Find<QCheckBox>(dialog, "ckDontShowThisDialogAgain")->setChecked(GetParam().boxChecked);
    QTest::mouseClick(Find<QPushButton>(dialog, "cmdOk"), Qt::LeftButton);
    EXPECT_EQ(options().ShowStartTarvolinDialog(), GetParam().optionAfter);
    EXPECT_FALSE(dialog.Cancel());
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

INSTANTIATE_TEST_SUITE_P(CheckBox, StartDialogOk,
                         ::testing::Values(OkCase{true, true, false}, OkCase{true, false, true},
                                           OkCase{false, false, true}, OkCase{false, true, false}));

class StartDialogCancel : public frmStartingTarvolinTest, public ::testing::WithParamInterface<bool> {};

TEST_P(StartDialogCancel, LeavesTheOptionWhateverTheBoxSays) {
    const bool byEscape = GetParam();
    frmStartingTarvolin dialog;
    dialog.InitDialog(profile);
    dialog.show();
    Find<QCheckBox>(dialog, "ckDontShowThisDialogAgain")->setChecked(true);
    if (byEscape)
        QTest::keyClick(&dialog, Qt::Key_Escape);
    else
        QTest::mouseClick(Find<QPushButton>(dialog, "cmdCancel"), Qt::LeftButton);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_TRUE(dialog.Cancel());
    EXPECT_TRUE(options().ShowStartTarvolinDialog());
    EXPECT_FALSE(options().DataChanged());
}

INSTANTIATE_TEST_SUITE_P(ButtonOrEscape, StartDialogCancel, ::testing::Bool());

TEST_F(frmStartingTarvolinTest, QtUserInterfaceReportsWhetherTheStartMayGoAhead) {
    const char* pressed = "cmdOk";
    qtUi.answer = [&](QDialog& dialog) {
        EXPECT_EQ(Find<QLabel>(dialog, "lblInfo")->text(), QtText::ToQt(profile.GetCmdLineParameters()));
        Find<QPushButton>(dialog, pressed)->click();
    };
    EXPECT_TRUE(Ui().ShowStartTarvolinDialog(profile));
    pressed = "cmdCancel";
    EXPECT_FALSE(Ui().ShowStartTarvolinDialog(profile));
    qtUi.answer = nullptr;
    EXPECT_FALSE(Ui().ShowStartTarvolinDialog(profile));
    EXPECT_EQ(qtUi.modalWindows, 3);
}

}  // namespace
