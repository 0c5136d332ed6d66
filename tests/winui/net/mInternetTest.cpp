// The WinINet download against the tests' HTTP server on 127.0.0.1: good replies come back byte for byte,
// every way a server or an address goes wrong ends in one failure within the time limit, never on another
// host, and a cancelled download tells nothing.
#include "winui/net/mInternet.h"

#include <gtest/gtest.h>

#include <chrono>

#include "support/DownloadCases.h"

namespace {

using namespace std::chrono_literals;
using mInternet::Download;
using mInternet::Outcome;
using Server = TestHttpServer;
using Clock = std::chrono::steady_clock;

constexpr UINT kEnded = WM_APP + 7;
constexpr mInternet::Limits kLimits = kDownloadCaseLimits;
constexpr std::chrono::milliseconds kMargin = 1500ms;

class mInternetTest : public ::testing::Test {
protected:
    mInternetTest() { ServeDownloadRoutes(server); }
    ~mInternetTest() override { DestroyWindow(window); }

    // Runs the window's messages until a download tells (the one with `id`, or any for 0) or `wait` has
    // passed; how many times it told.
    int Wait(std::chrono::milliseconds wait, WPARAM id = 0) const {
        int told = 0;
        for (const auto end = Clock::now() + wait; Clock::now() < end;) {
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
            MSG message;
            while (PeekMessageA(&message, window, 0, 0, PM_REMOVE))
                told += message.message == kEnded && (id == 0 || message.wParam == id);
            if (told > 0)
                return told;
        }
        return told;
    }

    Server server;
    HWND window = CreateWindowExA(0, "STATIC", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
};

class mInternetDownload : public mInternetTest, public ::testing::WithParamInterface<DownloadCase> {};

TEST_P(mInternetDownload, EndsOnceInTimeOnlyAskingItsOwnHost) {
    server.Serve("/", GetParam().route);
    const auto start = Clock::now();
    Download download(GetParam().address.empty() ? server.Url("/") : GetParam().address, 0, window, kEnded,
                      kLimits);
    ASSERT_EQ(Wait(kLimits.timeout + kMargin, download.Id()), 1);
    EXPECT_LE(Clock::now() - start, kLimits.timeout + kMargin);
    const std::optional<Outcome> outcome = download.Take();
    ASSERT_TRUE(outcome);
    EXPECT_EQ(outcome->finished, *GetParam().failure == '\0') << outcome->detail;
    EXPECT_EQ(outcome->body, GetParam().body);
    EXPECT_EQ(outcome->description, GetParam().failure);
    EXPECT_EQ(Wait(300ms), 0);
    ExpectOnlyItsOwnHostAsked(server);
}

INSTANTIATE_TEST_SUITE_P(mInternet, mInternetDownload, ::testing::ValuesIn(DownloadCases()),
                         DownloadCaseName);

// Cancelled at once, or once the server has the request and keeps silent: nothing is told, not even when
// the time limit has passed, which would have ended both.
TEST_F(mInternetTest, CancelledDownloadsTellNothing) {
    server.Serve("/silent", Server::Behaving(Server::Kind::Silent));
    server.Serve("/quiet", Server::Behaving(Server::Kind::Silent));
    Download atOnce(server.Url("/silent"), 0, window, kEnded, kLimits);
    atOnce.Cancel();
    Download waiting(server.Url("/quiet"), 0, window, kEnded, kLimits);
    const auto asked = [this] {
        for (const Server::Request& request : server.Requests()) {
            if (request.path == "/quiet")
                return true;
        }
        return false;
    };
    for (const auto end = Clock::now() + 5s; !asked() && Clock::now() < end;)
        Sleep(10);
    ASSERT_TRUE(asked());
    waiting.Cancel();
    EXPECT_EQ(Wait(kLimits.timeout + 500ms), 0);
    EXPECT_FALSE(atOnce.Take());
    EXPECT_FALSE(waiting.Take());
}

}  // namespace
