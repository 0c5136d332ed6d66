// The file operations the settings-file engine needs beyond the standard library: a file's identity for
// the change check, and durable, atomic replacement of a file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace platform {

// What identifies one version of a file: another program's edit or replacement changes at least one field.
struct FileStamp {
    uint64_t device = 0;
    uint64_t identity = 0;  // inode or file index
    uint64_t size = 0;
    int64_t modified = 0;  // nanoseconds or the OS's own ticks; only compared for equality

    bool operator==(const FileStamp&) const = default;
};

struct FileContent {
    std::string bytes;
    FileStamp stamp;
    // False while the file's modification time is too recent to tell a later edit of the same size apart:
    // file systems store that time coarsely (up to 2 s), so such a copy must be read again next time.
    bool settled = false;
};

// The stamp of a regular file; nothing for a missing file, a folder or anything else.
std::optional<FileStamp> StampOf(const std::string& path);

// The whole content of a regular file with the stamp of what was read; nothing when it cannot be read.
std::optional<FileContent> ReadFile(const std::string& path);

// True when ReplaceFile may write `path`: its folder exists and is writable, and the path is either missing
// or a regular file that is not read-only. Permission bits are honoured even for the superuser, so a
// read-only settings file stays untouched whoever runs the program.
bool CanReplaceFile(const std::string& path);

// Replaces the content of `path` (following a symbolic link) with `bytes`: writes a temporary file beside
// it, flushes it to the disk and renames it over the old one, so the file is either entirely old or entirely
// new. Keeps the old file's permissions. Returns the new file's stamp, or nothing when the write failed, in
// which case the old file is as it was and no temporary file is left behind.
std::optional<FileStamp> ReplaceFile(const std::string& path, const std::string& bytes);

}  // namespace platform
