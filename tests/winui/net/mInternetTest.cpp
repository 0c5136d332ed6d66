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

    // Runs the window's messages until `download` tells or `wait` has passed; how many times it told.
    int Wait(const Download& download, std::chrono::milliseconds wait) const {
        int told = 0;
        for (const auto end = Clock::now() + wait; Clock::now() < end;) {
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
            MSG message;
            while (PeekMessageA(&message, window, 0, 0, PM_REMOVE))
                told += message.message == kEnded && message.wParam == download.Id();
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
    ASSERT_EQ(Wait(download, kLimits.timeout + kMargin), 1);
    EXPECT_LE(Clock::now() - start, kLimits.timeout + kMargin);
    const std::optional<Outcome> outcome = download.Take();
    ASSERT_TRUE(outcome);
    EXPECT_EQ(outcome->finished, *GetParam().failure == '\0') << outcome->detail;
    EXPECT_EQ(outcome->body, GetParam().body);
    EXPECT_EQ(outcome->description, GetParam().failure);
    EXPECT_EQ(Wait(download, 300ms), 0);
    ExpectOnlyItsOwnHostAsked(server);
}

INSTANTIATE_TEST_SUITE_P(mInternet, mInternetDownload, ::testing::ValuesIn(DownloadCases()),
                         DownloadCaseName);

// Cancelled while the server is silent, or at once: nothing is told, not even when the time limit passed.
TEST_F(mInternetTest, CancelledDownloadsTellNothing) {
    server.Serve("/silent", Server::Behaving(Server::Kind::Silent));
    Download answered(server.Url("/update"), 0, window, kEnded, kLimits);
    Download waiting(server.Url("/silent"), 0, window, kEnded, kLimits);
    answered.Cancel();
    const auto asked = [this] {
        for (const Server::Request& request : server.Requests()) {
            if (request.path == "/silent")
                return true;
        }
        return false;
    };
    for (const auto end = Clock::now() + 5s; !asked() && Clock::now() < end;)
        Sleep(10);
    ASSERT_TRUE(asked());
    waiting.Cancel();
    EXPECT_EQ(Wait(answered, kLimits.timeout + 500ms) + Wait(waiting, 100ms), 0);
    EXPECT_FALSE(answered.Take());
    EXPECT_FALSE(waiting.Take());
}

}  // namespace
