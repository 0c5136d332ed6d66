// Makes the processes that change one file take turns: an exclusive lock between processes on a lock file
// beside the file (".Pavonel.ini.lock", see SideFiles.h), which stays there for the next writer. The OS
// releases the lock when its holder ends, also when it crashes; only a holder that hangs keeps it.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

namespace platform {

class FileLock {
public:
    // Waits up to `patience` for the lock of the file that a write to `path` changes (a symbolic link's
    // target shares the lock of the link). Nothing when it cannot be had in that time, or when no lock file
    // can be opened beside the file.
    // Without `create`, only a lock file that is already there is used (nothing is written beside a file
    // that is not to be written).
    static std::optional<FileLock> Acquire(const std::string& path, std::chrono::milliseconds patience,
                                           bool create = true);

    ~FileLock();
    FileLock(FileLock&& other) noexcept;
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    FileLock& operator=(FileLock&&) = delete;

private:
    explicit FileLock(intptr_t handle) : m_handle(handle) {}

    intptr_t m_handle;  // the open lock file: a descriptor on POSIX, a HANDLE on Windows; -1 once moved
};

}  // namespace platform
