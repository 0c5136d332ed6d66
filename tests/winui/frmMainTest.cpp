#include <windows.h>

#include <oleacc.h>
#include <windowsx.h>

#include <tuple>
#include "WindowFixture.h"

#include "platform/NativePath.h"
#include "platform/Platform.h"
#include "profiles/Profiles.h"
#include "support/StandInGame.h"
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

// A screen reader hears each drawn tab as a page tab named by its caption, the shown page's selected, and
// its action turns to that page.
// (The accessibility library is loaded as a screen reader loads it: its import library and the uuid
// library both define the interface's id.)
TEST_F(frmMainTest, TheDrawnTabsAnnounceThemselvesAsPageTabs) {
    using ObjectFromWindow = HRESULT(WINAPI*)(HWND, DWORD, REFIID, void**);
    const auto objectFromWindow = reinterpret_cast<ObjectFromWindow>(
        reinterpret_cast<void*>(GetProcAddress(LoadLibraryA("oleacc.dll"), "AccessibleObjectFromWindow")));
    ASSERT_NE(objectFromWindow, nullptr);
    IAccessible* tab = nullptr;
    ASSERT_EQ(objectFromWindow(Control(IDC_ucTab1_0 + 2), static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                               reinterpret_cast<void**>(&tab)),
              S_OK);
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    VARIANT value{};
    ASSERT_EQ(tab->get_accRole(self, &value), S_OK);
    EXPECT_EQ(value.lVal, ROLE_SYSTEM_PAGETAB);
    BSTR name = nullptr;
    ASSERT_EQ(tab->get_accName(self, &name), S_OK);
    EXPECT_EQ(WinText::Narrow(name), Translator().TranslateEx("MAIN_DIALOG", "TAB_DISPLAY"));
    SysFreeString(name);
    ASSERT_EQ(tab->get_accState(self, &value), S_OK);
    EXPECT_EQ(value.lVal & STATE_SYSTEM_SELECTED, 0);
    Click(IDC_ucTab1_0 + 2);
    ASSERT_EQ(tab->get_accState(self, &value), S_OK);
    EXPECT_NE(value.lVal & STATE_SYSTEM_SELECTED, 0);
    tab->Release();
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

// A width that is no number fails the checks; one beyond 16 bits fails when it is written into the profile.
TEST_F(frmMainTest, AWidthThatIsNoNumberOrTooBigEndsTheSaveWithAReport) {
    for (const auto& [width, number, trail] :
         {std::tuple{"", "20006", "frmMain.RefreshProfileData\r\nfrmMain.CheckData"},
          std::tuple{"40000", "Err.-Number: 6 ", "frmMain.SaveData\r\nfrmMain.RefreshProfileData"}}) {
        reports.clear();
        Click(IDC_ucTab1_0 + 2);
        SetText(IDC_txtRes_Width, width);
        Choose(IDM_mnuFile_Save);
        ASSERT_EQ(reports.size(), 1u) << width;
        EXPECT_NE(reports[0].find(number), std::string::npos) << reports[0];
        EXPECT_NE(reports[0].find(std::string("frmMain.mnuFile_Save_Click\r\n")), std::string::npos);
        EXPECT_NE(reports[0].find(trail), std::string::npos) << reports[0];
    }
}

// The edits of one profile stay with it when another is shown, and a new profile comes through its dialog.
TEST_F(frmMainTest, ProfilesSwitchKeepingTheirEditsAndANewOneComesThroughItsDialog) {
    Click(IDC_ckFreeplay);
    Choose(IDM_mnuProfile_List_0 + 1);
    EXPECT_EQ(Active().ProfileName(), "profile_B");
    Click(IDC_ucTab1_0 + 3);
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
    // The language menu, after the shortcut wizard's entry, lists the two language files, German first.
    ASSERT_EQ(GetMenuItemCount(GetSubMenu(GetSubMenu(GetMenu(main->Handle()), 3), 1)), 2);
    Choose(IDM_mnuOptions_Lang_Item_0);
    EXPECT_EQ(g_cApp->Options().Language(), "DE");
    EXPECT_NE(Text(IDC_cmdStart), english);
    EXPECT_EQ(Text(IDC_ucTab1_0), Translator().TranslateEx("MAIN_DIALOG", "TAB_GAMESETTINGS"));
    char title[64] = {};
    GetMenuStringA(GetMenu(main->Handle()), 0, title, sizeof title, MF_BYPOSITION);
    EXPECT_EQ(std::string(title), Translator().TranslateEx("MAIN_DIALOG", "MNU_FILE"));
}

// Cancel keeps the window and its edits, No leaves the profiles in the settings file as they were, Yes
// saves. A game at a long path with umlauts (the program speaks UTF-8 to Windows) is then started with the
// command line and working directory of the saved profile. The path stays short enough for the stand-in to
// write its record beside itself within Windows' 260 characters.
TEST_F(frmMainTest, ClosingAsksWhetherToSaveAndTheNextStartLaunchesWhatWasSaved) {
    Click(IDC_ckFreeplay);
    EXPECT_TRUE(Close({IDNO}));
    EXPECT_NE(ReadIni().find("[profile_A]\r\nTARVOPATH=" + game + "\r\nFREEPLAY=0\r\n"), std::string::npos);
    main = Main();
    const std::string base = platform::TextOf(dir.Path()) + "\\Spiele\\Tarvolin Größe";
    const std::string folder = base + "\\" + std::string(230 - (base + "\\\\tarvolin.exe").size(), 'a');
    const StandInGame stand(platform::PathOf(folder));
    ASSERT_EQ(stand.Path().size(), 230u);
    SetText(IDC_txtTarvolinPath, stand.Path());
    Click(IDC_ckFreeplay);
    EXPECT_FALSE(Close({IDCANCEL}));
    EXPECT_EQ(Button_GetCheck(Control(IDC_ckFreeplay)), BST_CHECKED);
    window = [](ModalDialog& dialog) {
        if (dialog.Layout() == IDD_frmSave)
            SendMessageA(GetDlgItem(dialog.Handle(), IDC_Command1), BM_CLICK, 0, 0);
    };
    ASSERT_TRUE(Close({IDYES}));
    EXPECT_NE(ReadIni().find("[profile_A]\r\nTARVOPATH=" + stand.Path() + "\r\nFREEPLAY=1\r\n"),
              std::string::npos);
    EXPECT_EQ(boxes.size(), 3u) << boxes.back();
    main = Main();
    ASSERT_NE(main, nullptr);
    EXPECT_EQ(Text(IDC_txtTarvolinPath), stand.Path());
    InstallPlatform(nullptr);
    g_cApp->Options().SetShowStartTarvolinDialog(false);
    Click(IDC_cmdStart);
    const std::optional<LaunchRecord> record = stand.WaitForRecord(std::chrono::seconds(30));
    InstallPlatform(&platform);
    ASSERT_TRUE(record);
    EXPECT_EQ(*record, (LaunchRecord{folder, {"-log", "-res", "1", "-freeplay", "-refresh", "1"}}));
}

}  // namespace

namespace {

// The keys of the window as its message loop hands them to the dialog manager.
void PressKey(HWND window, WPARAM key, bool shift = false) {
    BYTE keys[256] = {};
    keys[VK_SHIFT] = shift ? 0x80 : 0;
    SetKeyboardState(keys);
    MSG message{GetFocus(), WM_KEYDOWN, key, 0, 0, {}};
    IsDialogMessageA(window, &message);
    keys[VK_SHIFT] = 0;
    SetKeyboardState(keys);
}

// Tab walks the game page's controls in their order, each label's field right after it, on to the start
// row and back round to the tabs; Shift+Tab walks back.
TEST_F(frmMainTest, TabWalksThePageAndTheStartRowInOrder) {
    SetFocus(Control(IDC_txtTarvolinPath));
    const int order[] = {IDC_cmdSelectTarvoPath, IDC_ckLogMessages, IDC_ckFreeplay, IDC_cmdLogfile2,
                         IDC_txtCommandLine,     IDC_cmdStart,      IDC_ucTab1_0};
    for (int id : order) {
        PressKey(main->Handle(), VK_TAB);
        EXPECT_EQ(GetFocus(), Control(id)) << id;
    }
    PressKey(main->Handle(), VK_TAB, true);
    EXPECT_EQ(GetFocus(), Control(IDC_cmdStart));
}

}  // namespace
