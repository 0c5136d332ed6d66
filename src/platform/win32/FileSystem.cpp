#include "platform/FileSystem.h"

#include <windows.h>
// windows.h names ReplaceFileA "ReplaceFile", which is this file's own function; the A function is called
// by its full name.
#undef ReplaceFile

#include <algorithm>
#include <random>
#include <string_view>

#include "platform/NativePath.h"
#include "platform/SideFiles.h"

namespace platform {
namespace {

// FILETIME counts 100-ns ticks since 1601-01-01; the program counts nanoseconds since 1970-01-01.
constexpr int64_t kTicksFrom1601To1970 = 116444736000000000;

int64_t Ticks(const FILETIME& time) {
    return static_cast<int64_t>((static_cast<uint64_t>(time.dwHighDateTime) << 32) | time.dwLowDateTime);
}

int64_t Nanoseconds(const FILETIME& time) {
    return (Ticks(time) - kTicksFrom1601To1970) * 100;
}

uint64_t Combined(DWORD high, DWORD low) {
    return (static_cast<uint64_t>(high) << 32) | low;
}

// Closes the handle it holds when it goes out of scope.
class Handle {
public:
    explicit Handle(HANDLE handle) : m_handle(handle) {}
    ~Handle() {
        if (Valid())
            CloseHandle(m_handle);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    bool Valid() const { return m_handle != INVALID_HANDLE_VALUE; }
    HANDLE Get() const { return m_handle; }

private:
    HANDLE m_handle;
};

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// Opens an existing entry, following links; folders too, since they are opened with backup semantics.
HANDLE OpenExisting(const std::string& path, DWORD access) {
    return CreateFileA(path.c_str(), access, kShareAll, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS,
                       nullptr);
}

int64_t g_stampResolutionTicks = 0;

int64_t StampTime(int64_t ticks) {
    return g_stampResolutionTicks > 0 ? ticks - ticks % g_stampResolutionTicks : ticks;
}

FileStamp StampFrom(HANDLE file, const BY_HANDLE_FILE_INFORMATION& info) {
    FileStamp stamp;
    stamp.device = info.dwVolumeSerialNumber;
    stamp.identity = Combined(info.nFileIndexHigh, info.nFileIndexLow);
    stamp.size = Combined(info.nFileSizeHigh, info.nFileSizeLow);
    stamp.modified = StampTime(Ticks(info.ftLastWriteTime));
    FILE_BASIC_INFO basic;
    if (GetFileInformationByHandleEx(file, FileBasicInfo, &basic, sizeof basic))
        stamp.changed = StampTime(basic.ChangeTime.QuadPart);
    return stamp;
}

bool IsFolder(DWORD attributes) {
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// The coarsest modification-time resolution of the file systems a settings file may live on (FAT: 2 s).
constexpr int64_t kTimeResolutionTicks = 20'000'000;

// Both times count: an edit that puts back an old last-write time still sets the change time, which shows
// it only once it lies outside the clock's resolution.
bool IsSettled(const FileStamp& stamp) {
    FILETIME now;
    GetSystemTimeAsFileTime(&now);
    return Ticks(now) - std::max(stamp.modified, stamp.changed) > kTimeResolutionTicks;
}

WriteFault FaultOf(DWORD error) {
    switch (error) {
        case ERROR_DISK_FULL:
        case ERROR_HANDLE_DISK_FULL:
        case ERROR_FILE_TOO_LARGE:
            return WriteFault::DiskFull;
        case ERROR_ACCESS_DENIED:
        case ERROR_WRITE_PROTECT:
            return WriteFault::ReadOnlyFolder;
        case ERROR_SHARING_VIOLATION:
        case ERROR_LOCK_VIOLATION:
        case ERROR_UNABLE_TO_REMOVE_REPLACED:
            return WriteFault::Locked;
        default:
            return WriteFault::WriteFailed;
    }
}

bool WriteAll(HANDLE file, const std::string& bytes) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const DWORD chunk = static_cast<DWORD>(std::min<std::size_t>(bytes.size() - done, 1u << 30));
        DWORD written = 0;
        if (!WriteFile(file, bytes.data() + done, chunk, &written, nullptr) || written == 0)
            return false;
        done += written;
    }
    return true;
}

std::string NameOf(const std::string& path) {
    return path.substr(path.find_last_of("\\/") + 1);
}

// Six random letters and digits, as the POSIX build's mkstemp makes them.
std::string RandomSuffix() {
    static constexpr char kAlphabet[] = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    static std::mt19937 random(std::random_device{}() ^ GetCurrentProcessId() ^ GetTickCount());
    std::string suffix(kTemporarySuffixLength, 'X');
    for (char& c : suffix)
        c = kAlphabet[random() % (sizeof kAlphabet - 1)];
    return suffix;
}

// A new file beside `target` holding `bytes`, flushed to the disk; "" when it could not be made whole.
std::string WriteTemporary(const std::string& target, const std::string& bytes) {
    const std::string start = FolderOf(target) + "\\" + TemporaryPrefix(NameOf(target));
    for (int attempt = 0; attempt < 100; ++attempt) {
        const std::string name = start + RandomSuffix();
        bool ok = false;
        {
            const Handle file(CreateFileA(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                          FILE_ATTRIBUTE_NORMAL, nullptr));
            if (!file.Valid() && GetLastError() == ERROR_FILE_EXISTS)
                continue;
            if (!file.Valid())
                return {};
            ok = WriteAll(file.Get(), bytes) && FlushFileBuffers(file.Get());
        }
        if (ok)
            return name;
        const DWORD error = GetLastError();
        DeleteFileA(name.c_str());
        SetLastError(error);
        return {};
    }
    return {};
}

}  // namespace

std::optional<FileDetails> DetailsOf(const std::string& path) {
    WIN32_FILE_ATTRIBUTE_DATA own;
    if (path.empty() || !GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &own))
        return std::nullopt;
    FileDetails details;
    details.symbolicLink = (own.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
    BY_HANDLE_FILE_INFORMATION target;
    bool followed = false;
    if (details.symbolicLink) {
        const Handle handle(OpenExisting(path, 0));
        followed = handle.Valid() && GetFileInformationByHandle(handle.Get(), &target);
    }
    const DWORD attributes = followed ? target.dwFileAttributes : own.dwFileAttributes;
    details.directory = IsFolder(attributes);
    const uint64_t size = followed ? Combined(target.nFileSizeHigh, target.nFileSizeLow)
                                   : Combined(own.nFileSizeHigh, own.nFileSizeLow);
    details.size = details.directory ? 0 : size;
    details.lastWrite = Nanoseconds(followed ? target.ftLastWriteTime : own.ftLastWriteTime);
    details.lastAccess = Nanoseconds(followed ? target.ftLastAccessTime : own.ftLastAccessTime);
    details.creation = Nanoseconds(followed ? target.ftCreationTime : own.ftCreationTime);
    details.readOnly = (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    details.hidden = (attributes & FILE_ATTRIBUTE_HIDDEN) != 0;
    return details;
}

std::vector<std::string> NamesIn(const std::string& folder, bool folders) {
    std::vector<std::string> names;
    if (folder.empty())
        return names;
    const bool separated = folder.back() == '\\' || folder.back() == '/';
    WIN32_FIND_DATAA entry;
    HANDLE listing = FindFirstFileExA((folder + (separated ? "*" : "\\*")).c_str(), FindExInfoBasic, &entry,
                                      FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH);
    if (listing == INVALID_HANDLE_VALUE)
        return names;
    do {
        const std::string_view name = entry.cFileName;
        if (name != "." && name != ".." && IsFolder(entry.dwFileAttributes) == folders)
            names.emplace_back(name);
    } while (FindNextFileA(listing, &entry));
    FindClose(listing);
    return names;
}

std::optional<FileStamp> StampOf(const std::string& path) {
    const Handle file(OpenExisting(path, 0));
    BY_HANDLE_FILE_INFORMATION info;
    if (!file.Valid() || !GetFileInformationByHandle(file.Get(), &info) || IsFolder(info.dwFileAttributes))
        return std::nullopt;
    return StampFrom(file.Get(), info);
}

std::optional<FileContent> ReadFile(const std::string& path) {
    const Handle file(OpenExisting(path, GENERIC_READ));
    BY_HANDLE_FILE_INFORMATION info;
    if (!file.Valid() || GetFileType(file.Get()) != FILE_TYPE_DISK ||
        !GetFileInformationByHandle(file.Get(), &info) || IsFolder(info.dwFileAttributes))
        return std::nullopt;
    FileContent content;
    content.stamp = StampFrom(file.Get(), info);
    content.settled = IsSettled(content.stamp);
    content.bytes.resize(static_cast<std::size_t>(content.stamp.size));
    std::size_t done = 0;
    while (done < content.bytes.size()) {
        const DWORD chunk = static_cast<DWORD>(std::min<std::size_t>(content.bytes.size() - done, 1u << 30));
        DWORD got = 0;
        if (!::ReadFile(file.Get(), content.bytes.data() + done, chunk, &got, nullptr))
            return std::nullopt;
        if (got == 0)
            break;
        done += got;
    }
    // A file that shrank while it was read ends where the reading did.
    content.bytes.resize(done);
    return content;
}

// Windows links need privileges that the program does not ask for; a path is written as it is.
std::string WriteTargetOf(const std::string& path) {
    return path;
}

WriteFault ReplaceObstacle(const std::string& path) {
    const DWORD folder = GetFileAttributesA(FolderOf(path).c_str());
    if (folder == INVALID_FILE_ATTRIBUTES || !IsFolder(folder))
        return WriteFault::NoFolder;
    const DWORD attributes = GetFileAttributesA(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return GetLastError() == ERROR_FILE_NOT_FOUND ? WriteFault::None : WriteFault::NotAFile;
    if (IsFolder(attributes))
        return WriteFault::NotAFile;
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0)
        return WriteFault::ReadOnlyFile;
    // The access rules of the file itself decide whether this user may change it.
    const Handle file(OpenExisting(path, GENERIC_READ | GENERIC_WRITE));
    if (!file.Valid())
        return GetLastError() == ERROR_SHARING_VIOLATION ? WriteFault::Locked : WriteFault::ReadOnlyFile;
    return GetFileType(file.Get()) == FILE_TYPE_DISK ? WriteFault::None : WriteFault::NotAFile;
}

std::optional<FileStamp> ReplaceFile(const std::string& path, const std::string& bytes, WriteFault* fault) {
    if (fault != nullptr)
        *fault = WriteFault::None;
    const std::string temporary = WriteTemporary(path, bytes);
    if (temporary.empty()) {
        if (fault != nullptr)
            *fault = FaultOf(GetLastError());
        return std::nullopt;
    }
    // ReplaceFileA keeps the old file's attributes and access rules; a new file is simply moved in place.
    const bool replaced = GetFileAttributesA(path.c_str()) != INVALID_FILE_ATTRIBUTES
                              ? ReplaceFileA(path.c_str(), temporary.c_str(), nullptr,
                                             REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr) != FALSE
                              : MoveFileExA(temporary.c_str(), path.c_str(), MOVEFILE_WRITE_THROUGH) != FALSE;
    if (!replaced) {
        const DWORD error = GetLastError();
        DeleteFileA(temporary.c_str());
        if (fault != nullptr)
            *fault = FaultOf(error);
        return std::nullopt;
    }
    std::optional<FileStamp> stamp = StampOf(path);
    // Replaced, but not to be told apart from a later edit: the copy must be read again, as after a failure.
    if (!stamp && fault != nullptr)
        *fault = WriteFault::WriteFailed;
    return stamp;
}

void RemoveLeftovers(const std::string& path) {
    const std::string folder = FolderOf(path);
    const std::string name = NameOf(path);
    WIN32_FIND_DATAA found;
    const HANDLE search = FindFirstFileA((folder + "\\" + TemporaryPrefix(name) + "*").c_str(), &found);
    if (search == INVALID_HANDLE_VALUE)
        return;
    do {
        if (!IsFolder(found.dwFileAttributes) && IsTemporaryName(found.cFileName, name))
            DeleteFileA((folder + "\\" + found.cFileName).c_str());
    } while (FindNextFileA(search, &found));
    FindClose(search);
}

void SetStampResolution(int64_t nanoseconds) {
    g_stampResolutionTicks = nanoseconds / 100;
}

}  // namespace platform
