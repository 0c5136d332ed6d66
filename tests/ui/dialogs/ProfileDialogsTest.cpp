// The profile windows driven as a user drives them, over the program's real profiles and settings file.
#include <gtest/gtest.h>

#include <QHeaderView>
#include <QMessageBox>
#include <QTreeWidget>

#include "profiles/Profile.h"
#include "ui/dialogs/UiFixture.h"
#include "ui/dialogs/frmEditProfile.h"
#include "ui/dialogs/frmProfiles.h"

namespace {

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

struct NewProfileCase {
    const char* name;
    const char* description;
    const char* message;  // the refusal's text in the language file, or nullptr when the input is taken
};

class NewProfile : public ProfileDialogsTest, public ::testing::WithParamInterface<NewProfileCase> {};

// Taken input names the profile with the prefix. Refused input is explained, and the window stays open for a
// correction with the profile untouched; which names cannot be stored is the profile's rule, tested there.
TEST_P(NewProfile, TakesTheInputOrSaysWhyNot) {
    const auto [name, description, message] = GetParam();
    Profile profile;
    frmEditProfile dialog;
    dialog.InitDialog(frmEditProfile::kNewProfile, profile);
    dialog.show();
    EXPECT_EQ(dialog.windowTitle(), "New Profile");
    EXPECT_EQ(Find<QLabel>(dialog, "lblName")->buddy(), Find<QLineEdit>(dialog, "txtName"));
    EXPECT_EQ(Find<QLabel>(dialog, "lblDesc")->buddy(), Find<QLineEdit>(dialog, "txtDescription"));
    Find<QLineEdit>(dialog, "txtName")->setText(QString::fromUtf8(name));
    Find<QLineEdit>(dialog, "txtDescription")->setText(QString::fromUtf8(description));
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_EQ(boxes.join('|'),
              message ? QtText::ToQt(Translator().TranslateEx("EDIT_PROFILE_DIALOG", message)) : "");
    EXPECT_EQ(dialog.isVisible(), message != nullptr);
    EXPECT_EQ(dialog.Cancel(), message != nullptr);
    EXPECT_EQ(profile.ProfileName() + "|" + profile.ProfileCaption() + "|" + profile.ProfileDescription(),
              message ? "||" : std::string("profile_") + name + "|" + name + "|" + description);
}

INSTANTIATE_TEST_SUITE_P(Cases, NewProfile,
                         ::testing::Values(NewProfileCase{"Race", "Only the fast ones", nullptr},
                                           NewProfileCase{"", "d", "MSG_PROFILE_NAME_MISSED"},
                                           NewProfileCase{"Race", "", "MSG_PROFILE_DESCRIPTION_MISSED"},
                                           NewProfileCase{"Race;Rally", "d", "MSG_PROFILE_NAME_INVALID"}));

TEST_F(ProfileDialogsTest, EditModeLocksTheNameAndStillAddsThePrefix) {
    LoadProfiles("[PROFILE_DEFAULT]\r\nDESCRIPTION=Standard\r\n");
    Profile& standard = g_cApp->Profiles().Item(1);
    window = [](QDialog& shown) {
        auto* name = Find<QLineEdit>(shown, "txtName");
        auto* description = Find<QLineEdit>(shown, "txtDescription");
        EXPECT_EQ(shown.windowTitle() + "|" + name->text() + "|" + description->text(),
                  "Edit Profile|DEFAULT|Standard");
        EXPECT_TRUE(name->isReadOnly());
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

// The remembered profile is gone: the chooser offers all of them with the standard profile selected. Its
// help explains, and OK needs a selection.
TEST_F(ProfileDialogsTest, ChooserPreselectsTheStandardProfileAtStartAndNeedsASelection) {
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

    window = [](QDialog& shown) {
        Find(shown, "cmdHelp")->click();
        Find<QTreeWidget>(shown, "ListView1")->clearSelection();
        EXPECT_FALSE(Find(shown, "cmdOk")->isEnabled());
        Find(shown, "cmdCancel")->click();
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
    const auto sortBy = [&](int column) {
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(column) + 4, header->height() / 2));
        return Captions(dialog);
    };
    EXPECT_EQ(sortBy(0), (QStringList{"A", "B", "C*"}));
    EXPECT_EQ(sortBy(0), (QStringList{"C*", "B", "A"}));
    EXPECT_EQ(sortBy(1), (QStringList{"A", "C*", "B"}));
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
}

// The save window over three profiles of which A and C are changed.
class frmSaveTest : public ProfileDialogsTest {
protected:
    frmSaveTest() {
        LoadProfiles(kUnchanged);
        for (const char* name : {"profile_A", "profile_C"})
            g_cApp->Profiles().Item(name).SetRefresh(2);
    }

    // Shows the save window, lets `choose` act in its list, presses `button`, and returns the settings file.
    std::string SaveWith(const std::function<void(QTreeWidget&)>& choose, const char* button) {
        window = [&](QDialog& shown) {
            choose(*Find<QTreeWidget>(shown, "ListView1"));
            Find(shown, button)->click();
        };
        Ui().ShowSaveDialog();
        return ReadIni();
    }

    static constexpr const char* kUnchanged =
        "[profile_A]\r\nREFRESH=1\r\n[profile_B]\r\nREFRESH=1\r\n[profile_C]\r\nREFRESH=1\r\n";
};

// The window offers the changed profiles, all selected. Space on the current row takes it out of the
// selection; Yes saves only what is still selected, and with nothing selected, or No, nothing is saved.
TEST_F(frmSaveTest, YesSavesExactlyTheSelectedProfiles) {
    const auto offered = [](QTreeWidget& list) {
        const QWidget& shown = *list.window();
        EXPECT_EQ(shown.windowTitle() + "|" + Find(shown, "Command1")->text().remove('&'),
                  "Save Profiles|Yes");
        EXPECT_EQ(Captions(shown), (QStringList{"A*", "C*"}));
        EXPECT_EQ(Find<QLabel>(shown, "lblListTitle")->buddy(), Find<QWidget>(shown, "ucProfiles1"));
        list.clearSelection();
    };
    EXPECT_EQ(SaveWith(offered, "Command1"), kUnchanged);
    EXPECT_EQ(SaveWith([](QTreeWidget&) {}, "Command2"), kUnchanged);
    const std::string saved = SaveWith(
        [](QTreeWidget& list) {
            list.setFocus();
            QTest::keyClick(&list, Qt::Key_End);
            QTest::keyClick(&list, Qt::Key_Space);
        },
        "Command1");
    EXPECT_TRUE(saved.starts_with("[profile_A]\r\nREFRESH=2\r\n")) << saved;
    EXPECT_TRUE(saved.ends_with("\r\n[profile_B]\r\nREFRESH=1\r\n[profile_C]\r\nREFRESH=1\r\n")) << saved;
    EXPECT_FALSE(g_cApp->Profiles().Item("profile_A").DataChanged());
    EXPECT_TRUE(g_cApp->Profiles().Item("profile_C").DataChanged());
    EXPECT_EQ(modalWindows, 3);
}

}  // namespace
