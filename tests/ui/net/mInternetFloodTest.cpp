// A server that floods the download as fast as loopback carries it, from a thread of its own so that the
// download's event loop cannot slow it down: whatever it offers, the download ends within its time limit
// and the process's memory stays bounded.
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QTest>
#include <atomic>
#include <fstream>
#include <string>
#include <thread>
#include <tuple>

#include "ui/net/mInternet.h"

namespace {

using namespace std::chrono_literals;

constexpr long long kOffered = 1LL << 30;
constexpr long long kMiB = 1 << 20;

// The process's peak resident memory since the last reset, in bytes (Linux keeps it per process).
long long PeakMemory() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind("VmHWM:", 0) == 0)
            return std::stoll(line.substr(6)) * 1024;
    }
    return 0;
}

void ResetPeakMemory() {
    std::ofstream("/proc/self/clear_refs") << "5";
}

// Accepts one connection, reads the request, then sends `head` and as much of `unit` over and over as was
// offered, until the client goes away.
class FloodServer {
public:
    FloodServer(std::string head, std::string unit) : m_head(std::move(head)), m_unit(std::move(unit)) {
        m_listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        bind(m_listener, reinterpret_cast<sockaddr*>(&address), size);
        listen(m_listener, 1);
        getsockname(m_listener, reinterpret_cast<sockaddr*>(&address), &size);
        m_port = ntohs(address.sin_port);
        m_thread = std::thread([this] { Serve(); });
    }
    ~FloodServer() {
        shutdown(m_listener, SHUT_RDWR);
        m_thread.join();
        close(m_listener);
    }
    FloodServer(const FloodServer&) = delete;
    FloodServer& operator=(const FloodServer&) = delete;

    std::string Address() const { return "http://127.0.0.1:" + std::to_string(m_port) + "/update"; }
    // True once the client went away or everything offered was sent.
    bool Done() const { return m_done; }
    long long Sent() const { return m_sent; }

private:
    void Serve() {
        const int client = accept(m_listener, nullptr, nullptr);
        if (client < 0)
            return;
        // The request is small and sent at once; what it asks does not matter.
        char request[4096];
        [[maybe_unused]] const ssize_t read = recv(client, request, sizeof request, 0);
        bool open = send(client, m_head.data(), m_head.size(), MSG_NOSIGNAL) > 0;
        for (; open && m_sent < kOffered; m_sent += static_cast<long long>(m_unit.size()))
            open = send(client, m_unit.data(), m_unit.size(), MSG_NOSIGNAL) ==
                   static_cast<ssize_t>(m_unit.size());
        close(client);
        m_done = true;
    }

    std::string m_head;
    std::string m_unit;
    int m_listener = -1;
    int m_port = 0;
    std::atomic<bool> m_done = false;
    std::atomic<long long> m_sent = 0;
    std::thread m_thread;
};

std::string Chunk() {
    return "10000\r\n" + std::string(0x10000, 'a') + "\r\n";
}

TEST(mInternetFloodTest, AFloodEndsInTimeWithBoundedMemory) {
    qputenv("no_proxy", "127.0.0.1,localhost");
    const std::tuple<const char*, std::string, std::string> floods[] = {
        {"chunked", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n", Chunk()},
        {"until closed", "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n", std::string(0x10000, 'a')},
        {"header lines", "HTTP/1.1 200 OK\r\n", "X-Flood: " + std::string(1000, 'a') + "\r\n"}};
    for (const auto& [name, head, unit] : floods) {
        const FloodServer server(head, unit);
        ResetPeakMemory();
        const long long before = PeakMemory();
        QElapsedTimer clock;
        clock.start();
        QString failure;
        mInternet::Download download(server.Address(), 0);
        QObject::connect(&download, &mInternet::Download::Failed, [&](const QString& got) { failure = got; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return !failure.isEmpty(); }, 12000)) << name;
        EXPECT_LE(clock.elapsed(), 11000) << name;
        EXPECT_EQ(failure, mInternet::kNotFound) << name;
        // What a refused download still takes in counts too: the connection must end with it.
        EXPECT_TRUE(QTest::qWaitFor([&] { return server.Done(); }, 5000)) << name;
        EXPECT_LT(server.Sent(), kOffered) << name;
        const long long grown = PeakMemory() - before;
        RecordProperty(std::string(name) + "_peak_growth_kib", std::to_string(grown / 1024));
        EXPECT_LE(grown, 64 * kMiB) << name << ": " << grown / kMiB << " MiB";
    }
}

}  // namespace
