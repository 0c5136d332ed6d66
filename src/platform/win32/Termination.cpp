#include "platform/Termination.h"

namespace platform {

int CatchTerminationRequests() {
    return -1;
}

void TakeTerminationRequests() {}

}  // namespace platform
