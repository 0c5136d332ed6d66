#include "platform/FileLock.h"

#include <windows.h>

#include <algorithm>

#include "platform/FileSystem.h"
#include "platform/NativePath.h"
#include "platform/SideFiles.h"

namespace platform {
namespace {

HANDLE OpenLockFile(const std::string& target, bool create) {
    const std::string name = target.substr(target.find_last_of("\\/") + 1);
    const std::string lock = FolderOf(target) + "\\" + LockFileName(name);
    return CreateFileA(lock.c_str(), GENERIC_READ | GENERIC_WRITE,
                       FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                       create ? OPEN_ALWAYS : OPEN_EXISTING, FILE_ATTRIBUTE_HIDDEN, nullptr);
}

bool TryLock(HANDLE file) {
    OVERLAPPED start{};
    return LockFileEx(file, LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &start) != FALSE;
}

}  // namespace

std::optional<FileLock> FileLock::Acquire(const std::string& path, std::chrono::milliseconds patience,
                                          bool create) {
    const HANDLE file = OpenLockFile(WriteTargetOf(path), create);
    if (file == INVALID_HANDLE_VALUE)
        return std::nullopt;
    const ULONGLONG deadline = GetTickCount64() + static_cast<ULONGLONG>(patience.count());
    DWORD pause = 1;
    // LockFileEx with LOCKFILE_FAIL_IMMEDIATELY, polled, keeps the wait bounded.
    while (!TryLock(file)) {
        if (GetLastError() != ERROR_LOCK_VIOLATION || GetTickCount64() >= deadline) {
            CloseHandle(file);
            return std::nullopt;
        }
        Sleep(pause);
        pause = std::min<DWORD>(pause * 2, 10);
    }
    return FileLock(reinterpret_cast<intptr_t>(file));
}

FileLock::~FileLock() {
    // Closing the handle releases its lock.
    if (m_handle != -1)
        CloseHandle(reinterpret_cast<HANDLE>(m_handle));
}

FileLock::FileLock(FileLock&& other) noexcept : m_handle(other.m_handle) {
    other.m_handle = -1;
}

}  // namespace platform
