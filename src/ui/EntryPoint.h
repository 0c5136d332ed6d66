// Event handlers wired together with the name that a failure's report carries: the handler runs as an event
// entry point (mError::AsEntryPoint), so it needs no handler of its own that only names itself.
#pragma once

#include <QObject>

#include "error/mError.h"

// Connects `signal` of `sender` to `handler` of `receiver`; a failure is reported under `trail`.
template <class Sender, class Signal, class Receiver, class... Args>
void ConnectEntryPoint(Sender* sender, Signal signal, Receiver* receiver, void (Receiver::*handler)(Args...),
                       const char* trail) {
    QObject::connect(sender, signal, receiver, [receiver, handler, trail](Args... args) {
        mError::AsEntryPoint(trail, [&] { (receiver->*handler)(args...); });
    });
}
