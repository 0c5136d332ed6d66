#include <windows.h>

#include <windowsx.h>

#include "WindowFixture.h"
#include "profiles/Profiles.h"

namespace {

using ProfileCommandsTest = WindowFixture;

bool Enabled(ModalDialog& dialog, int id) {
    return IsWindowEnabled(GetDlgItem(dialog.Handle(), id)) != FALSE;
}

// "All profiles" opens on the active profile; deleting it (after the question) leaves the standard profile
// selected, which can be neither renamed nor deleted, and the main window then shows it.
TEST_F(ProfileCommandsTest, AllProfilesDeletesTheSelectedOneAndFollowsTheSelection) {
    int opened = 0;
    window = [&](ModalDialog& shown) {
        ASSERT_EQ(shown.Layout(), IDD_frmProfiles);
        ++opened;
        EXPECT_TRUE(Enabled(shown, IDC_cmdRename));
        EXPECT_TRUE(Enabled(shown, IDC_cmdDelete));
        buttons = {IDYES};
        SendDlgItemMessageA(shown.Handle(), IDC_cmdDelete, BM_CLICK, 0, 0);
        EXPECT_FALSE(Enabled(shown, IDC_cmdRename));
        EXPECT_FALSE(Enabled(shown, IDC_cmdDelete));
        EXPECT_TRUE(Enabled(shown, IDC_cmdDuplicate));
        SendDlgItemMessageA(shown.Handle(), IDC_cmdClose, BM_CLICK, 0, 0);
    };
    Choose(IDM_mnuProfil_Manager);
    EXPECT_EQ(opened, 1);
    ASSERT_FALSE(boxes.empty());
    EXPECT_NE(boxes.front().find("\"A\""), std::string::npos);  // the question names the profile
    EXPECT_NE(Active().ProfileName(), "profile_A");
    EXPECT_EQ(ReadIni().find("[profile_A]"), std::string::npos);
    EXPECT_EQ(Text(IDC_txtTarvolinPath), Active().TarvolinPath());
    EXPECT_TRUE(reports.empty());
}

// Copy Profile puts the profile shown, with its unsaved edits, on the clipboard; Paste Profile makes a new
// profile of it under a free name the user confirms (with a description), and shows it. Duplicate does the
// same in one step.
TEST_F(ProfileCommandsTest, CopyPasteAndDuplicateMakeShownCopies) {
    const int32_t before = App().Profiles().Count();
    Click(IDC_ckFreeplay);
    Choose(IDM_mnuEditCopy_Profile);
    int asked = 0;
    window = [&](ModalDialog& shown) {
        ASSERT_EQ(shown.Layout(), IDD_frmEditProfile);
        ++asked;
        WinText::Set(GetDlgItem(shown.Handle(), IDC_txtProfileDescription), "Copy");
        SendDlgItemMessageA(shown.Handle(), IDC_cmdOk, BM_CLICK, 0, 0);
    };
    Choose(IDM_mnuEditPaste_Profile);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(Active().ProfileCaption(), "A (2)");
    EXPECT_TRUE(Active().Freeplay());
    EXPECT_EQ(Button_GetCheck(Control(IDC_ckFreeplay)), BST_CHECKED);
    Choose(IDM_mnuProfile_Duplicate);
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(Active().ProfileCaption(), "A (2) (2)");
    EXPECT_EQ(App().Profiles().Count(), before + 2);
    EXPECT_TRUE(reports.empty());
}

}  // namespace
