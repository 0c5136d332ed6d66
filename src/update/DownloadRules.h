// What every download of the update file keeps to, whichever network library carries it: the name it gives
// itself, how its failures are described, the limits no server can push it past, and which redirects it
// follows.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

#include "update/UpdateFile.h"

namespace update {

inline constexpr const char* kAgent = "Pavonel Internet Update";
// The failures' descriptions: no download could be started for the address at all, and everything that
// went wrong once it had started.
inline constexpr const char* kNoInternet = "No internet";
inline constexpr const char* kNotFound = "No internet connection or website not found";

struct Limits {
    std::chrono::milliseconds timeout{10000};  // for the whole download, redirects included
    std::size_t maxBytes = 64 * 1024;          // a longer reply is refused, not cut
    int maxRedirects = 5;
};

// Why the download does not follow redirect number `redirect` (counting from 1) to `target`, "" when it
// does: a redirect stays on the origin's scheme, host and port (so a reply fetched over https never
// continues over plain http), and no more than limits.maxRedirects of them are followed. `shown` is the
// target's address as the user may read it.
std::string RedirectRefusal(const Site& origin, const Site& target, const std::string& shown, int redirect,
                            const Limits& limits);

// Whether a reply with `status` sends the download on to `location` rather than being the answer.
bool IsRedirect(int status, const std::string& location);

// The user's description of the failures every download tells the same way.
inline constexpr const char* kNotWebAddress = "not a web address";
inline constexpr const char* kCutShort = "the connection was closed before the reply was complete";
std::string StatusRefusal(int status);
std::string TimeoutRefusal(const Limits& limits);
std::string LengthRefusal(std::size_t maxBytes);

}  // namespace update
