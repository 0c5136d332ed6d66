#include <windows.h>

#include <windowsx.h>

#include "WindowFixture.h"
#include "profiles/Profiles.h"
#include "translate/cTranslate.h"

namespace {

using frmMainTest = WindowFixture;

bool Shown(HWND window) {
    return (GetWindowLongA(window, GWL_STYLE) & WS_VISIBLE) != 0;
}

TEST_F(frmMainTest, StartsWithTheRememberedProfileAndSwitchesPages) {
    ASSERT_NE(main, nullptr);
    EXPECT_EQ(WinText::Of(main->Handle()), "Pavonel");
    EXPECT_EQ(Text(IDC_txtTarvolinPath), game);
    EXPECT_EQ(Text(IDC_txtCommandLine), "-log -res 1 -refresh 1");
    EXPECT_EQ(Text(IDC_ucTab1_0 + 2), Translator().TranslateEx("MAIN_DIALOG", "TAB_DISPLAY"));
    EXPECT_EQ(main->ActivePage(), 1);
    Click(IDC_ucTab1_0 + 2);
    EXPECT_EQ(main->ActivePage(), 3);
    EXPECT_TRUE(Shown(GetParent(Control(IDC_lstResolution))));
    EXPECT_FALSE(Shown(GetParent(Control(IDC_ckFreeplay))));
    // Ctrl+Tab turns to the next page, from the last one to the first.
    MSG key{Control(IDC_lstResolution), WM_KEYDOWN, VK_NEXT, 0, 0, {}};
    BYTE keys[256] = {};
    keys[VK_CONTROL] = 0x80;
    SetKeyboardState(keys);
    EXPECT_TRUE(main->TranslateKeys(key));
    EXPECT_EQ(main->ActivePage(), 4);
    key.wParam = VK_TAB;
    EXPECT_TRUE(main->TranslateKeys(key));
    EXPECT_TRUE(main->TranslateKeys(key));
    EXPECT_EQ(main->ActivePage(), 1);
    keys[VK_CONTROL] = 0;
    SetKeyboardState(keys);
    EXPECT_FALSE(main->TranslateKeys(key));
}

// A letter types nothing but still chooses the user's own size; a width below the minimum is raised on
// leaving the field, the display page shows and the user is told.
TEST_F(frmMainTest, ResolutionFieldsTakeDigitsAndCorrectSmallSizes) {
    Click(IDC_ucTab1_0 + 2);
    SetText(IDC_txtRes_Width, "");
    Type(IDC_txtRes_Width, "a");
    EXPECT_EQ(Text(IDC_txtRes_Width), "");
    EXPECT_EQ(Button_GetCheck(Control(IDC_opResolution_0 + 1)), BST_CHECKED);
    Type(IDC_txtRes_Width, "600");
    EXPECT_EQ(Text(IDC_txtRes_Width), "600");
    SetFocus(Control(IDC_txtRes_Height));
    Pump();
    EXPECT_EQ(Text(IDC_txtRes_Width), "640");
    EXPECT_EQ(main->ActivePage(), 3);
    ASSERT_EQ(boxes.size(), 1u);
    EXPECT_EQ(boxes[0], Translator().TranslateEx("MAIN_DIALOG", "MSG_ResolutionWidthChanged"));
    EXPECT_EQ(GetFocus(), Control(IDC_txtRes_Width));
    EXPECT_EQ(Text(IDC_txtCommandLine), "-log -screensize 640x480 -refresh 1");
    // Choosing from the list returns to the standard sizes.
    ListBox_SetCurSel(Control(IDC_lstResolution), 3);
    SendMessageA(GetParent(Control(IDC_lstResolution)), WM_COMMAND,
                 MAKEWPARAM(IDC_lstResolution, LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(Control(IDC_lstResolution)));
    EXPECT_EQ(Text(IDC_txtCommandLine), "-log -res 4 -refresh 1");
}

TEST_F(frmMainTest, AWidthThatIsNoNumberEndsTheSaveWithAReport) {
    SetText(IDC_txtRes_Width, "");
    Choose(IDM_mnuFile_Save);
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_NE(reports[0].find("20006"), std::string::npos);
    EXPECT_NE(reports[0].find("frmMain.mnuFile_Save_Click\r\nfrmMain.SaveData\r\nfrmMain.RefreshProfileData"),
              std::string::npos);
}

// The edits of one profile stay with it when another is shown, and a new profile comes through its dialog.
TEST_F(frmMainTest, ProfilesSwitchKeepingTheirEditsAndANewOneComesThroughItsDialog) {
    Click(IDC_ckFreeplay);
    Choose(IDM_mnuProfile_List_0 + 1);
    EXPECT_EQ(Active().ProfileName(), "profile_B");
    EXPECT_EQ(ListBox_GetCurSel(Control(IDC_lstRefresh)), 2);
    Choose(IDM_mnuProfile_List_0);
    EXPECT_EQ(Button_GetCheck(Control(IDC_ckFreeplay)), BST_CHECKED);
    window = [](ModalDialog& dialog) {
        ASSERT_EQ(dialog.Layout(), IDD_frmEditProfile);
        WinText::SetItem(dialog.Handle(), IDC_txtName, "Race");
        WinText::SetItem(dialog.Handle(), IDC_txtProfileDescription, "Fast trains");
        SendMessageA(GetDlgItem(dialog.Handle(), IDC_cmdOk), BM_CLICK, 0, 0);
    };
    Choose(IDM_mnuProfile_New);
    EXPECT_EQ(Active().ProfileName(), "profile_Race");
    // A profile without a game asks for one; none chosen, it is told so.
    EXPECT_EQ(choosers.size(), 1u);
    EXPECT_EQ(boxes.back(), Translator().TranslateEx("ERROR_MESSAGES", "ERR_TarvolinFolderNotDefined"));
    EXPECT_TRUE(g_cApp->Profiles().Item("profile_A").Freeplay());
}

TEST_F(frmMainTest, TheLanguageSwitchesEveryCaptionAtOnce) {
    const std::string english = Text(IDC_cmdStart);
    // The language menu lists the two language files, German first.
    ASSERT_EQ(GetMenuItemCount(GetSubMenu(GetSubMenu(GetMenu(main->Handle()), 3), 0)), 2);
    Choose(IDM_mnuOptions_Lang_Item_0);
    EXPECT_EQ(g_cApp->Options().Language(), "DE");
    EXPECT_NE(Text(IDC_cmdStart), english);
    EXPECT_EQ(Text(IDC_ucTab1_0), Translator().TranslateEx("MAIN_DIALOG", "TAB_GAMESETTINGS"));
    char title[64] = {};
    GetMenuStringA(GetMenu(main->Handle()), 0, title, sizeof title, MF_BYPOSITION);
    EXPECT_EQ(std::string(title), Translator().TranslateEx("MAIN_DIALOG", "MNU_FILE"));
}

// Cancel keeps the window and its edits; Yes saves them into the settings file and ends the program.
TEST_F(frmMainTest, ClosingAsksWhetherToSave) {
    Click(IDC_ckFreeplay);
    EXPECT_FALSE(Close({IDCANCEL}));
    EXPECT_EQ(Button_GetCheck(Control(IDC_ckFreeplay)), BST_CHECKED);
    window = [](ModalDialog& dialog) {
        if (dialog.Layout() == IDD_frmSave)
            SendMessageA(GetDlgItem(dialog.Handle(), IDC_Command1), BM_CLICK, 0, 0);
    };
    EXPECT_TRUE(Close({IDYES}));
    EXPECT_NE(ReadIni().find("[profile_A]\r\nTARVOPATH=" + game + "\r\nFREEPLAY=1\r\n"), std::string::npos);
}

}  // namespace
