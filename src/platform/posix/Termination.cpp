#include "platform/Termination.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <initializer_list>

namespace platform {
namespace {

int g_pipe[2] = {-1, -1};
volatile sig_atomic_t g_deferred = 0;

// Only what is safe inside a signal handler: the end of the process, or one write that never blocks.
extern "C" void Requested(int /*signal*/) {
    if (g_deferred == 0)
        _exit(0);
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = write(g_pipe[1], &byte, 1);
}

}  // namespace

int CatchTerminationRequests() {
    if (g_pipe[0] >= 0)
        return g_pipe[0];
    if (pipe2(g_pipe, O_CLOEXEC | O_NONBLOCK) != 0)
        return -1;
    struct sigaction action {};
    action.sa_handler = Requested;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaction(signal, &action, nullptr);
    return g_pipe[0];
}

void DeferTerminationRequests() {
    g_deferred = 1;
}

void TakeTerminationRequests() {
    char bytes[16];
    while (g_pipe[0] >= 0 && read(g_pipe[0], bytes, sizeof bytes) > 0) {
    }
}

}  // namespace platform
