// The WinINet download against the tests' HTTP server on 127.0.0.1: good replies come back byte for byte,
// every way a server or an address goes wrong ends in one failure within the time limit, never on another
// host, and a cancelled download tells nothing.
#include "winui/net/mInternet.h"

#include <gtest/gtest.h>

#include <chrono>

#include "support/TestHttpServer.h"

namespace {

using namespace std::chrono_literals;
using mInternet::Download;
using mInternet::Outcome;
using Server = TestHttpServer;
using Clock = std::chrono::steady_clock;

constexpr UINT kEnded = WM_APP + 7;
constexpr mInternet::Limits kLimits{1s, 64 * 1024, 5};
constexpr std::chrono::milliseconds kMargin = 1500ms;
const std::string kUpdate = "true\n/page\nnews 1\nnews 2\n";
const std::string kFull(kLimits.maxBytes, 'a');

class mInternetTest : public ::testing::Test {
protected:
    mInternetTest() {
        server.Serve("/update", Server::Ok(kUpdate));
        for (int hop = 1; hop < kLimits.maxRedirects; ++hop) {
            const std::string next =
                hop + 1 < kLimits.maxRedirects ? "/hop" + std::to_string(hop + 1) : "/update";
            server.Serve("/hop" + std::to_string(hop), Server::Redirect(next));
        }
    }
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

struct Case {
    const char* name;
    Server::Route route;  // served at "/"
    std::string body{};
    const char* failure = "";  // empty when the download finishes
    std::string address{};     // when not the server's "/"
};

void PrintTo(const Case& c, std::ostream* out) {
    *out << c.name;
}

class mInternetDownload : public mInternetTest, public ::testing::WithParamInterface<Case> {};

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
    EXPECT_LE(server.Requests().size(), static_cast<std::size_t>(kLimits.maxRedirects) + 1);
    for (const Server::Request& request : server.Requests()) {
        EXPECT_EQ(request.host, server.Host()) << request.path;
        EXPECT_EQ(request.agent, mInternet::kAgent);
    }
}

using mInternet::kNoInternet;
using mInternet::kNotFound;

INSTANTIATE_TEST_SUITE_P(
    mInternet, mInternetDownload,
    ::testing::Values(
        Case{"Empty", Server::Ok("")}, Case{"UpdateFile", Server::Ok(kUpdate), kUpdate},
        Case{"ExactlyTheLimitWithoutLength", Server::Ok(kFull, false), kFull},
        Case{"RedirectOnTheSameHost", Server::Redirect("/update"), kUpdate},
        Case{"AbsoluteRedirectOnTheSameHost", Server::Redirect("http://127.0.0.1:{port}/update"), kUpdate},
        Case{"AsManyRedirectsAsAllowed", Server::Redirect("/hop1"), kUpdate},
        Case{"NotFound", Server::Status(404), {}, kNotFound},
        Case{"SuccessOtherThan200", Server::Status(203), {}, kNotFound},
        Case{"OneByteOverTheLimit", Server::Ok(kFull + 'a'), {}, kNotFound},
        Case{"OneByteOverTheLimitWithoutLength", Server::Ok(kFull + 'a', false), {}, kNotFound},
        Case{"Silent", Server::Behaving(Server::Kind::Silent), {}, kNotFound},
        Case{"Trickling", {.kind = Server::Kind::Trickle, .interval = 100ms}, {}, kNotFound},
        Case{"CutShort", Server::Behaving(Server::Kind::CutShort), {}, kNotFound},
        Case{"ClosedBeforeItsLength",
             {.body = "short", .headers = {{"Content-Length", "100"}}, .announceLength = false},
             {},
             kNotFound},
        Case{"RedirectLoop", Server::Redirect("/"), {}, kNotFound},
        Case{"RedirectElsewhere", Server::Redirect("http://other.invalid/x"), {}, kNotFound},
        Case{"RedirectToLocalhost", Server::Redirect("http://localhost:{port}/x"), {}, kNotFound},
        Case{"RedirectToHttps", Server::Redirect("https://127.0.0.1:{port}/x"), {}, kNotFound},
        Case{"FtpAddress", {}, {}, kNoInternet, "ftp://x/y"},
        Case{"NoAddress", {}, {}, kNoInternet, "not a url"}),
    [](const auto& info) { return std::string(info.param.name); });

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
