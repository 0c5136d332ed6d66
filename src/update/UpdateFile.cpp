#include "update/UpdateFile.h"

#include "Version.h"
#include "base/mString.h"
#include "error/mError.h"

namespace update {
namespace {

constexpr std::string_view kUpdateFolder = "/down/pavonel/updates/";

std::optional<Site>& Installed() {
    static std::optional<Site> site;
    return site;
}

std::string_view WithoutCarriageReturn(std::string_view line) {
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    return line;
}

bool IsSafePathCharacter(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte > 0x20 && byte != 0x7F && c != '\\';
}

}  // namespace

std::string Site::Origin() const {
    return scheme + "://" + host + (port != 0 ? ":" + std::to_string(port) : std::string());
}

const Site& CurrentSite() {
    static const Site maker{"https", Version::kWebHost, 0};
    return Installed() ? *Installed() : maker;
}

void InstallSite(std::optional<Site> site) {
    Installed() = std::move(site);
}

std::string FileName() {
    return "update-" + std::to_string(Version::kMajor) + "-" + std::to_string(Version::kMinor) + "-" +
           std::to_string(Version::kRevision) + ".txt";
}

std::string FileAddress() {
    return CurrentSite().Origin() + std::string(kUpdateFolder) + FileName();
}

Reply ParseReply(std::string_view text) {
    Reply reply;
    if (text.empty())
        return reply;
    std::size_t number = 0;
    std::size_t begin = 0;
    while (begin <= text.size()) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        const std::string_view line = text.substr(begin, end - begin);
        if (number == 0)
            reply.updateExists = mString::LCase(mString::TrimView(line)) == "true";
        else if (number == 1)
            reply.pagePath = std::string(mString::TrimView(WithoutCarriageReturn(line)));
        else
            reply.news.append(line).append(mString::kCrLf);
        ++number;
        begin = end + 1;
    }
    return reply;
}

std::optional<std::string> PageAddress(const std::string& path) {
    if (!path.starts_with('/') || path.starts_with("//") || path.size() > kMaxPagePath)
        return std::nullopt;
    for (const char c : path) {
        if (!IsSafePathCharacter(c))
            return std::nullopt;
    }
    return CurrentSite().Origin() + path;
}

std::string CheckedPageAddress(const Reply& reply) {
    const std::optional<std::string> page = PageAddress(reply.pagePath);
    if (!page) {
        mError::RaiseError(kForeignUpdatePage, "The update file names a page outside " +
                                                   CurrentSite().Origin() + ": " + reply.pagePath);
    }
    return *page;
}

}  // namespace update
