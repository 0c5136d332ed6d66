#include "winui/net/mInternet.h"

#include <wininet.h>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <thread>
#include <utility>

namespace mInternet {

// What the window and the download's thread share; it lives as long as either still needs it.
struct Download::State {
    std::mutex mutex;
    HWND window;
    UINT message;
    WPARAM id;
    Limits limits;
    bool over = false;  // told or cancelled
    std::optional<Outcome> outcome;

    // Tells the first outcome only, and none after a cancel.
    void Tell(Outcome told) {
        const std::lock_guard lock(mutex);
        if (over)
            return;
        over = true;
        outcome = std::move(told);
        PostMessageA(window, message, id, 0);
    }
    bool Over() {
        const std::lock_guard lock(mutex);
        return over;
    }
};

namespace {

using update::kNoInternet;
using update::kNotFound;

constexpr DWORD kReadSize = 2048;
constexpr DWORD kStatusOk = 200;
constexpr DWORD kFlags = INTERNET_FLAG_RELOAD | INTERNET_FLAG_NO_CACHE_WRITE | INTERNET_FLAG_PRAGMA_NOCACHE |
                         INTERNET_FLAG_NO_AUTO_REDIRECT | INTERNET_FLAG_NO_COOKIES | INTERNET_FLAG_NO_UI |
                         INTERNET_FLAG_NO_AUTH;

struct HandleCloser {
    void operator()(void* handle) const { InternetCloseHandle(handle); }
};
using Handle = std::unique_ptr<void, HandleCloser>;

Outcome Failure(const char* description, std::string detail) {
    return {false, {}, description, std::move(detail)};
}

// The last error as WinINet or, for a socket's error, Windows words it.
std::string LastError() {
    const DWORD code = GetLastError();
    std::string text = "WinINet error " + std::to_string(code);
    char buffer[512] = {};
    const DWORD length = FormatMessageA(
        FORMAT_MESSAGE_FROM_HMODULE | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
        GetModuleHandleA("wininet.dll"), code, 0, buffer, sizeof buffer, nullptr);
    std::string words(buffer, length);
    while (!words.empty() && (words.back() == '\n' || words.back() == '\r' || words.back() == ' '))
        words.pop_back();
    return words.empty() ? text : text + ": " + words;
}

// The scheme, host and port of a web address; nothing for anything else.
std::optional<update::Site> SiteOf(const std::string& address) {
    char scheme[16] = {};
    char host[INTERNET_MAX_HOST_NAME_LENGTH] = {};
    URL_COMPONENTSA parts{};
    parts.dwStructSize = sizeof parts;
    parts.lpszScheme = scheme;
    parts.dwSchemeLength = sizeof scheme;
    parts.lpszHostName = host;
    parts.dwHostNameLength = sizeof host;
    if (!InternetCrackUrlA(address.c_str(), 0, 0, &parts) ||
        (parts.nScheme != INTERNET_SCHEME_HTTP && parts.nScheme != INTERNET_SCHEME_HTTPS) || host[0] == '\0')
        return std::nullopt;
    return update::Site{scheme, host, parts.nPort};
}

// `location` read against the address it came from.
std::string Resolved(const std::string& base, const std::string& location) {
    DWORD size = INTERNET_MAX_URL_LENGTH;
    std::string resolved(size, '\0');
    if (!InternetCombineUrlA(base.c_str(), location.c_str(), resolved.data(), &size, ICU_NO_ENCODE))
        return location;
    resolved.resize(size);
    return resolved;
}

std::optional<DWORD> NumberOf(HINTERNET request, DWORD query) {
    DWORD value = 0;
    DWORD size = sizeof value;
    if (!HttpQueryInfoA(request, query | HTTP_QUERY_FLAG_NUMBER, &value, &size, nullptr))
        return std::nullopt;
    return value;
}

std::string TextOf(HINTERNET request, DWORD query) {
    DWORD size = 0;
    HttpQueryInfoA(request, query, nullptr, &size, nullptr);
    if (size == 0)
        return {};
    std::string text(size, '\0');
    if (!HttpQueryInfoA(request, query, text.data(), &size, nullptr))
        return {};
    text.resize(size);
    return text;
}

// Reads an answered request's body within the byte limit.
Outcome ReadBody(Download::State& state, HINTERNET request) {
    const std::size_t maxBytes = state.limits.maxBytes;
    const std::optional<DWORD> length = NumberOf(request, HTTP_QUERY_CONTENT_LENGTH);
    if (length && *length > maxBytes)
        return Failure(kNotFound, update::LengthRefusal(maxBytes));
    std::string body;
    char buffer[kReadSize];
    for (DWORD read = 0;; body.append(buffer, read)) {
        // Only what has arrived is asked for, so that a trickling server cannot hold a read until the buffer
        // is full: an ended download's thread notices it with the next piece.
        DWORD available = 0;
        if (!InternetQueryDataAvailable(request, &available, 0, 0))
            return Failure(kNotFound, LastError());
        const DWORD wanted = available == 0 ? kReadSize : std::min(available, kReadSize);
        if (!InternetReadFile(request, buffer, wanted, &read))
            return Failure(kNotFound, LastError());
        // WinINet takes a closed connection for the end of the reply, whatever length the reply announced.
        if (read == 0 && length && body.size() != *length)
            return Failure(kNotFound, update::kCutShort);
        if (read == 0)
            return {true, std::move(body), {}, {}};
        if (body.size() + read > maxBytes)
            return Failure(kNotFound, update::LengthRefusal(maxBytes));
        if (state.Over())
            return {};
    }
}

// The whole download, on its own thread: asks the address, follows the redirects it may, and reads the
// reply. Every way out tells its outcome (which counts only while nobody ended the download).
Outcome Fetch(Download::State& state, std::string address, int32_t accessType) {
    Handle internet(InternetOpenA(update::kAgent, static_cast<DWORD>(accessType), nullptr, nullptr, 0));
    if (!internet)
        return Failure(kNoInternet, LastError());
    const std::optional<update::Site> origin = SiteOf(address);
    if (!origin)
        return Failure(kNoInternet, update::kNotWebAddress);
    DWORD timeout = static_cast<DWORD>(state.limits.timeout.count());
    for (const DWORD option :
         {INTERNET_OPTION_CONNECT_TIMEOUT, INTERNET_OPTION_SEND_TIMEOUT, INTERNET_OPTION_RECEIVE_TIMEOUT})
        InternetSetOptionA(internet.get(), option, &timeout, sizeof timeout);
    // An ended download asks nothing more: it stops before each request and after each answer.
    for (int redirect = 1; !state.Over(); ++redirect) {
        Handle request(InternetOpenUrlA(internet.get(), address.c_str(), nullptr, 0, kFlags, 0));
        if (state.Over())
            break;
        if (!request)
            return Failure(kNotFound, LastError());
        const DWORD status = NumberOf(request.get(), HTTP_QUERY_STATUS_CODE).value_or(0);
        const std::string location = TextOf(request.get(), HTTP_QUERY_LOCATION);
        if (!update::IsRedirect(static_cast<int>(status), location)) {
            if (status != kStatusOk)
                return Failure(kNotFound, update::StatusRefusal(static_cast<int>(status)));
            return ReadBody(state, request.get());
        }
        const std::string target = Resolved(address, location);
        const std::string refusal = update::RedirectRefusal(*origin, SiteOf(target).value_or(update::Site{}),
                                                            target, redirect, state.limits);
        if (!refusal.empty())
            return Failure(kNotFound, refusal);
        address = target;
    }
    return {};
}

// Runs on the thread pool once the time limit has passed.
void CALLBACK TimeUp(void* context, BOOLEAN /*timerFired*/) {
    auto& state = *static_cast<Download::State*>(context);
    state.Tell(Failure(kNotFound, update::TimeoutRefusal(state.limits)));
}

}  // namespace

Download::Download(const std::string& address, int32_t accessType, HWND window, UINT message, Limits limits)
    : m_state(std::make_shared<State>()) {
    static std::atomic<WPARAM> serial = 0;
    m_state->window = window;
    m_state->message = message;
    m_state->id = ++serial;
    m_state->limits = limits;
    // Without its time limit no download starts: a trickling server could hold it for days.
    if (!CreateTimerQueueTimer(&m_deadline, nullptr, TimeUp, m_state.get(),
                               static_cast<DWORD>(limits.timeout.count()), 0, WT_EXECUTEONLYONCE)) {
        m_deadline = nullptr;
        m_state->Tell(Failure(kNoInternet, "no time limit could be set: " + LastError()));
        return;
    }
    // The thread keeps its own share of the state: a cancelled download's thread may end after the window.
    // A thread that cannot start leaves no timer behind on a state about to go.
    try {
        std::thread([state = m_state, address, accessType] {
            state->Tell(Fetch(*state, address, accessType));
        }).detach();
    } catch (...) {
        Cancel();
        throw;
    }
}

Download::~Download() {
    Cancel();
}

void Download::Cancel() {
    {
        const std::lock_guard lock(m_state->mutex);
        m_state->over = true;
    }
    // Waits for a time-up already running, which needs only the state's lock for a moment.
    if (m_deadline)
        DeleteTimerQueueTimer(nullptr, m_deadline, INVALID_HANDLE_VALUE);
    m_deadline = nullptr;
}

WPARAM Download::Id() const {
    return m_state->id;
}

std::optional<Outcome> Download::Take() {
    const std::lock_guard lock(m_state->mutex);
    return std::exchange(m_state->outcome, std::nullopt);
}

}  // namespace mInternet
