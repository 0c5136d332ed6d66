// File information on real files, folders and links, and its locale-independent texts.
#include "fileinfo/CFileInfo.h"

#include <gtest/gtest.h>

#include <ctime>
#include <filesystem>
#include <limits>

#include "platform/NativePath.h"
#include "platform/ScopedEnvironment.h"
#include "support/Portable.h"
#include "support/TempDir.h"

namespace fs = std::filesystem;
using std::chrono::seconds;

namespace {

TEST(CFileInfoFormat, SizeTexts) {
    const std::tuple<uint64_t, const char*, const char*> sizes[] = {
        {0, "0 bytes", "0 bytes"},
        {1, "1 byte", "1 byte"},
        {1023, "1,023 bytes", "1,023 bytes"},
        {1024, "1,024 bytes", "1.0 KB"},
        {1075, "1,075 bytes", "1.0 KB"},
        {1076, "1,076 bytes", "1.1 KB"},
        {1048524, "1,048,524 bytes", "1,023.9 KB"},
        {1048525, "1,048,525 bytes", "1.0 MB"},
        {uint64_t{5} << 30, "5,368,709,120 bytes", "5.0 GB"},
        {std::numeric_limits<uint64_t>::max(), "18,446,744,073,709,551,615 bytes", "16,777,216.0 TB"}};
    for (const auto& [bytes, text, shortText] : sizes) {
        EXPECT_EQ(CFileInfo::FormatSize(bytes), text);
        EXPECT_EQ(CFileInfo::FormatShortSize(bytes), shortText);
    }
}

// Times are set in whole seconds, as the Windows C runtime sets no finer ones. Local time is UTC for a
// moment, so that the time texts are known in advance.
TEST(CFileInfo, ReadsSizeAndTimesOfAFile) {
    TempDir dir;
    std::string path = dir.Write("tarvolin.exe", std::string(1536, 'x'));
    CFileInfo::Time written(seconds(1709647629));
    fs::last_write_time(platform::PathOf(path), fs::file_time_type::clock::from_sys(written));
    CFileInfo info;
    info.SetFullPathName(path);
    EXPECT_EQ(info.SizeText() + ", " + info.ShortSizeText(), "1,536 bytes, 1.5 KB");
    EXPECT_EQ(info.LastWriteTime(), written);
    EXPECT_LT(*info.LastWriteTime(), *info.LastAccessTime());
    {
        ScopedEnvironment zone;
        zone.Set("TZ", "UTC");
        tzset();
        EXPECT_EQ(info.LastWriteTimeText(), "2024-03-05 14:07:09");
        EXPECT_EQ(CFileInfo::FormatTime(written + std::chrono::microseconds(999'999)), "2024-03-05 14:07:09");
#ifndef _WIN32
        // The Windows C runtime has no local time before 1970, so such a time has no text there.
        EXPECT_EQ(CFileInfo::FormatTime(CFileInfo::Time(seconds(-1))), "1969-12-31 23:59:59");
#endif
    }
    tzset();
}

// Files, folders and links as they are, and paths that lead nowhere (their attributes "").
TEST(CFileInfo, AttributesOfWhatAPathNames) {
    ONLY_ON_LINUX("dot names, permission bits and symbolic links; the Windows attributes are tested there.");
    TempDir dir;
    std::string locked = dir.Write("locked.ini", "12345");
    fs::permissions(locked, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    fs::create_directory(dir.File(".config"));
    fs::create_symlink(dir.Write("target", "1234"), dir.File("link"));
    const std::tuple<std::string, std::string, uint64_t> entries[] = {
        {dir.Write("a.txt", "abc"), "Normal", 3},
        {dir.Write(".profile", "ab"), "Hidden", 2},
        {locked, "Read-only", 5},
        {dir.File("."), "Directory", 0},
        {dir.File(".config") + "/", "Directory, Hidden", 0},
        {dir.File("link"), "Symbolic link", 4},
        {"", "", 0},
        {dir.File("missing/child"), "", 0}};
    for (const auto& [path, attributes, size] : entries) {
        CFileInfo info;
        info.SetFullPathName(path);
        EXPECT_EQ(info.AttributesText(), attributes) << path;
        EXPECT_EQ(info.Size(), size) << path;
        EXPECT_EQ(info.IsDirectory(), attributes.starts_with("Directory")) << path;
        EXPECT_EQ(info.Exists(), !attributes.empty()) << path;
        EXPECT_EQ(info.SizeText().empty() && info.LastWriteTimeText().empty(), attributes.empty()) << path;
    }
}

}  // namespace
