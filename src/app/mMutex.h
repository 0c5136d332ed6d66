// The named marker "Pavonel_MTX" by which an installer or uninstaller sees that the launcher runs.
#pragma once

namespace mMutex {

// Creates the marker; it lives until the process ends. A second copy of the program runs normally: the
// marker is never waited for and whether it existed before is not looked at.
void CreateMutex();

}  // namespace mMutex
