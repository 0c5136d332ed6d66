// The update file on the maker's web site: where it is for this version, what its reply means, and which
// update page it may send the user to.
//
// The file is plain text with lines ending in line feeds. Its first line is "true" (in any case, blanks
// around it allowed) when a newer version exists; its second line is the path of the update page on the
// maker's site ("/download/1.2.0"), a carriage return at its end dropped; every later line is news to show.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace update {

// The failures of a check: the download failed (its description says how), or the file names an update
// page that is not on the site.
inline constexpr int32_t kDownloadFailed = 20009;
inline constexpr int32_t kForeignUpdatePage = 20010;

// The site the update file comes from: the maker's host over https in the program, a local test server in
// the tests.
struct Site {
    std::string scheme;
    std::string host;
    int32_t port = 0;  // 0: the scheme's own

    // "scheme://host[:port]".
    std::string Origin() const;
};

// The maker's site, unless a test installed another; `site` nullopt returns to the maker's.
const Site& CurrentSite();
void InstallSite(std::optional<Site> site);

// "update-<major>-<minor>-<revision>.txt" of this program's version.
std::string FileName();
// The file's address on the current site: its origin, "/down/pavonel/updates/" and the file name.
std::string FileAddress();

struct Reply {
    bool updateExists = false;
    std::string pagePath;  // the second line without its carriage return and surrounding blanks
    std::string news;      // every later line, as it is, followed by CR LF
};
Reply ParseReply(std::string_view text);

// The longest page path taken: what browsers and servers accept widely. A page address is handed to the
// desktop's browser, which no file from a server should be able to flood.
inline constexpr std::size_t kMaxPagePath = 2048;

// The update page for `path` on the current site, or nothing when the path could lead anywhere else: it
// must start with a single "/", be at most kMaxPagePath long and hold no backslash, no blank and no control
// character.
std::optional<std::string> PageAddress(const std::string& path);

// The update page of `reply`'s path; raises kForeignUpdatePage, naming the path, when PageAddress refuses it.
std::string CheckedPageAddress(const Reply& reply);

}  // namespace update
