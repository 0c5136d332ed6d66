#include "platform/Termination.h"

namespace platform {

int CatchTerminationRequests() {
    return -1;
}

void DeferTerminationRequests() {}

void TakeTerminationRequests() {}

}  // namespace platform
