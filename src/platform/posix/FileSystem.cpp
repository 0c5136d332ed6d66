#include "platform/FileSystem.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <string_view>

#include "platform/NativePath.h"
#include "platform/SideFiles.h"

namespace platform {
namespace {

int64_t g_stampResolution = 0;

int64_t Nanoseconds(const struct timespec& time) {
    return static_cast<int64_t>(time.tv_sec) * 1000000000 + time.tv_nsec;
}

int64_t StampTime(const struct timespec& time) {
    const int64_t ns = Nanoseconds(time);
    return g_stampResolution > 0 ? ns - ns % g_stampResolution : ns;
}

FileStamp StampFrom(const struct stat& info) {
    FileStamp stamp;
    stamp.device = static_cast<uint64_t>(info.st_dev);
    stamp.identity = static_cast<uint64_t>(info.st_ino);
    stamp.size = static_cast<uint64_t>(info.st_size);
    stamp.modified = StampTime(info.st_mtim);
    stamp.changed = StampTime(info.st_ctim);
    return stamp;
}

// The coarsest modification-time resolution of the file systems a settings file may live on.
constexpr int64_t kTimeResolutionNs = 2'000'000'000;

// Both times count: an edit that puts back an old modification time still sets the change time, which
// shows it only once it lies outside the clock's resolution.
bool IsSettled(const FileStamp& stamp) {
    struct timespec now {};
    clock_gettime(CLOCK_REALTIME, &now);
    return Nanoseconds(now) - std::max(stamp.modified, stamp.changed) > kTimeResolutionNs;
}

constexpr mode_t kAnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;

// The longest chain of symbolic links the kernel itself follows.
constexpr int kMaxLinks = 40;

std::string NameOf(const std::string& path) {
    return path.substr(path.find_last_of('/') + 1);
}

// While it lives, a write beyond the file-size limit fails with EFBIG instead of ending the process with
// SIGXFSZ. A handler the program installed itself is left alone.
class FileSizeSignalIgnored {
public:
    FileSizeSignalIgnored() {
        sigaction(SIGXFSZ, nullptr, &m_old);
        if ((m_old.sa_flags & SA_SIGINFO) == 0 && m_old.sa_handler == SIG_DFL) {
            struct sigaction ignore {};
            ignore.sa_handler = SIG_IGN;
            sigemptyset(&ignore.sa_mask);
            m_restore = sigaction(SIGXFSZ, &ignore, nullptr) == 0;
        }
    }
    ~FileSizeSignalIgnored() {
        if (m_restore)
            sigaction(SIGXFSZ, &m_old, nullptr);
    }
    FileSizeSignalIgnored(const FileSizeSignalIgnored&) = delete;
    FileSizeSignalIgnored& operator=(const FileSizeSignalIgnored&) = delete;

private:
    struct sigaction m_old {};
    bool m_restore = false;
};

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

WriteFault FaultOf(int error) {
    switch (error) {
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            return WriteFault::DiskFull;
        case EACCES:
        case EPERM:
        case EROFS:
            return WriteFault::ReadOnlyFolder;
        case ELOOP:
        case EISDIR:
            return WriteFault::NotAFile;
        default:
            return WriteFault::WriteFailed;
    }
}

mode_t NewFileMode() {
    mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

// Writes `bytes` into a new temporary file beside `target` and renames it over `target`. On any error the
// temporary file is removed and `target` is untouched.
std::optional<FileStamp> WriteAndRename(const std::string& target, const std::string& bytes, mode_t mode) {
    std::string temporary = FolderOf(target) + "/" + TemporaryPrefix(NameOf(target)) + "XXXXXX";
    const FileSizeSignalIgnored failInsteadOfEnding;
    int fd = mkstemp(temporary.data());
    if (fd < 0)
        return std::nullopt;
    // The content is on the disk before the rename, so whatever survives a crash is a complete file.
    bool ok = fchmod(fd, mode) == 0 && WriteAll(fd, bytes) && fsync(fd) == 0;
    ok = ok && rename(temporary.c_str(), target.c_str()) == 0;
    // The stamp after the rename, which changes the status-change time; the descriptor still names the
    // file written even if another program replaced it in the meantime.
    struct stat info {};
    ok = ok && fstat(fd, &info) == 0;
    int error = errno;
    // A file system that delays its errors (NFS, quotas) may report them only here.
    if (close(fd) != 0) {
        error = ok ? errno : error;
        ok = false;
    }
    if (ok)
        return StampFrom(info);
    unlink(temporary.c_str());
    errno = error;
    return std::nullopt;
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

std::vector<std::string> NamesIn(const std::string& folder, bool folders) {
    std::vector<std::string> names;
    DIR* listing = opendir(folder.c_str());
    if (listing == nullptr)
        return names;
    while (const dirent* entry = readdir(listing)) {
        const std::string_view name = entry->d_name;
        if (name == "." || name == "..")
            continue;
        bool isFolder = entry->d_type == DT_DIR;
        struct stat target {};
        if (entry->d_type == DT_LNK || entry->d_type == DT_UNKNOWN)
            isFolder = fstatat(dirfd(listing), entry->d_name, &target, 0) == 0 && S_ISDIR(target.st_mode);
        if (isFolder == folders)
            names.emplace_back(name);
    }
    closedir(listing);
    return names;
}

std::optional<FileStamp> StampOf(const std::string& path) {
    struct stat info {};
    if (stat(path.c_str(), &info) != 0 || !S_ISREG(info.st_mode))
        return std::nullopt;
    return StampFrom(info);
}

std::optional<FileContent> ReadFile(const std::string& path) {
    // A pipe opened for reading waits for a writer, and a device may wait too: neither is opened at all, and
    // one put in the file's place between the look and the opening is not waited for.
    struct stat before {};
    if (stat(path.c_str(), &before) != 0 || !S_ISREG(before.st_mode))
        return std::nullopt;
    int fd = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
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

std::string WriteTargetOf(const std::string& path) {
    std::string current = path;
    for (int link = 0; link <= kMaxLinks; ++link) {
        struct stat info {};
        if (lstat(current.c_str(), &info) != 0 || !S_ISLNK(info.st_mode))
            return current;
        std::string target(PATH_MAX, '\0');
        ssize_t length = readlink(current.c_str(), target.data(), target.size());
        if (length <= 0 || length >= PATH_MAX)
            return {};
        target.resize(static_cast<std::size_t>(length));
        current = target.front() == '/' ? target : FolderOf(current) + "/" + target;
    }
    return {};
}

WriteFault ReplaceObstacle(const std::string& path) {
    std::string target = WriteTargetOf(path);
    if (target.empty())
        return WriteFault::NotAFile;
    std::string folder = FolderOf(target);
    struct stat info {};
    if (stat(folder.c_str(), &info) != 0 || !S_ISDIR(info.st_mode))
        return WriteFault::NoFolder;
    const bool folderWritable = (info.st_mode & kAnyWrite) != 0 && access(folder.c_str(), W_OK | X_OK) == 0;
    if (stat(target.c_str(), &info) != 0) {
        if (errno != ENOENT)
            return WriteFault::NotAFile;
        return folderWritable ? WriteFault::None : WriteFault::ReadOnlyFolder;
    }
    if (!S_ISREG(info.st_mode))
        return WriteFault::NotAFile;
    if ((info.st_mode & kAnyWrite) == 0 || access(target.c_str(), R_OK | W_OK) != 0)
        return WriteFault::ReadOnlyFile;
    return folderWritable ? WriteFault::None : WriteFault::ReadOnlyFolder;
}

std::optional<FileStamp> ReplaceFile(const std::string& path, const std::string& bytes, WriteFault* fault) {
    std::string target = WriteTargetOf(path);
    std::optional<FileStamp> stamp;
    if (!target.empty()) {
        struct stat info {};
        mode_t mode = stat(target.c_str(), &info) == 0 ? (info.st_mode & 07777) : NewFileMode();
        stamp = WriteAndRename(target, bytes, mode);
    }
    if (fault != nullptr)
        *fault = stamp ? WriteFault::None : FaultOf(target.empty() ? ELOOP : errno);
    return stamp;
}

void RemoveLeftovers(const std::string& path) {
    const std::string target = WriteTargetOf(path);
    const std::string folder = FolderOf(target);
    DIR* entries = target.empty() ? nullptr : opendir(folder.c_str());
    if (entries == nullptr)
        return;
    const std::string name = NameOf(target);
    while (const dirent* entry = readdir(entries)) {
        std::string leftover = folder + "/" + entry->d_name;
        struct stat info {};
        if (IsTemporaryName(entry->d_name, name) && lstat(leftover.c_str(), &info) == 0 &&
            S_ISREG(info.st_mode))
            unlink(leftover.c_str());
    }
    closedir(entries);
}

void SetStampResolution(int64_t nanoseconds) {
    g_stampResolution = nanoseconds;
}

}  // namespace platform
