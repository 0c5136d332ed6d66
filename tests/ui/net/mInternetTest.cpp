// The download against a real HTTP server on 127.0.0.1: good replies come back byte for byte, and every
// way a server or an address goes wrong ends in a failure within the time limit, never on another host.
#include "ui/net/mInternet.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>
#include <algorithm>

#include "support/TestHttpServer.h"

namespace {

using namespace std::chrono_literals;
using mInternet::Download;
using Server = TestHttpServer;

constexpr mInternet::Limits kLimits{1s, 64 * 1024, 5};
constexpr std::chrono::milliseconds kMargin = 1s;
const std::string kUpdate = "true\n/page\nnews 1\nnews 2\n";
const std::string kBinary("\0\x01\xff\xfe garbage\0\0\x7f\r\n\x80", 18);
const std::string kFull(kLimits.maxBytes, 'a');

class mInternetTest : public ::testing::Test {
protected:
    mInternetTest() {
        // A proxy from the developer's environment must not stand between the download and the server.
        qputenv("no_proxy", "127.0.0.1,localhost");
        server.Serve("/update", Server::Ok(kUpdate));
        // From a redirect to "/hop1" on, "/update" is as many redirects away as are allowed.
        for (int hop = 1; hop < kLimits.maxRedirects; ++hop) {
            const std::string next =
                hop + 1 < kLimits.maxRedirects ? "/hop" + std::to_string(hop + 1) : "/update";
            server.Serve("/hop" + std::to_string(hop), Server::Redirect(next));
        }
    }

    std::string Address(const std::string& path) const { return server.Url(path); }

    Server server;
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
    int told = 0;
    std::string body;
    QString failure;
    QElapsedTimer clock;
    clock.start();
    Download download(GetParam().address.empty() ? Address("/") : GetParam().address, 0, kLimits);
    QObject::connect(&download, &Download::Finished,
                     [&](const QByteArray& got) { body = got.toStdString(), ++told; });
    QObject::connect(&download, &Download::Failed, [&](const QString& got) { failure = got, ++told; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return told > 0; }, (kLimits.timeout + 2 * kMargin).count()));
    EXPECT_LE(clock.elapsed(), (kLimits.timeout + kMargin).count());
    EXPECT_EQ(told, 1);
    EXPECT_EQ(body, GetParam().body);
    EXPECT_EQ(failure, GetParam().failure);
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
        Case{"BinaryWithoutLength", Server::Ok(kBinary, false), kBinary},
        Case{"ExactlyTheLimit", Server::Ok(kFull), kFull},
        Case{"ExactlyTheLimitWithoutLength", Server::Ok(kFull, false), kFull},
        Case{"RedirectOnTheSameHost", Server::Redirect("/update"), kUpdate},
        Case{"AbsoluteRedirectOnTheSameHost", Server::Redirect("http://127.0.0.1:{port}/update"), kUpdate},
        Case{"AsManyRedirectsAsAllowed", Server::Redirect("/hop1"), kUpdate},
        Case{"NotFound", Server::Status(404), {}, kNotFound},
        Case{"SuccessOtherThan200", Server::Status(203), {}, kNotFound},
        Case{"OneByteOverTheLimit", Server::Ok(kFull + 'a'), {}, kNotFound},
        Case{"OneByteOverTheLimitWithoutLength", Server::Ok(kFull + 'a', false), {}, kNotFound},
        Case{"Silent", Server::Behaving(Server::Kind::Silent), {}, kNotFound},
        // Faster than the timeout, so only the limit on the whole download can end it.
        Case{"Trickling", {.kind = Server::Kind::Trickle, .interval = 100ms}, {}, kNotFound},
        Case{"CutShort", Server::Behaving(Server::Kind::CutShort), {}, kNotFound},
        Case{"ClosedBeforeItsLength",
             {.body = "short", .headers = {{"Content-Length", "100"}}, .announceLength = false},
             {},
             kNotFound},
        Case{"RedirectLoop", Server::Redirect("/"), {}, kNotFound},
        Case{"RedirectElsewhere", Server::Redirect("http://other.invalid/x"), {}, kNotFound},
        Case{"RedirectToLocalhost", Server::Redirect("http://localhost:{port}/x"), {}, kNotFound},
        Case{"RedirectToAnotherPort", Server::Redirect("http://127.0.0.1:1/x"), {}, kNotFound},
        Case{"RedirectToHttps", Server::Redirect("https://127.0.0.1:{port}/x"), {}, kNotFound},
        Case{"FtpAddress", {}, {}, kNoInternet, "ftp://x/y"},
        Case{"NoAddress", {}, {}, kNoInternet, "not a url"}),
    [](const auto& info) { return std::string(info.param.name); });

// Cancelled at once, while the server is silent, or before a bad address is told: nothing is told
// afterwards, not even when the time limit has passed.
TEST_F(mInternetTest, CancelledDownloadsTellNothing) {
    server.Serve("/silent", Server::Behaving(Server::Kind::Silent));
    const mInternet::Limits limits{300ms, kLimits.maxBytes, kLimits.maxRedirects};
    int told = 0;
    Download answered(Address("/update"), 0, limits);
    // Its own limit is long, so a slow first connection cannot end it before it is cancelled.
    Download waiting(Address("/silent"), 0);
    Download invalid("not a url", 0, limits);
    for (Download* download : {&answered, &waiting, &invalid}) {
        QObject::connect(download, &Download::Finished, [&] { ++told; });
        QObject::connect(download, &Download::Failed, [&] { ++told; });
    }
    answered.Cancel();
    invalid.Cancel();
    ASSERT_TRUE(QTest::qWaitFor([&] {
        return std::ranges::any_of(server.Requests(),
                                   [](const auto& request) { return request.path == "/silent"; });
    }));
    waiting.Cancel();
    QTest::qWait(static_cast<int>((limits.timeout + kMargin).count()));
    EXPECT_EQ(told, 0);
}

}  // namespace
