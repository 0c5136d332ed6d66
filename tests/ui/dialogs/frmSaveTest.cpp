// The save window over real profiles: what it offers, and that exactly the selected changes reach the file.
#include "ui/dialogs/frmSave.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QTest>
#include <QTreeWidget>

#include "profiles/Profile.h"
#include "ui/dialogs/UiFixture.h"

namespace {

class frmSaveTest : public UiFixture {
protected:
    frmSaveTest() {
        WriteIni("[profile_A]\r\nREFRESH=1\r\n[profile_B]\r\nREFRESH=1\r\n[profile_C]\r\nREFRESH=1\r\n");
        g_cApp->Profiles().LoadData();
        for (const char* name : {"profile_A", "profile_C"})
            g_cApp->Profiles().Item(name).SetRefresh(2);
    }

    // Shows the save window, lets `choose` act in it, and returns the settings file afterwards.
    std::string SaveWith(const std::function<void(QTreeWidget&)>& choose, const char* button) {
        answer = [&](QDialog& shown) {
            auto* list = Find<QTreeWidget>(shown, "ListView1");
            choose(*list);
            Find(shown, button)->click();
        };
        Ui().ShowSaveDialog();
        return ReadIni();
    }

    static constexpr const char* kUnchanged =
        "[profile_A]\r\nREFRESH=1\r\n[profile_B]\r\nREFRESH=1\r\n[profile_C]\r\nREFRESH=1\r\n";
};

TEST_F(frmSaveTest, OffersTheChangedProfilesAllSelected) {
    answer = [](QDialog& shown) {
        EXPECT_EQ(shown.windowTitle(), "Save Profiles");
        EXPECT_EQ(Find(shown, "Command1")->text().remove('&'), "Yes");
        const auto* list = Find<QTreeWidget>(shown, "ListView1");
        ASSERT_EQ(list->topLevelItemCount(), 2);
        EXPECT_EQ(list->topLevelItem(0)->text(0), "A");
        EXPECT_EQ(list->topLevelItem(1)->text(0), "C");
        EXPECT_EQ(list->selectedItems().size(), 2);
        EXPECT_EQ(Find<QLabel>(shown, "lblListTitle")->buddy(), Find<QWidget>(shown, "ucProfiles1"));
    };
    Ui().ShowSaveDialog();
    EXPECT_EQ(modalWindows, 1);
}

// Space on the current row takes it out of the selection; Yes saves only what is still selected.
TEST_F(frmSaveTest, YesSavesExactlyTheSelectedProfiles) {
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
}

TEST_F(frmSaveTest, NothingSelectedOrNoSavesNothing) {
    EXPECT_EQ(SaveWith([](QTreeWidget& list) { list.clearSelection(); }, "Command1"), kUnchanged);
    EXPECT_EQ(SaveWith([](QTreeWidget&) {}, "Command2"), kUnchanged);
    EXPECT_TRUE(g_cApp->Profiles().Item("profile_A").DataChanged());
}

}  // namespace
