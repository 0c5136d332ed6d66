#include "update/DownloadRules.h"

#include "base/mString.h"

namespace update {
namespace {

// The port a site is reached on: its own, or its scheme's (80, 443); 0 for a scheme without one.
int32_t EffectivePort(const Site& site) {
    if (site.port != 0)
        return site.port;
    const std::string scheme = mString::LCase(site.scheme);
    return scheme == "http" ? 80 : scheme == "https" ? 443 : 0;
}

}  // namespace

std::string RedirectRefusal(const Site& origin, const Site& target, const std::string& shown, int redirect,
                            const Limits& limits) {
    const bool sameSite = mString::LCase(target.scheme) == mString::LCase(origin.scheme) &&
                          mString::LCase(target.host) == mString::LCase(origin.host) &&
                          EffectivePort(target) == EffectivePort(origin) && EffectivePort(origin) != 0;
    if (!sameSite)
        return "sent on to " + shown;
    if (redirect > limits.maxRedirects)
        return "more than " + std::to_string(limits.maxRedirects) + " redirects";
    return {};
}

bool IsRedirect(int status, const std::string& location) {
    return status >= 300 && status < 400 && !location.empty();
}

std::string StatusRefusal(int status) {
    return "HTTP status " + std::to_string(status);
}

std::string TimeoutRefusal(const Limits& limits) {
    const auto tenths = limits.timeout.count() / 100;
    std::string seconds = std::to_string(tenths / 10);
    if (tenths % 10 != 0)
        seconds += "." + std::to_string(tenths % 10);
    return "no complete answer within " + seconds + " s";
}

std::string LengthRefusal(std::size_t maxBytes) {
    return "the reply is longer than " + std::to_string(maxBytes / 1024) + " KiB";
}

}  // namespace update
