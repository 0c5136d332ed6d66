#include "support/DownloadCases.h"

namespace {

using namespace std::chrono_literals;
using Server = TestHttpServer;
using update::kNoInternet;
using update::kNotFound;

const std::string kUpdate = "true\n/page\nnews 1\nnews 2\n";

}  // namespace

std::vector<DownloadCase> DownloadCases() {
    const std::string binary("\0\x01\xff\xfe garbage\0\0\x7f\r\n\x80", 18);
    const std::string full(kDownloadCaseLimits.maxBytes, 'a');
    return {
        {"Empty", Server::Ok("")},
        {"UpdateFile", Server::Ok(kUpdate), kUpdate},
        {"BinaryWithoutLength", Server::Ok(binary, false), binary},
        {"ExactlyTheLimit", Server::Ok(full), full},
        {"ExactlyTheLimitWithoutLength", Server::Ok(full, false), full},
        {"RedirectOnTheSameHost", Server::Redirect("/update"), kUpdate},
        {"AbsoluteRedirectOnTheSameHost", Server::Redirect("http://127.0.0.1:{port}/update"), kUpdate},
        {"AsManyRedirectsAsAllowed", Server::Redirect("/hop1"), kUpdate},
        {"NotFound", Server::Status(404), {}, kNotFound},
        {"SuccessOtherThan200", Server::Status(203), {}, kNotFound},
        {"OneByteOverTheLimit", Server::Ok(full + 'a'), {}, kNotFound},
        {"OneByteOverTheLimitWithoutLength", Server::Ok(full + 'a', false), {}, kNotFound},
        {"Silent", Server::Behaving(Server::Kind::Silent), {}, kNotFound},
        // Faster than the time limit, so only the limit on the whole download can end it.
        {"Trickling", {.kind = Server::Kind::Trickle, .interval = 100ms}, {}, kNotFound},
        {"CutShort", Server::Behaving(Server::Kind::CutShort), {}, kNotFound},
        {"ClosedBeforeItsLength",
         {.body = "short", .headers = {{"Content-Length", "100"}}, .announceLength = false},
         {},
         kNotFound},
        {"RedirectLoop", Server::Redirect("/"), {}, kNotFound},
        {"RedirectElsewhere", Server::Redirect("http://other.invalid/x"), {}, kNotFound},
        {"RedirectToLocalhost", Server::Redirect("http://localhost:{port}/x"), {}, kNotFound},
        {"RedirectToAnotherPort", Server::Redirect("http://127.0.0.1:1/x"), {}, kNotFound},
        {"RedirectToHttps", Server::Redirect("https://127.0.0.1:{port}/x"), {}, kNotFound},
        {"FtpAddress", {}, {}, kNoInternet, "ftp://x/y"},
        {"NoAddress", {}, {}, kNoInternet, "not a url"},
    };
}

void ServeDownloadRoutes(TestHttpServer& server) {
    server.Serve("/update", Server::Ok(kUpdate));
    const int hops = kDownloadCaseLimits.maxRedirects;
    for (int hop = 1; hop < hops; ++hop)
        server.Serve("/hop" + std::to_string(hop),
                     Server::Redirect(hop + 1 < hops ? "/hop" + std::to_string(hop + 1) : "/update"));
}

void ExpectOnlyItsOwnHostAsked(const TestHttpServer& server) {
    const std::vector<TestHttpServer::Request> requests = server.Requests();
    EXPECT_LE(requests.size(), static_cast<std::size_t>(kDownloadCaseLimits.maxRedirects) + 1);
    for (const TestHttpServer::Request& request : requests) {
        EXPECT_EQ(request.host, server.Host()) << request.path;
        EXPECT_EQ(request.agent, update::kAgent);
    }
}

void PrintTo(const DownloadCase& c, std::ostream* out) {
    *out << c.name;
}

std::string DownloadCaseName(const testing::TestParamInfo<DownloadCase>& info) {
    return info.param.name;
}
