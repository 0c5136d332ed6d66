// The sign by which other programs (an installer, an uninstaller) see that the launcher runs: a lock file
// on which every running copy holds a shared flock(2) lock until its process ends, however it ends, since
// the kernel drops the lock with the last open descriptor.
//
// The file is $XDG_RUNTIME_DIR/<name>.lock, or /tmp/<name>-<uid>.lock when XDG_RUNTIME_DIR is unset, empty,
// relative or not a folder (<uid> is the numeric user id). The file itself stays behind and means nothing;
// only the lock counts. Another program tests for a running launcher with
//     flock -n -x "$XDG_RUNTIME_DIR/Pavonel_MTX.lock" true
// which fails (exit status 1) while a copy runs and succeeds once none does; a missing file also means that
// none runs.
#pragma once

#include <string>

namespace platform {

// The lock file for marker `name`; "" for a name that cannot be a file name (empty, ".", "..", or holding
// "/" or a NUL character).
std::string RunningMarkerPath(const std::string& name);

// Creates the file if needed and takes the shared lock for the rest of the process's life. The descriptor is
// deliberately never closed, and is closed on exec, so a started game does not keep the marker alive. Never
// waits for more than a moment: a tester holds its exclusive lock only for an instant. Returns false when
// the file cannot be opened or locked.
bool HoldRunningMarker(const std::string& name);

}  // namespace platform
