// The update window against the tests' HTTP server standing in for the maker's site: the check runs off the
// window's thread while the window answers, shows the news and opens the page of an update, reports a
// failure and stays open, and its button cancels a running check.
#include "winui/dialogs/frmUpdate.h"

#include <commctrl.h>

#include <chrono>

#include "WindowFixture.h"
#include "support/TestHttpServer.h"
#include "update/UpdateFile.h"

namespace {

using namespace std::chrono_literals;

class frmUpdateTest : public WindowFixture {
protected:
    frmUpdateTest() { update::InstallSite(update::Site{"http", "127.0.0.1", server.Port()}); }
    ~frmUpdateTest() override { update::InstallSite(std::nullopt); }

    // Opens the window from the Extras menu and lets `use` play the user.
    void Open(const std::function<void(frmUpdate&)>& use) {
        int opened = 0;
        window = [&](ModalDialog& shown) {
            auto* dialog = dynamic_cast<frmUpdate*>(&shown);
            ASSERT_NE(dialog, nullptr);
            ++opened;
            use(*dialog);
        };
        Choose(IDM_mnuExtra_Update);
        EXPECT_EQ(opened, 1);
    }
    // Serves `reply` as the update file and checks; true once the check has ended.
    bool Check(frmUpdate& dialog, const TestHttpServer::Route& reply) {
        server.Serve("/down/pavonel/updates/" + update::FileName(), reply);
        SendDlgItemMessageA(dialog.Handle(), IDC_cmdSearchUpdates, BM_CLICK, 0, 0);
        for (const auto end = std::chrono::steady_clock::now() + 15s;
             dialog.Searching() && std::chrono::steady_clock::now() < end;) {
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
            Pump();
        }
        return !dialog.Searching();
    }
    static bool Enabled(const frmUpdate& dialog, int id) {
        return IsWindowEnabled(GetDlgItem(dialog.Handle(), id));
    }
    static bool Visible(const frmUpdate& dialog, int id) {
        return (GetWindowLongA(GetDlgItem(dialog.Handle(), id), GWL_STYLE) & WS_VISIBLE) != 0;
    }

    TestHttpServer server;
};

// Without an update the page stays closed; an update shows its news and opens its page, and only a page on
// the site itself.
TEST_F(frmUpdateTest, AnUpdateShowsItsNewsAndOpensItsPage) {
    Open([&](frmUpdate& dialog) {
        const HWND handle = dialog.Handle();
        EXPECT_EQ(GetFocus(), GetDlgItem(handle, IDC_cmdSearchUpdates));
        EXPECT_FALSE(Enabled(dialog, IDC_cmdOpenUpdatePage));
        ASSERT_TRUE(Check(dialog, TestHttpServer::Ok("TRUE \n/download/2.0\nFaster start\nNew maps")));
        EXPECT_EQ(WinText::Item(handle, IDC_lblUpdateInfo), "Faster start\r\nNew maps\r\n");
        EXPECT_EQ(WinText::Item(handle, IDC_lblStatus), "A newer version of Pavonel is available.");
        ASSERT_TRUE(Enabled(dialog, IDC_cmdOpenUpdatePage));
        SendDlgItemMessageA(handle, IDC_cmdOpenUpdatePage, BM_CLICK, 0, 0);
        ASSERT_TRUE(Check(dialog, TestHttpServer::Ok("false\n/download/2.0\nold news")));
        EXPECT_FALSE(Enabled(dialog, IDC_cmdOpenUpdatePage));
        EXPECT_EQ(WinText::Item(handle, IDC_lblStatus), "You are using the newest version of Pavonel.");
        ASSERT_TRUE(Check(dialog, TestHttpServer::Ok("true\n//other.host/x\nnews")));
        EXPECT_FALSE(Enabled(dialog, IDC_cmdOpenUpdatePage));
        EXPECT_EQ(WinText::Item(handle, IDC_lblUpdateInfo), "news\r\n");
        SendDlgItemMessageA(handle, IDC_cmdClose, BM_CLICK, 0, 0);
    });
    ASSERT_EQ(platform.calls.size(), 1u);
    EXPECT_EQ(platform.calls[0].file, server.Url("/download/2.0"));
    EXPECT_EQ(server.Requests().back().agent, "Pavonel Internet Update");
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_NE(reports[0].find("//other.host/x"), std::string::npos) << reports[0];
}

// A failed check is reported and says why; the window stays open for another try.
TEST_F(frmUpdateTest, AFailureIsReportedAndTheWindowStaysOpen) {
    Open([&](frmUpdate& dialog) {
        ASSERT_TRUE(Check(dialog, TestHttpServer::Status(404)));
        EXPECT_EQ(WinText::Item(dialog.Handle(), IDC_lblStatus), "The check failed: HTTP status 404");
        EXPECT_FALSE(Enabled(dialog, IDC_cmdOpenUpdatePage));
        EXPECT_TRUE(IsWindow(dialog.Handle()));
        ASSERT_TRUE(Check(dialog, TestHttpServer::Ok("false\n")));
        EXPECT_EQ(reports.size(), 1u);
    });
    ASSERT_EQ(reports.size(), 1u);
    EXPECT_NE(reports[0].find("No internet connection or website not found"), std::string::npos)
        << reports[0];
}

// While a check runs the busy bar shows and the button cancels it; closing the window ends it too.
TEST_F(frmUpdateTest, TheCheckButtonCancelsARunningCheck) {
    server.Serve("/down/pavonel/updates/" + update::FileName(),
                 TestHttpServer::Behaving(TestHttpServer::Kind::Silent));
    Open([&](frmUpdate& dialog) {
        const HWND handle = dialog.Handle();
        EXPECT_FALSE(Visible(dialog, IDC_prgSearching));
        SendDlgItemMessageA(handle, IDC_cmdSearchUpdates, BM_CLICK, 0, 0);
        ASSERT_TRUE(dialog.Searching());
        EXPECT_TRUE(Visible(dialog, IDC_prgSearching));
        EXPECT_EQ(WinText::Item(handle, IDC_cmdSearchUpdates), "&Cancel");
        EXPECT_EQ(WinText::Item(handle, IDC_lblStatus), "Checking for updates...");
        SendDlgItemMessageA(handle, IDC_cmdSearchUpdates, BM_CLICK, 0, 0);
        EXPECT_FALSE(dialog.Searching());
        EXPECT_FALSE(Visible(dialog, IDC_prgSearching));
        EXPECT_EQ(WinText::Item(handle, IDC_lblStatus), "");
        EXPECT_EQ(WinText::Item(handle, IDC_cmdSearchUpdates), "&Check Now");
        // A check still running when the window closes ends with it.
        SendDlgItemMessageA(handle, IDC_cmdSearchUpdates, BM_CLICK, 0, 0);
        SendMessageA(handle, WM_COMMAND, IDCANCEL, 0);
        EXPECT_FALSE(dialog.Searching());
    });
    EXPECT_TRUE(reports.empty());
}

}  // namespace
