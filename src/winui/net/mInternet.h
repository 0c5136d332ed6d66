// The download of the update file through WinINet, within the limits that every download of it keeps
// (update/DownloadRules): never from a cache, through the system's proxy settings, redirects followed by
// hand. It runs on a thread of its own and tells its outcome by posting a message to a window, so the window
// stays responsive; a cancelled download tells nothing more, at once.
#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "update/DownloadRules.h"

namespace mInternet {

using update::Limits;

struct Outcome {
    bool finished = false;
    std::string body;         // the reply's body once finished
    std::string description;  // update::kNoInternet or update::kNotFound once failed
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

    // Ends the download: nothing is told afterwards, and its thread asks nothing more. A request already
    // under way ends with the server's next piece, or at the latest after the time limit, which is also
    // WinINet's limit for each wait on the server.
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
