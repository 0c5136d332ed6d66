// A request from outside to end the program (on Linux SIGTERM, SIGINT or SIGHUP). Until the main window
// exists nothing has been changed that could be saved, and start-up may be waiting on something that never
// answers, so a request then ends the program at once with status 0. From then on a request becomes
// something the event loop can wait on, so that the program can save before it ends.
#pragma once

namespace platform {

// Starts catching the requests, each of which ends the program at once for now, and returns a descriptor
// that becomes readable with one byte per request once they are deferred; -1 where the OS has no such
// requests (Windows ends a program through its windows).
int CatchTerminationRequests();

// From now on a request is a byte on the descriptor instead of the program's end.
void DeferTerminationRequests();

// Takes the requests that arrived so far, so that the descriptor waits for the next one.
void TakeTerminationRequests();

}  // namespace platform
