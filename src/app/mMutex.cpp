#include "app/mMutex.h"

#include "error/mError.h"
#include "platform/Platform.h"

namespace mMutex {

void CreateMutex() try { Os().CreateNamedMutex("Pavonel_MTX"); } catch (...) {
    mError::PassOn("mMutex.CreateMutex");
}

}  // namespace mMutex
