// A request from outside to end the program (on Linux SIGTERM, SIGINT or SIGHUP), turned into something the
// event loop can wait on, so that the program can save before it ends.
#pragma once

namespace platform {

// Starts catching the requests and returns a descriptor that becomes readable with one byte per request;
// -1 where the OS has no such requests (Windows ends a program through its windows).
int CatchTerminationRequests();

// Takes the requests that arrived so far, so that the descriptor waits for the next one.
void TakeTerminationRequests();

}  // namespace platform
