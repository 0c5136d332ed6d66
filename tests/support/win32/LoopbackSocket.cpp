#include "support/LoopbackSocket.h"

#include <winsock2.h>

namespace loopback {
namespace {

// Winsock wants its library started once in a process before the first socket.
bool Started() {
    static const bool started = [] {
        WSADATA data;
        return WSAStartup(MAKEWORD(2, 2), &data) == 0;
    }();
    return started;
}

SOCKET Native(Socket socket) {
    return static_cast<SOCKET>(socket);
}

// A program the test starts must not hold the server's connections open past their end, as POSIX's
// close-on-exec makes sure there.
SOCKET Private(SOCKET socket) {
    if (socket != INVALID_SOCKET)
        SetHandleInformation(reinterpret_cast<HANDLE>(socket), HANDLE_FLAG_INHERIT, 0);
    return socket;
}

}  // namespace

Socket Listen(int& port) {
    if (!Started())
        return kNoSocket;
    const SOCKET listener = Private(socket(AF_INET, SOCK_STREAM, IPPROTO_TCP));
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    int size = sizeof address;
    if (listener == INVALID_SOCKET || bind(listener, reinterpret_cast<sockaddr*>(&address), size) != 0 ||
        listen(listener, SOMAXCONN) != 0 ||
        getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size)) {
        if (listener != INVALID_SOCKET)
            closesocket(listener);
        return kNoSocket;
    }
    port = ntohs(address.sin_port);
    return static_cast<Socket>(listener);
}

bool WaitReadable(Socket socket, std::chrono::milliseconds wait) {
    WSAPOLLFD entry{Native(socket), POLLRDNORM, 0};
    return WSAPoll(&entry, 1, static_cast<INT>(wait.count())) > 0;
}

Socket Accept(Socket listener) {
    const SOCKET client = Private(accept(Native(listener), nullptr, nullptr));
    return client == INVALID_SOCKET ? kNoSocket : static_cast<Socket>(client);
}

long Receive(Socket socket, char* buffer, std::size_t size) {
    return recv(Native(socket), buffer, static_cast<int>(size), 0);
}

bool Send(Socket socket, std::string_view bytes) {
    while (!bytes.empty()) {
        const int sent = send(Native(socket), bytes.data(), static_cast<int>(bytes.size()), 0);
        if (sent <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

void Close(Socket socket) {
    shutdown(Native(socket), SD_SEND);
    closesocket(Native(socket));
}

void Abort(Socket socket) {
    const linger reset{1, 0};
    setsockopt(Native(socket), SOL_SOCKET, SO_LINGER, reinterpret_cast<const char*>(&reset), sizeof reset);
    closesocket(Native(socket));
}

}  // namespace loopback
