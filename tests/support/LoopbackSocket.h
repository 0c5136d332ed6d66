// The TCP sockets of the test HTTP server, on the loopback address only: as much of the OS's socket
// interface as a server needs that answers one request per connection.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace loopback {

using Socket = std::intptr_t;
inline constexpr Socket kNoSocket = -1;

// A socket listening on 127.0.0.1 at a free port, which `port` receives; kNoSocket when none could be made.
Socket Listen(int& port);
// True once `socket` has something to read (or to accept), false when `wait` passed first.
bool WaitReadable(Socket socket, std::chrono::milliseconds wait);
Socket Accept(Socket listener);
// The bytes read, 0 when the peer closed, less when the connection failed.
long Receive(Socket socket, char* buffer, std::size_t size);
// True when all of `bytes` went out.
bool Send(Socket socket, std::string_view bytes);
// Ends the connection the orderly way.
void Close(Socket socket);
// Ends the connection with a reset, as a crashing server does.
void Abort(Socket socket);

}  // namespace loopback
