#include "platform/FileLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <thread>

#include "platform/FileSystem.h"
#include "platform/NativePath.h"
#include "platform/SideFiles.h"

namespace platform {
namespace {

int OpenLockFile(const std::string& target, bool create) {
    const std::string name = target.substr(target.find_last_of('/') + 1);
    const std::string lock = FolderOf(target) + "/" + LockFileName(name);
    int fd = open(lock.c_str(), O_RDWR | (create ? O_CREAT : 0) | O_CLOEXEC, 0666);
    // A lock file another user made may be read-only to this one; a shared descriptor locks as well.
    return fd >= 0 ? fd : open(lock.c_str(), O_RDONLY | O_CLOEXEC);
}

}  // namespace

std::optional<FileLock> FileLock::Acquire(const std::string& path, std::chrono::milliseconds patience,
                                          bool create) {
    const std::string target = WriteTargetOf(path);
    const int fd = target.empty() ? -1 : OpenLockFile(target, create);
    if (fd < 0)
        return std::nullopt;
    const auto deadline = std::chrono::steady_clock::now() + patience;
    std::chrono::microseconds pause(100);
    // flock, not fcntl: an fcntl lock belongs to the process and would be let go when any other descriptor
    // of the same file closes. Polling rather than blocking keeps the wait bounded.
    while (flock(fd, LOCK_EX | LOCK_NB) != 0) {
        if ((errno != EWOULDBLOCK && errno != EINTR) || std::chrono::steady_clock::now() >= deadline) {
            close(fd);
            return std::nullopt;
        }
        std::this_thread::sleep_for(pause);
        pause = std::min(pause * 2, std::chrono::microseconds(10'000));
    }
    return FileLock(fd);
}

FileLock::~FileLock() {
    // Closing the only descriptor of the lock releases it.
    if (m_handle >= 0)
        close(static_cast<int>(m_handle));
}

FileLock::FileLock(FileLock&& other) noexcept : m_handle(other.m_handle) {
    other.m_handle = -1;
}

}  // namespace platform
