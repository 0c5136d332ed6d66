// The update window against a real HTTP server on 127.0.0.1 standing in for the maker's site: news and the
// update page when there is an update, the report when the check fails, and never a page elsewhere.
#include "ui/dialogs/frmUpdate.h"

#include <gtest/gtest.h>

#include <QPlainTextEdit>
#include <QProgressBar>

#include "error/mError.h"
#include "support/TestHttpServer.h"
#include "ui/dialogs/UiFixture.h"
#include "update/UpdateFile.h"

namespace {

class frmUpdateTest : public AppFixture {
protected:
    frmUpdateTest() {
        qputenv("no_proxy", "127.0.0.1,localhost");
        update::InstallSite(update::Site{"http", "127.0.0.1", server.Port()});
        dialog.InitDialog();
        dialog.show();
    }
    ~frmUpdateTest() override { update::InstallSite(std::nullopt); }

    // Serves `reply` as the update file and checks; true once the check has ended.
    bool Check(const TestHttpServer::Route& reply) {
        server.Serve("/down/pavonel/updates/" + update::FileName(), reply);
        Click("cmdSearchUpdates");
        return QTest::qWaitFor([this] { return !dialog.Searching(); }, 15000);
    }
    void Click(const char* button) { QTest::mouseClick(Find(dialog, button), Qt::LeftButton); }
    QString Status() { return Find<QLabel>(dialog, "lblStatus")->text(); }

    TestHttpServer server;
    frmUpdate dialog;
};

// Without an update the page stays closed; an update shows its news and opens its page.
TEST_F(frmUpdateTest, AnUpdateShowsItsNewsAndOpensItsPage) {
    for (const char* reply : {"", "false\n/download/2.0\nold news"}) {
        ASSERT_TRUE(Check(TestHttpServer::Ok(reply)));
        EXPECT_FALSE(Find(dialog, "cmdOpenUpdatePage")->isEnabled()) << reply;
        EXPECT_EQ(Status(), "You are using the newest version of Pavonel.");
    }
    ASSERT_TRUE(Check(TestHttpServer::Ok("TRUE \n/download/2.0\nFaster start\nNew maps")));
    EXPECT_EQ(Find<QPlainTextEdit>(dialog, "lblUpdateInfo")->toPlainText(), "Faster start\nNew maps\n");
    EXPECT_EQ(Status(), "A newer version of Pavonel is available.");
    ASSERT_TRUE(Find(dialog, "cmdOpenUpdatePage")->isEnabled());
    Click("cmdOpenUpdatePage");
    ASSERT_EQ(platform.calls.size(), 1u);
    EXPECT_EQ(platform.calls[0].file, server.Url("/download/2.0"));
    EXPECT_EQ(server.Requests().back().agent, "Pavonel Internet Update");
    EXPECT_TRUE(ui.reports.empty());
}

// A page that could lead anywhere else is reported and never opened; the news still show.
TEST_F(frmUpdateTest, APageOffTheSiteOpensNothing) {
    for (const char* page : {"@other.host/x", "//other.host/x", "http://other/", "/a\\b", "/a\x01", "/a b"}) {
        ASSERT_TRUE(Check(TestHttpServer::Ok(std::string("true\n") + page + "\nnews")));
        EXPECT_FALSE(Find(dialog, "cmdOpenUpdatePage")->isEnabled()) << page;
        Click("cmdOpenUpdatePage");
        ASSERT_FALSE(ui.reports.empty());
        EXPECT_EQ(ui.reports.back().number, mError::kObjectError | update::kForeignUpdatePage);
        EXPECT_NE(ui.reports.back().description.find(page), std::string::npos);
    }
    EXPECT_EQ(ui.reports.size(), 6u);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(frmUpdateTest, AFailureIsReportedAndTheWindowStays) {
    ASSERT_TRUE(Check(TestHttpServer::Status(404)));
    ASSERT_EQ(ui.reports.size(), 1u);
    EXPECT_EQ(ui.reports[0].description, "No internet connection or website not found");
    EXPECT_NE(ui.reports[0].source.find("frmUpdate.SearchUpdates"), std::string::npos);
    EXPECT_EQ(Status(), "The check failed: HTTP status 404");
    EXPECT_FALSE(Find(dialog, "cmdOpenUpdatePage")->isEnabled());
    EXPECT_TRUE(dialog.isVisible());
}

// While a check runs the busy bar shows and the button cancels it; closing the window ends it too.
TEST_F(frmUpdateTest, ARunningCheckCanBeCancelled) {
    server.Serve("/down/pavonel/updates/" + update::FileName(),
                 TestHttpServer::Behaving(TestHttpServer::Kind::Silent));
    Click("cmdSearchUpdates");
    EXPECT_TRUE(dialog.Searching());
    EXPECT_TRUE(Find<QProgressBar>(dialog, "prgSearching")->isVisible());
    EXPECT_EQ(Find(dialog, "cmdSearchUpdates")->text().remove('&'), "Cancel");
    Click("cmdSearchUpdates");
    EXPECT_FALSE(dialog.Searching());
    EXPECT_EQ(Find(dialog, "cmdSearchUpdates")->text().remove('&'), "Check Now");
    Click("cmdSearchUpdates");
    Click("cmdClose");
    EXPECT_FALSE(dialog.Searching());
    QTest::qWait(50);
    EXPECT_TRUE(ui.reports.empty());
}

}  // namespace
