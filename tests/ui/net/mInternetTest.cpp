// The download against a real HTTP server on 127.0.0.1: good replies come back byte for byte, and every
// way a server or an address goes wrong ends in a failure within the time limit, never on another host.
#include "ui/net/mInternet.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>
#include <algorithm>

#include "support/DownloadCases.h"

namespace {

using namespace std::chrono_literals;
using mInternet::Download;
using Server = TestHttpServer;

constexpr mInternet::Limits kLimits = kDownloadCaseLimits;
constexpr std::chrono::milliseconds kMargin = 1s;

class mInternetTest : public ::testing::Test {
protected:
    mInternetTest() {
        // A proxy from the developer's environment must not stand between the download and the server.
        qputenv("no_proxy", "127.0.0.1,localhost");
        ServeDownloadRoutes(server);
    }

    std::string Address(const std::string& path) const { return server.Url(path); }

    Server server;
};

class mInternetDownload : public mInternetTest, public ::testing::WithParamInterface<DownloadCase> {};

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
    ExpectOnlyItsOwnHostAsked(server);
}

INSTANTIATE_TEST_SUITE_P(mInternet, mInternetDownload, ::testing::ValuesIn(DownloadCases()),
                         DownloadCaseName);

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
