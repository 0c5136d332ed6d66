// Which redirects a download follows: only on its own site, named in any case and with its port written
// or left to the scheme, and only so many.
#include "update/DownloadRules.h"

#include <gtest/gtest.h>

namespace {

TEST(DownloadRulesTest, FollowsRedirectsOnlyOnItsOwnSite) {
    const update::Limits limits;
    const update::Site origin{"https", "www.example.org", 0};
    const struct {
        update::Site target;
        bool followed;
    } cases[] = {
        {{"https", "www.example.org", 0}, true},  {{"HTTPS", "WWW.Example.ORG", 443}, true},
        {{"http", "www.example.org", 0}, false},  {{"https", "www.example.org", 8443}, false},
        {{"https", "example.org", 0}, false},     {{"https", "", 0}, false},
        {{"ftp", "www.example.org", 443}, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(update::RedirectRefusal(origin, c.target, "there", 1, limits).empty(), c.followed)
            << c.target.Origin();
    }
    EXPECT_EQ(update::RedirectRefusal(origin, origin, "there", limits.maxRedirects, limits), "");
    EXPECT_EQ(update::RedirectRefusal(origin, origin, "there", limits.maxRedirects + 1, limits),
              "more than 5 redirects");
    EXPECT_EQ(update::RedirectRefusal(origin, {"http", "evil", 0}, "http://evil/x", 1, limits),
              "sent on to http://evil/x");
    // A scheme without a port of its own is no site to stay on.
    const update::Site odd{"gopher", "host", 0};
    EXPECT_NE(update::RedirectRefusal(odd, odd, "there", 1, limits), "");
}

}  // namespace
