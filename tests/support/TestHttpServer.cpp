#include "support/TestHttpServer.h"

#include <algorithm>
#include <cctype>

namespace {

using namespace std::chrono_literals;

// How often a waiting thread looks whether the server ends.
constexpr std::chrono::milliseconds kPoll = 20ms;
constexpr std::size_t kMaxRequest = 64 * 1024;

// The status line and headers; `length` < 0 leaves the end of the body to the closing of the connection.
std::string Head(const TestHttpServer::Route& route, long long length, int port) {
    std::string head = "HTTP/1.1 " + std::to_string(route.status) + " Test\r\nConnection: close\r\n";
    if (length >= 0)
        head += "Content-Length: " + std::to_string(length) + "\r\n";
    for (auto [name, value] : route.headers) {
        if (const std::size_t at = value.find("{port}"); at != std::string::npos)
            value.replace(at, 6, std::to_string(port));
        head += name + ": " + value + "\r\n";
    }
    return head + "\r\n";
}

std::string Trimmed(std::string_view text) {
    const auto blank = [](char c) { return c == ' ' || c == '\t' || c == '\r'; };
    while (!text.empty() && blank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && blank(text.back()))
        text.remove_suffix(1);
    return std::string(text);
}

TestHttpServer::Request Parse(std::string_view head) {
    TestHttpServer::Request request;
    const std::size_t pathStart = head.find(' ') + 1;
    request.path = std::string(head.substr(pathStart, head.find_first_of(" \r\n", pathStart) - pathStart));
    for (std::size_t start = head.find('\n'); start != std::string_view::npos;
         start = head.find('\n', start)) {
        ++start;
        const std::string_view line = head.substr(start, head.find('\n', start) - start);
        const std::size_t colon = line.find(':');
        std::string name = Trimmed(line.substr(0, colon));
        std::ranges::transform(name, name.begin(), [](unsigned char c) { return std::tolower(c); });
        if (colon == std::string_view::npos)
            continue;
        if (name == "host")
            request.host = Trimmed(line.substr(colon + 1));
        else if (name == "user-agent")
            request.agent = Trimmed(line.substr(colon + 1));
    }
    return request;
}

}  // namespace

TestHttpServer::TestHttpServer() : m_listener(loopback::Listen(m_port)) {
    if (m_listener != loopback::kNoSocket)
        m_accepting = std::thread([this] { AcceptAll(); });
}

TestHttpServer::~TestHttpServer() {
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    m_stop.notify_all();
    if (m_accepting.joinable())
        m_accepting.join();
    for (std::thread& connection : m_connections)
        connection.join();
    if (m_listener != loopback::kNoSocket)
        loopback::Close(m_listener);
}

TestHttpServer::Route TestHttpServer::Ok(std::string body, bool announceLength) {
    return {.body = std::move(body), .announceLength = announceLength};
}

TestHttpServer::Route TestHttpServer::Status(int status) {
    return {.status = status, .body = "status page"};
}

TestHttpServer::Route TestHttpServer::Redirect(std::string location) {
    return {.status = 302, .headers = {{"Location", std::move(location)}}};
}

TestHttpServer::Route TestHttpServer::Behaving(Kind kind) {
    return {.kind = kind, .body = "the first part of the body"};
}

void TestHttpServer::Serve(const std::string& path, const Route& route) {
    const std::lock_guard lock(m_mutex);
    m_routes[path] = route;
}

std::string TestHttpServer::Url(std::string_view path) const {
    return "http://" + Host() + std::string(path);
}

std::string TestHttpServer::Host() const {
    return "127.0.0.1:" + std::to_string(m_port);
}

std::vector<TestHttpServer::Request> TestHttpServer::Requests() const {
    const std::lock_guard lock(m_mutex);
    return m_requests;
}

bool TestHttpServer::Stopping(std::chrono::milliseconds wait) {
    std::unique_lock lock(m_mutex);
    return m_stop.wait_for(lock, wait, [this] { return m_stopping; });
}

void TestHttpServer::AcceptAll() {
    while (!Stopping(0ms)) {
        if (!loopback::WaitReadable(m_listener, kPoll))
            continue;
        const loopback::Socket client = loopback::Accept(m_listener);
        if (client != loopback::kNoSocket)
            m_connections.emplace_back([this, client] { Answer(client); });
    }
}

// Each connection carries one request; it is answered once its head is complete.
void TestHttpServer::Answer(loopback::Socket client) {
    std::string head;
    if (!ReadHead(client, head)) {
        loopback::Close(client);
        return;
    }
    Route route = Status(404);
    {
        const std::lock_guard lock(m_mutex);
        m_requests.push_back(Parse(head));
        if (const auto found = m_routes.find(m_requests.back().path); found != m_routes.end())
            route = found->second;
    }
    switch (route.kind) {
        case Kind::Reply:
            loopback::Send(
                client,
                Head(route, route.announceLength ? static_cast<long long>(route.body.size()) : -1, m_port) +
                    route.body);
            break;
        case Kind::Silent:
            while (!Stopping(kPoll)) {
            }
            break;
        case Kind::Trickle:
            Trickle(client, route);
            break;
        case Kind::CutShort:
            loopback::Send(client,
                           Head(route, 2 * static_cast<long long>(route.body.size()), m_port) + route.body);
            loopback::Abort(client);
            return;
    }
    loopback::Close(client);
}

bool TestHttpServer::ReadHead(loopback::Socket client, std::string& head) {
    char buffer[4096];
    while (head.find("\r\n\r\n") == std::string::npos && head.size() < kMaxRequest) {
        if (Stopping(0ms))
            return false;
        if (!loopback::WaitReadable(client, kPoll))
            continue;
        const long received = loopback::Receive(client, buffer, sizeof buffer);
        if (received <= 0)
            return false;
        head.append(buffer, static_cast<std::size_t>(received));
    }
    return head.find("\r\n\r\n") != std::string::npos;
}

void TestHttpServer::Trickle(loopback::Socket client, const Route& route) {
    if (!loopback::Send(client, Head(route, -1, m_port)))
        return;
    while (!Stopping(route.interval) && loopback::Send(client, "x")) {
    }
}
