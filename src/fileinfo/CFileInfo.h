// A file's (or folder's) size, times and attributes, with texts to show them.
//
// The texts do not depend on the user's locale:
//   SizeText        "0 bytes", "1 byte", "1,234 bytes", "1,073,741,824 bytes" (comma as thousands separator)
//   ShortSizeText   below 1024 bytes as SizeText; above in units of 1024 with one decimal, rounded half up:
//                   "1.0 KB", "1.5 KB", "1,023.9 KB", "1.0 MB", "2.0 TB" (the largest unit is TB)
//   time texts      local time as "YYYY-MM-DD hh:mm:ss" with a 24-hour clock, "2024-03-05 14:07:09";
//                   "" for a time the file system does not record
//   AttributesText  the set attributes' names joined by ", " ("Directory, Read-only, Hidden, Symbolic
//                   link"), "Normal" when none is set
// A missing path gives Exists() false, size 0, no times and no attributes, and "" for every text.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/FileSystem.h"

class CFileInfo {
public:
    using Time = std::chrono::system_clock::time_point;

    // Attribute bits, with the values Windows gives them.
    static constexpr uint32_t kAttributeReadOnly = 0x0001;
    static constexpr uint32_t kAttributeHidden = 0x0002;
    static constexpr uint32_t kAttributeDirectory = 0x0010;
    static constexpr uint32_t kAttributeSymbolicLink = 0x0400;

    // Examines `path` at once; a symbolic link is followed (see platform::DetailsOf).
    void SetFullPathName(const std::string& path);
    const std::string& FullPathName() const { return m_fullPathName; }

    bool Exists() const { return m_details.has_value(); }

    // Bytes of a file; 0 for a folder.
    uint64_t Size() const;
    std::string SizeText() const;
    std::string ShortSizeText() const;

    std::optional<Time> LastWriteTime() const;
    std::optional<Time> LastAccessTime() const;
    std::optional<Time> CreationTime() const;
    std::string LastWriteTimeText() const { return TimeText(LastWriteTime()); }
    std::string LastAccessTimeText() const { return TimeText(LastAccessTime()); }
    std::string CreationTimeText() const { return TimeText(CreationTime()); }

    uint32_t Attributes() const;
    bool IsReadOnly() const { return (Attributes() & kAttributeReadOnly) != 0; }
    bool IsHidden() const { return (Attributes() & kAttributeHidden) != 0; }
    bool IsDirectory() const { return (Attributes() & kAttributeDirectory) != 0; }
    bool IsSymbolicLink() const { return (Attributes() & kAttributeSymbolicLink) != 0; }
    std::string AttributesText() const;

    // The formats described above, for any value.
    static std::string FormatSize(uint64_t bytes);
    static std::string FormatShortSize(uint64_t bytes);
    static std::string FormatTime(Time time);

private:
    static std::string TimeText(const std::optional<Time>& time);

    std::string m_fullPathName;
    std::optional<platform::FileDetails> m_details;
};
