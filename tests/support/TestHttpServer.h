// A small HTTP/1.1 server on 127.0.0.1 for the download tests of both faces. It answers on threads of its
// own, each path the way the test set up: a plain reply, or one of the ways a web server goes wrong (silent,
// trickling, cut off). It keeps every request it received. Ending it ends every connection it still holds.
#pragma once

#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "support/LoopbackSocket.h"

class TestHttpServer {
public:
    enum class Kind {
        Reply,     // status, headers and body, then the connection is closed
        Silent,    // the request is read and never answered
        Trickle,   // the head, then the body one byte every `interval`
        CutShort,  // the head and a part of the body, then the connection is aborted
    };
    struct Route {
        Kind kind = Kind::Reply;
        int status = 200;
        std::string body{};
        std::vector<std::pair<std::string, std::string>>
            headers{};               // "{port}" in a value is this server's port
        bool announceLength = true;  // send Content-Length (Kind::Reply)
        std::chrono::milliseconds interval{1000};
    };
    struct Request {
        std::string path{};
        std::string host{};
        std::string agent{};
    };

    TestHttpServer();
    ~TestHttpServer();
    TestHttpServer(const TestHttpServer&) = delete;
    TestHttpServer& operator=(const TestHttpServer&) = delete;

    static Route Ok(std::string body, bool announceLength = true);
    static Route Status(int status);
    static Route Redirect(std::string location);
    static Route Behaving(Kind kind);

    void Serve(const std::string& path, const Route& route);
    int Port() const { return m_port; }
    std::string Url(std::string_view path) const;
    // The Host header a request to this server carries.
    std::string Host() const;
    std::vector<Request> Requests() const;

private:
    void AcceptAll();
    void Answer(loopback::Socket client);
    bool ReadHead(loopback::Socket client, std::string& head);
    void Trickle(loopback::Socket client, const Route& route);
    // Waits until the server ends or `wait` has passed; true when the server ends.
    bool Stopping(std::chrono::milliseconds wait);

    mutable std::mutex m_mutex;
    std::condition_variable m_stop;
    bool m_stopping = false;
    std::map<std::string, Route> m_routes;
    std::vector<Request> m_requests;
    int m_port = 0;
    loopback::Socket m_listener = loopback::kNoSocket;
    std::vector<std::thread> m_connections;  // the accepting thread's alone until it has ended
    std::thread m_accepting;
};
