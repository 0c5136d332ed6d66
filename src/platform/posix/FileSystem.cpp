#include "platform/FileSystem.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <ctime>
#include <string_view>

#include "platform/NativePath.h"

namespace platform {
namespace {

FileStamp StampFrom(const struct stat& info) {
    FileStamp stamp;
    stamp.device = static_cast<uint64_t>(info.st_dev);
    stamp.identity = static_cast<uint64_t>(info.st_ino);
    stamp.size = static_cast<uint64_t>(info.st_size);
    stamp.modified = static_cast<int64_t>(info.st_mtim.tv_sec) * 1000000000 + info.st_mtim.tv_nsec;
    return stamp;
}

// The coarsest modification-time resolution of the file systems a settings file may live on.
constexpr int64_t kTimeResolutionNs = 2'000'000'000;

bool IsSettled(const FileStamp& stamp) {
    struct timespec now {};
    clock_gettime(CLOCK_REALTIME, &now);
    int64_t nowNs = static_cast<int64_t>(now.tv_sec) * 1000000000 + now.tv_nsec;
    return nowNs - stamp.modified > kTimeResolutionNs;
}

constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;

// The file a write must replace: the target of a symbolic link rather than the link itself.
std::string Resolved(const std::string& path) {
    char buffer[PATH_MAX];
    return realpath(path.c_str(), buffer) != nullptr ? std::string(buffer) : path;
}

bool WriteAll(int fd, const std::string& bytes) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        ssize_t written = write(fd, bytes.data() + done, bytes.size() - done);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        done += static_cast<std::size_t>(written);
    }
    return true;
}

mode_t NewFileMode() {
    mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

// Writes `bytes` into a new temporary file beside `target` and renames it over `target`. On any error the
// temporary file is removed and `target` is untouched.
std::optional<FileStamp> WriteAndRename(const std::string& target, const std::string& bytes, mode_t mode) {
    std::string folder = FolderOf(target);
    std::string name = target.substr(target.find_last_of('/') + 1);
    std::string temporary = folder + "/." + name + ".XXXXXX";
    int fd = mkstemp(temporary.data());
    if (fd < 0)
        return std::nullopt;
    struct stat info {};
    bool ok = fchmod(fd, mode) == 0 && WriteAll(fd, bytes) && fsync(fd) == 0 && fstat(fd, &info) == 0;
    ok = close(fd) == 0 && ok;
    // The content is on the disk before the rename, so whatever survives a crash is a complete file.
    if (ok && rename(temporary.c_str(), target.c_str()) == 0)
        return StampFrom(info);
    unlink(temporary.c_str());
    return std::nullopt;
}

int64_t Nanoseconds(const struct timespec& time) {
    return static_cast<int64_t>(time.tv_sec) * 1000000000 + time.tv_nsec;
}

// The birth time where the kernel and the file system record one; statx is the only call that tells it.
std::optional<int64_t> CreationTime(const std::string& path, bool followLink) {
    struct statx info {};
    int flags = followLink ? 0 : AT_SYMLINK_NOFOLLOW;
    if (statx(AT_FDCWD, path.c_str(), flags, STATX_BTIME, &info) != 0 || (info.stx_mask & STATX_BTIME) == 0)
        return std::nullopt;
    return static_cast<int64_t>(info.stx_btime.tv_sec) * 1000000000 + info.stx_btime.tv_nsec;
}

bool HasHiddenName(const std::string& path) {
    std::string::size_type last = path.find_last_not_of('/');
    if (last == std::string::npos)
        return false;
    std::string::size_type slash = path.find_last_of('/', last);
    std::string::size_type first = slash == std::string::npos ? 0 : slash + 1;
    std::string_view name(path.data() + first, last - first + 1);
    return name.front() == '.' && name != "." && name != "..";
}

}  // namespace

std::optional<FileDetails> DetailsOf(const std::string& path) {
    struct stat own {};
    if (path.empty() || lstat(path.c_str(), &own) != 0)
        return std::nullopt;
    FileDetails details;
    details.symbolicLink = S_ISLNK(own.st_mode);
    struct stat target {};
    bool followed = details.symbolicLink && stat(path.c_str(), &target) == 0;
    const struct stat& info = followed ? target : own;
    details.directory = S_ISDIR(info.st_mode);
    details.size = details.directory ? 0 : static_cast<uint64_t>(info.st_size);
    details.lastWrite = Nanoseconds(info.st_mtim);
    details.lastAccess = Nanoseconds(info.st_atim);
    details.creation = CreationTime(path, followed);
    details.readOnly = (info.st_mode & kAnyWrite) == 0;
    details.hidden = HasHiddenName(path);
    return details;
}

std::optional<FileStamp> StampOf(const std::string& path) {
    struct stat info {};
    if (stat(path.c_str(), &info) != 0 || !S_ISREG(info.st_mode))
        return std::nullopt;
    return StampFrom(info);
}

std::optional<FileContent> ReadFile(const std::string& path) {
    int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return std::nullopt;
    FileContent content;
    struct stat info {};
    bool ok = fstat(fd, &info) == 0 && S_ISREG(info.st_mode);
    if (ok) {
        content.stamp = StampFrom(info);
        content.settled = IsSettled(content.stamp);
        content.bytes.resize(static_cast<std::size_t>(info.st_size));
        std::size_t done = 0;
        while (ok && done < content.bytes.size()) {
            ssize_t got = read(fd, content.bytes.data() + done, content.bytes.size() - done);
            if (got < 0 && errno == EINTR)
                continue;
            ok = got >= 0;
            if (got <= 0)
                break;
            done += static_cast<std::size_t>(got);
        }
        // A file that shrank while it was read ends where the reading did.
        content.bytes.resize(done);
    }
    close(fd);
    if (!ok)
        return std::nullopt;
    return content;
}

bool CanReplaceFile(const std::string& path) {
    std::string target = Resolved(path);
    std::string folder = FolderOf(target);
    struct stat info {};
    if (stat(folder.c_str(), &info) != 0 || !S_ISDIR(info.st_mode))
        return false;
    if ((info.st_mode & kAnyWrite) == 0 || access(folder.c_str(), W_OK | X_OK) != 0)
        return false;
    if (stat(target.c_str(), &info) != 0)
        return errno == ENOENT;
    return S_ISREG(info.st_mode) && (info.st_mode & kAnyWrite) != 0 &&
           access(target.c_str(), R_OK | W_OK) == 0;
}

std::optional<FileStamp> ReplaceFile(const std::string& path, const std::string& bytes) {
    std::string target = Resolved(path);
    struct stat info {};
    mode_t mode = stat(target.c_str(), &info) == 0 ? (info.st_mode & 07777) : NewFileMode();
    return WriteAndRename(target, bytes, mode);
}

}  // namespace platform
