// The download of one small text file from the web through WinINet, never from a cache, through the
// system's proxy settings, as "Pavonel Internet Update". A reply counts only with HTTP status 200, complete
// and within the limits: the whole download ends after its time limit (also when data keeps trickling in),
// a reply longer than its byte limit is a failure rather than a cut text (refused unread when its length is
// announced), and redirects are followed by hand, only on the address's own site and only so many.
// It runs on a thread of its own and tells its outcome by posting a message to a window, so the window
// stays responsive; a cancelled download tells nothing more, at once.
#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "update/DownloadRules.h"

namespace mInternet {

using update::kAgent;
using update::kNoInternet;
using update::kNotFound;
using update::Limits;

struct Outcome {
    bool finished = false;
    std::string body;         // the reply's body once finished
    std::string description;  // kNoInternet or kNotFound once failed
    std::string detail;       // what happened, for the user
};

class Download {
public:
    // Starts at once; `accessType` 0 is the system's own settings, the only kind there is. The outcome is
    // told by posting `message` to `window` with Id() as its wParam, once.
    Download(const std::string& address, int32_t accessType, HWND window, UINT message, Limits limits = {});
    // Cancels.
    ~Download();
    Download(const Download&) = delete;
    Download& operator=(const Download&) = delete;

    // Ends the download: nothing is told afterwards. A connection the download still holds goes once the
    // network library returns, within the time limit.
    void Cancel();
    // Tells this download's message from a stale one.
    WPARAM Id() const;
    // The outcome once the message came, nothing before.
    std::optional<Outcome> Take();

    struct State;

private:
    std::shared_ptr<State> m_state;
    HANDLE m_deadline = nullptr;
};

}  // namespace mInternet
