#include <windows.h>

#include <commctrl.h>
#include <windowsx.h>

#include "WindowFixture.h"
#include "winui/controls/ucTab.h"
#include "winui/dialogs/frmInfo.h"

namespace {

using SmallWindowsTest = WindowFixture;

// The options window opens from the Extras menu on the current options, changes them only with OK, and
// its Browse asks the file chooser for an editor.
TEST_F(SmallWindowsTest, ChangesTheOptionsOnlyWhenConfirmed) {
    Options& options = App().Options();
    options.SetEditorPath("C:\\Tools\\edit.exe");
    options.SetShowStartTarvolinDialog(true);
    bool confirm = false;
    int opened = 0;
    window = [&](ModalDialog& shown) {
        ASSERT_EQ(shown.Layout(), IDD_frmOptions);
        ++opened;
        const HWND dialog = shown.Handle();
        EXPECT_EQ(WinText::Item(dialog, IDC_txtEditorPath), "C:\\Tools\\edit.exe");
        EXPECT_EQ(Button_GetCheck(GetDlgItem(dialog, IDC_ckSafetyPromptBeforeStartOfTarvolin)), BST_CHECKED);
        EXPECT_EQ(GetFocus(), GetDlgItem(dialog, IDC_txtEditorPath));
        SendDlgItemMessageA(dialog, IDC_cmdEditorPath, BM_CLICK, 0, 0);
        WinText::Set(GetDlgItem(dialog, IDC_txtEditorPath), "D:\\Ä\\notes.exe");
        SendDlgItemMessageA(dialog, IDC_ckSafetyPromptBeforeStartOfTarvolin, BM_CLICK, 0, 0);
        SendDlgItemMessageA(dialog, confirm ? IDC_cmdOk : IDC_cmdCancel, BM_CLICK, 0, 0);
    };
    Choose(IDM_mnuExtra_Options);
    EXPECT_EQ(options.EditorPath(), "C:\\Tools\\edit.exe");
    EXPECT_TRUE(options.ShowStartTarvolinDialog());
    confirm = true;
    Choose(IDM_mnuExtra_Options);
    EXPECT_EQ(opened, 2);
    EXPECT_EQ(options.EditorPath(), "D:\\Ä\\notes.exe");
    EXPECT_FALSE(options.ShowStartTarvolinDialog());
    EXPECT_EQ(choosers.size(), 2u);
    EXPECT_TRUE(reports.empty());
}

// The about box opens from the Help menu on its first page; its tabs show one page at a time, and its links
// open the web page and a mail to the maker.
TEST_F(SmallWindowsTest, TheAboutBoxShowsOnePageAtATimeAndItsLinksOpen) {
    bool shown = false;
    window = [&](ModalDialog& opened) {
        auto* about = dynamic_cast<frmInfo*>(&opened);
        ASSERT_NE(about, nullptr);
        shown = true;
        const auto visible = [&](int id) {
            const HWND page = GetParent(FindControl(about->Handle(), id));
            return (GetWindowLongA(page, GWL_STYLE) & WS_VISIBLE) != 0;
        };
        EXPECT_EQ(WinText::Of(FindControl(about->Handle(), IDC_lblProgram)),
                  "Pavonel " + Application::VersionText());
        EXPECT_TRUE(visible(IDC_lblDescription));
        EXPECT_FALSE(visible(IDC_lblCredits));
        SendDlgItemMessageA(about->Handle(), IDC_ucTab2_0 + 2, BM_CLICK, 0, 0);
        EXPECT_EQ(about->ActivePage(), 2);
        EXPECT_FALSE(visible(IDC_lblDescription));
        EXPECT_TRUE(visible(IDC_lblEmailLink));
        // A painted link leaves the tab area's fill to the rest of the program.
        HDC memory = CreateCompatibleDC(nullptr);
        SendMessageA(FindControl(about->Handle(), IDC_lblWebpageLink), WM_PRINTCLIENT,
                     reinterpret_cast<WPARAM>(memory), PRF_CLIENT);
        DeleteDC(memory);
        EXPECT_EQ(GetObjectType(ucTab::FillBrush()), static_cast<DWORD>(OBJ_BRUSH));
        for (int link : {IDC_lblWebpageLink, IDC_lblEmailLink}) {
            NMHDR click{FindControl(about->Handle(), link), static_cast<UINT_PTR>(link), NM_CLICK};
            SendMessageA(about->Handle(), WM_NOTIFY, static_cast<WPARAM>(link),
                         reinterpret_cast<LPARAM>(&click));
        }
        SendDlgItemMessageA(about->Handle(), IDC_cmdClose, BM_CLICK, 0, 0);
    };
    Choose(IDM_mnuHelp_About);
    EXPECT_TRUE(shown);
    ASSERT_EQ(platform.calls.size(), 2u);
    EXPECT_EQ(platform.calls[0].file, Application::WebpageAddress());
    EXPECT_EQ(platform.calls[1].file, Application::ContactAddress());
    EXPECT_TRUE(reports.empty());
}

}  // namespace
