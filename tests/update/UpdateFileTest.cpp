// The update file: its address for this version, what a reply means, and which pages may be opened.
#include "update/UpdateFile.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "Version.h"

namespace {

using namespace std::string_literals;

TEST(UpdateFileTest, TheAddressCarriesTheVersionAndTheSite) {
    // Version 1.2.3 asks for update-1-2-3.txt: the version text with its dots made dashes.
    std::string name = "update-" + std::string(Version::kText) + ".txt";
    std::replace(name.begin(), name.end() - 4, '.', '-');
    EXPECT_EQ(update::FileName(), name);
    EXPECT_EQ(update::FileAddress(),
              "https://" + std::string(Version::kWebHost) + "/down/pavonel/updates/" + name);
    update::InstallSite(update::Site{"http", "127.0.0.1", 8123});
    EXPECT_EQ(update::FileAddress(), "http://127.0.0.1:8123/down/pavonel/updates/" + name);
    update::InstallSite(std::nullopt);
}

TEST(UpdateFileTest, ReadsTheReplyLineByLine) {
    const struct {
        std::string text;
        bool exists;
        std::string page;
        std::string news;
    } cases[] = {
        {"", false, "", ""},
        {"true\n/download/2.0\nFaster start\nNew maps", true, "/download/2.0",
         "Faster start\r\nNew maps\r\n"},
        {"TRUE \n /x \r\n", true, "/x", "\r\n"},
        {"  True\n", true, "", ""},
        {"false\n/x\nnews", false, "/x", "news\r\n"},
        {"true\r\n/x\r\nnews\r\n", false, "/x", "news\r\r\n\r\n"},  // a carriage return ends only the page
        {"yes\n", false, "", ""},
        {"true\n/p\n\0bin\xff\n"s, true, "/p", "\0bin\xff\r\n\r\n"s},
    };
    for (const auto& c : cases) {
        const update::Reply reply = update::ParseReply(c.text);
        EXPECT_EQ(reply.updateExists, c.exists) << c.text;
        EXPECT_EQ(reply.pagePath, c.page) << c.text;
        EXPECT_EQ(reply.news, c.news) << c.text;
    }
}

// Only a path on the maker's own host becomes an address; everything that could lead elsewhere does not.
TEST(UpdateFileTest, OpensOnlyPagesOnTheSite) {
    const std::string origin = "https://" + std::string(Version::kWebHost);
    EXPECT_EQ(update::PageAddress("/download/2.0?from=1.0#top"), origin + "/download/2.0?from=1.0#top");
    EXPECT_EQ(update::PageAddress("/@other.host/x"), origin + "/@other.host/x");
    const std::string longest = "/" + std::string(update::kMaxPagePath - 1, 'a');
    EXPECT_EQ(update::PageAddress(longest), origin + longest);
    EXPECT_FALSE(update::PageAddress(longest + "a"));
    for (const std::string path : {"", "@other.host/x", "//other.host/x", "http://other/", "/a\\b",
                                   "\\\\other\\x", "/a\tb", "/a\nb", "/a b", "/a\x7f", "other.host/x"})
        EXPECT_FALSE(update::PageAddress(path)) << path;
}

}  // namespace
