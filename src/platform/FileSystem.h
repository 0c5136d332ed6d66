// The file operations the program needs beyond the standard library: a file's identity for the settings
// engine's change check, durable and atomic replacement of a file with the cleaning of what a crashed
// replacement left, and a file's times and attributes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace platform {

// What identifies one version of a file: another program's edit or replacement changes at least one field.
struct FileStamp {
    uint64_t device = 0;
    uint64_t identity = 0;  // inode or file index
    uint64_t size = 0;
    int64_t modified = 0;  // nanoseconds or the OS's own ticks; only compared for equality
    int64_t changed = 0;   // the status-change time where the OS keeps one (no program can set it), else 0

    bool operator==(const FileStamp&) const = default;
};

struct FileContent {
    std::string bytes;
    FileStamp stamp;
    // False while the file's modification or change time is too recent to tell a later edit of the same
    // size apart: file systems store times coarsely (up to 2 s), and another program may put an old
    // modification time back, so such a copy must be read again next time.
    bool settled = false;
};

// What the file information shows of a file or folder. Times count nanoseconds since 1970-01-01 00:00 UTC.
struct FileDetails {
    uint64_t size = 0;  // 0 for a folder
    int64_t lastWrite = 0;
    int64_t lastAccess = 0;
    std::optional<int64_t> creation;  // nothing where the file system does not record it
    bool directory = false;
    bool readOnly = false;  // nobody may write it: no write permission bit on POSIX, the attribute on Windows
    bool hidden = false;    // a name beginning with "." on POSIX, the attribute on Windows
    bool symbolicLink = false;  // the path itself is a link; the other fields describe its target
};

// The details of an existing entry, following a symbolic link (a dangling link describes itself); nothing
// for a missing path or one that cannot be examined.
std::optional<FileDetails> DetailsOf(const std::string& path);

// The names in `folder` whose entry is a folder (`folders`) or anything else (`!folders`), a link counting as
// what it leads to, in the order the system lists them, without "." and ".."; none when the folder cannot
// be listed. Faster than the standard library's iterator, which makes a path of every entry.
std::vector<std::string> NamesIn(const std::string& folder, bool folders);

// The stamp of a regular file; nothing for a missing file, a folder or anything else.
std::optional<FileStamp> StampOf(const std::string& path);

// The whole content of a regular file with the stamp of what was read; nothing when it cannot be read or is
// anything else (a pipe or a device is never opened in a way that could wait for a writer).
std::optional<FileContent> ReadFile(const std::string& path);

// The file a write to `path` changes: the end of its chain of symbolic links, which need not exist yet (a
// dangling link is written through, never replaced); "" for a chain that loops or cannot be followed.
std::string WriteTargetOf(const std::string& path);

// Why a file was not written, in the terms a user can act on.
enum class WriteFault {
    None,            // written, or nothing needed writing
    NotAFile,        // a folder, a loop of links, a pipe or a device is in the file's place
    NoFolder,        // the folder it belongs in does not exist
    ReadOnlyFile,    // the file may not be changed
    ReadOnlyFolder,  // the folder does not let its files be replaced
    Locked,          // another copy of the program kept the file locked
    DiskFull,        // no space left, or a quota or size limit reached
    WriteFailed,     // any other failure of the disk
    LineBreak,       // the text would have broken the file's lines: refused
    NameTaken,       // a section was to be renamed onto another's name: the whole update was refused
};

// What keeps ReplaceFile from writing `path`, or None when it may: its folder exists and is writable, and
// the path is either missing or a regular file that is not read-only. Permission bits are honoured even for
// the superuser, so a read-only settings file stays untouched whoever runs the program.
WriteFault ReplaceObstacle(const std::string& path);

// Replaces the content of `path` (following a symbolic link) with `bytes`: writes a temporary file beside
// it, flushes it to the disk and renames it over the old one, so the file is either entirely old or entirely
// new. Keeps the old file's permissions. Returns the new file's stamp, or nothing when the write failed, in
// which case the old file is as it was and no temporary file is left behind.
// A write beyond the process's file-size limit or the disk's space fails like any other write; `fault`, when
// given, then says why.
std::optional<FileStamp> ReplaceFile(const std::string& path, const std::string& bytes,
                                     WriteFault* fault = nullptr);

// Removes the temporary files that replacements of `path` interrupted by a crash left beside it. Only for a
// holder of the file's FileLock: every replacement still running holds that lock, so none of them is hit.
void RemoveLeftovers(const std::string& path);

// Makes every stamp's times whole multiples of `nanoseconds` (0 keeps them as stored), as a file system
// with a coarse clock stores them; tests use it to play such a file system on any disk.
void SetStampResolution(int64_t nanoseconds);

}  // namespace platform
