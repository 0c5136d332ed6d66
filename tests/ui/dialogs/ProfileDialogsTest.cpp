// The profile windows driven as a user drives them, over the program's real profiles and settings file.
#include <gtest/gtest.h>

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "profiles/Profile.h"
#include "ui/dialogs/UiFixture.h"
#include "ui/dialogs/frmEditProfile.h"
#include "ui/dialogs/frmLoadProfile.h"
#include "ui/dialogs/frmProfiles.h"

namespace {

QStringList Captions(const QWidget& window) {
    const auto* list = Find<QTreeWidget>(window, "ListView1");
    QStringList captions;
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        captions << list->topLevelItem(i)->text(0) + (list->topLevelItem(i)->isSelected() ? "*" : "");
    return captions;
}

// Message boxes are answered with OK and remembered; `window` answers every other window.
class ProfileDialogsTest : public UiFixture {
protected:
    ProfileDialogsTest() {
        answer = [this](QDialog& shown) {
            if (auto* box = qobject_cast<QMessageBox*>(&shown))
                boxes << box->text();
            else if (window)
                window(shown);
        };
    }

    void LoadProfiles(const std::string& ini) {
        WriteIni(ini);
        g_cApp->Profiles().LoadData();
    }

    std::function<void(QDialog&)> window;
    QStringList boxes;
};

TEST_F(ProfileDialogsTest, NewProfileRaceGetsThePrefixAndItsCaption) {
    Profile profile;
    frmEditProfile dialog;
    dialog.InitDialog(frmEditProfile::kNewProfile, profile);
    dialog.show();
    EXPECT_EQ(dialog.windowTitle(), "New Profile");
    EXPECT_EQ(Find<QLabel>(dialog, "lblName")->buddy(), Find<QLineEdit>(dialog, "txtName"));
    EXPECT_EQ(Find<QLabel>(dialog, "lblDesc")->buddy(), Find<QLineEdit>(dialog, "txtDescription"));
    QTest::keyClicks(Find<QLineEdit>(dialog, "txtName"), "Race");
    QTest::keyClicks(Find<QLineEdit>(dialog, "txtDescription"), "Only the fast ones");
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_TRUE(boxes.isEmpty());
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(dialog.Cancel());
    EXPECT_EQ(profile.ProfileName(), "profile_Race");
    EXPECT_EQ(profile.ProfileCaption(), "Race");
    EXPECT_EQ(profile.ProfileDescription(), "Only the fast ones");
}

struct RefusedInput {
    const char* name;
    const char* description;
    const char* message;
};

class RefusedProfileInput : public ProfileDialogsTest, public ::testing::WithParamInterface<RefusedInput> {};

// The user is told why, the window stays open for a correction, and the profile is untouched.
TEST_P(RefusedProfileInput, KeepsTheWindowOpen) {
    Profile profile;
    frmEditProfile dialog;
    dialog.InitDialog(frmEditProfile::kNewProfile, profile);
    dialog.show();
    Find<QLineEdit>(dialog, "txtName")->setText(QString::fromUtf8(GetParam().name));
    Find<QLineEdit>(dialog, "txtDescription")->setText(QString::fromUtf8(GetParam().description));
    QTest::mouseClick(Find(dialog, "cmdOk"), Qt::LeftButton);
    EXPECT_EQ(boxes,
              QStringList{QtText::ToQt(Translator().TranslateEx("EDIT_PROFILE_DIALOG", GetParam().message))});
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_TRUE(dialog.Cancel());
    EXPECT_EQ(profile.ProfileName(), "");
}

// Which names cannot be stored is the profile's rule, tested with the profiles; one of them stands here.
INSTANTIATE_TEST_SUITE_P(Cases, RefusedProfileInput,
                         ::testing::Values(RefusedInput{"", "d", "MSG_PROFILE_NAME_MISSED"},
                                           RefusedInput{"Race", "", "MSG_PROFILE_DESCRIPTION_MISSED"},
                                           RefusedInput{"Race;Rally", "d", "MSG_PROFILE_NAME_INVALID"}));

TEST_F(ProfileDialogsTest, EditModeLocksTheNameAndStillAddsThePrefix) {
    LoadProfiles("[PROFILE_DEFAULT]\r\nDESCRIPTION=Standard\r\n");
    Profile& standard = g_cApp->Profiles().Item(1);
    window = [](QDialog& shown) {
        auto* name = Find<QLineEdit>(shown, "txtName");
        auto* description = Find<QLineEdit>(shown, "txtDescription");
        EXPECT_EQ(shown.windowTitle(), "Edit Profile");
        EXPECT_TRUE(name->isReadOnly());
        EXPECT_EQ(name->text(), "DEFAULT");
        EXPECT_EQ(description->text(), "Standard");
        description->setText("Mine");
        Find(shown, "cmdOk")->click();
    };
    EXPECT_TRUE(Ui().ShowEditProfileDialog(2, standard));
    EXPECT_EQ(standard.ProfileName(), "profile_DEFAULT");
    EXPECT_EQ(standard.ProfileDescription(), "Mine");

    window = [](QDialog& shown) {
        Find<QLineEdit>(shown, "txtDescription")->setText("Changed");
        QTest::keyClick(&shown, Qt::Key_Escape);
    };
    EXPECT_FALSE(Ui().ShowEditProfileDialog(2, standard));
    EXPECT_EQ(standard.ProfileDescription(), "Mine");
}

// The remembered profile is gone: the chooser offers all of them with the standard profile selected.
TEST_F(ProfileDialogsTest, ChooserPreselectsTheStandardProfileAtStart) {
    WriteIni(
        "[PROFILES]\r\nLASTACTIVEPROFILE=profile_Gone\r\n[profile_A]\r\n[PROFILE_DEFAULT]\r\n[profile_B]"
        "\r\n");
    window = [](QDialog& shown) {
        EXPECT_EQ(Captions(shown), (QStringList{"A", "DEFAULT*", "B"}));
        shown.show();
        auto* list = Find<QTreeWidget>(shown, "ListView1");
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
    };
    ASSERT_TRUE(g_cApp->LoadData());
    EXPECT_EQ(g_cApp->ActiveProfile()->ProfileName(), "profile_B");

    window = [](QDialog& shown) { Find(shown, "cmdCancel")->click(); };
    EXPECT_EQ(Ui().ShowLoadProfileDialog(), nullptr);
}

TEST_F(ProfileDialogsTest, ChooserHelpsAndNeedsASelection) {
    LoadProfiles("[profile_A]\r\n");
    window = [](QDialog& shown) {
        Find(shown, "cmdHelp")->click();
        Find<QTreeWidget>(shown, "ListView1")->clearSelection();
        EXPECT_FALSE(Find(shown, "cmdOk")->isEnabled());
        shown.reject();
    };
    EXPECT_EQ(Ui().ShowLoadProfileDialog(), nullptr);
    EXPECT_EQ(boxes,
              QStringList{"If you don't know what to do, select the Standard-Profile and then click on the "
                          "ok-button."});
}

// Columns sort by a click on their header, the second click reverses; the active profile is current.
TEST_F(ProfileDialogsTest, ProfileListSortsByEitherColumn) {
    LoadProfiles(
        "[profile_B]\r\nDESCRIPTION=3\r\n[profile_C]\r\nDESCRIPTION=2\r\n[profile_A]\r\nDESCRIPTION=1\r\n");
    g_cApp->SetActiveProfile(&g_cApp->Profiles().Item("profile_C"));
    frmProfiles dialog;
    dialog.InitDialog();
    dialog.show();
    EXPECT_EQ(dialog.windowTitle(), "All Profiles");
    EXPECT_EQ(Captions(dialog), (QStringList{"B", "C*", "A"}));
    const QTreeWidgetItem* headings = Find<QTreeWidget>(dialog, "ListView1")->headerItem();
    EXPECT_EQ(QStringList({headings->text(0), headings->text(1)}), (QStringList{"Profile", "Description"}));
    QHeaderView* header = Find<QTreeWidget>(dialog, "ListView1")->header();
    const auto clickColumn = [&](int column) {
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(column) + 4, header->height() / 2));
    };
    clickColumn(0);
    EXPECT_EQ(Captions(dialog), (QStringList{"A", "B", "C*"}));
    clickColumn(0);
    EXPECT_EQ(Captions(dialog), (QStringList{"C*", "B", "A"}));
    clickColumn(1);
    EXPECT_EQ(Captions(dialog), (QStringList{"A", "C*", "B"}));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

}  // namespace
