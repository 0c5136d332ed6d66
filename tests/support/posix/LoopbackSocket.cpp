#include "support/LoopbackSocket.h"

#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace loopback {

Socket Listen(int& port) {
    const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    if (listener < 0 || bind(listener, reinterpret_cast<sockaddr*>(&address), size) != 0 ||
        listen(listener, SOMAXCONN) != 0 ||
        getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size)) {
        if (listener >= 0)
            close(listener);
        return kNoSocket;
    }
    port = ntohs(address.sin_port);
    return listener;
}

bool WaitReadable(Socket socket, std::chrono::milliseconds wait) {
    pollfd entry{static_cast<int>(socket), POLLIN, 0};
    return poll(&entry, 1, static_cast<int>(wait.count())) > 0;
}

Socket Accept(Socket listener) {
    const int client = accept4(static_cast<int>(listener), nullptr, nullptr, SOCK_CLOEXEC);
    return client < 0 ? kNoSocket : client;
}

long Receive(Socket socket, char* buffer, std::size_t size) {
    return static_cast<long>(recv(static_cast<int>(socket), buffer, size, 0));
}

bool Send(Socket socket, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = send(static_cast<int>(socket), bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

void Close(Socket socket) {
    close(static_cast<int>(socket));
}

void Abort(Socket socket) {
    const linger reset{1, 0};
    setsockopt(static_cast<int>(socket), SOL_SOCKET, SO_LINGER, &reset, sizeof reset);
    close(static_cast<int>(socket));
}

}  // namespace loopback
