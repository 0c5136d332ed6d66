// File information on real files, folders and links, and its locale-independent texts.
#include "fileinfo/CFileInfo.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <functional>
#include <limits>

#include "support/TempDir.h"

namespace fs = std::filesystem;
using std::chrono::seconds;

namespace {

// Local time is UTC inside these tests, so that time texts are known in advance.
class CFileInfoTest : public ::testing::Test {
protected:
    void SetUp() override {
        const char* zone = std::getenv("TZ");
        m_savedZone = zone ? std::optional<std::string>(zone) : std::nullopt;
        SetZone("UTC");
    }
    void TearDown() override { SetZone(m_savedZone); }

    static CFileInfo Info(const std::string& path) {
        CFileInfo info;
        info.SetFullPathName(path);
        return info;
    }

    TempDir dir;

private:
    static void SetZone(const std::optional<std::string>& zone) {
        zone ? setenv("TZ", zone->c_str(), 1) : unsetenv("TZ");
        tzset();
    }

    std::optional<std::string> m_savedZone;
};

TEST_F(CFileInfoTest, SizeTexts) {
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
        {uint64_t{1} << 53, "9,007,199,254,740,992 bytes", "8,192.0 TB"},
        {std::numeric_limits<uint64_t>::max(), "18,446,744,073,709,551,615 bytes", "16,777,216.0 TB"}};
    for (const auto& [bytes, text, shortText] : sizes) {
        EXPECT_EQ(CFileInfo::FormatSize(bytes), text);
        EXPECT_EQ(CFileInfo::FormatShortSize(bytes), shortText);
    }
}

TEST_F(CFileInfoTest, TimeTexts) {
    EXPECT_EQ(CFileInfo::FormatTime(CFileInfo::Time{}), "1970-01-01 00:00:00");
    EXPECT_EQ(CFileInfo::FormatTime(CFileInfo::Time(seconds(-1))), "1969-12-31 23:59:59");
}

TEST_F(CFileInfoTest, ReadsSizeAndTimesOfAFile) {
    std::string path = dir.Write("tarvolin.exe", std::string(1536, 'x'));
    CFileInfo::Time written(seconds(1709647629) + std::chrono::microseconds(999'999));
    fs::last_write_time(path, fs::file_time_type::clock::from_sys(written));
    CFileInfo info = Info(path);
    ASSERT_TRUE(info.Exists());
    EXPECT_EQ(info.SizeText() + ", " + info.ShortSizeText(), "1,536 bytes, 1.5 KB");
    EXPECT_EQ(info.LastWriteTime(), written);
    EXPECT_EQ(info.LastWriteTimeText(), "2024-03-05 14:07:09");
    EXPECT_LT(*info.LastWriteTime(), *info.LastAccessTime());
    if (info.CreationTime()) {
        EXPECT_LT(*info.LastWriteTime(), *info.CreationTime());
    }
}

struct Entry {
    const char* name;
    std::function<std::string(const TempDir&)> make;
    const char* attributes;
    uint64_t size;
};

class CFileInfoEntries : public CFileInfoTest, public ::testing::WithParamInterface<Entry> {};

TEST_P(CFileInfoEntries, Attributes) {
    CFileInfo info = Info(GetParam().make(dir));
    EXPECT_EQ(info.AttributesText(), GetParam().attributes);
    EXPECT_EQ(info.Size(), GetParam().size);
    EXPECT_EQ(info.IsDirectory(), std::string(GetParam().attributes).starts_with("Directory"));
}

std::string ReadOnlyFile(const TempDir& dir) {
    std::string path = dir.Write("locked.ini", "12345");
    fs::permissions(path, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    return path;
}

std::string HiddenFolder(const TempDir& dir) {
    fs::create_directory(dir.File(".config"));
    return dir.File(".config") + "/";
}

std::string LinkToFile(const TempDir& dir) {
    fs::create_symlink(dir.Write("target", "1234"), dir.File("link"));
    return dir.File("link");
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, CFileInfoEntries,
    ::testing::Values(Entry{"File", [](const TempDir& d) { return d.Write("a.txt", "abc"); }, "Normal", 3},
                      Entry{"HiddenFile", [](const TempDir& d) { return d.Write(".profile", "ab"); },
                            "Hidden", 2},
                      Entry{"ReadOnlyFile", ReadOnlyFile, "Read-only", 5},
                      Entry{"Folder", [](const TempDir& d) { return d.File("."); }, "Directory", 0},
                      Entry{"HiddenFolderWithSlash", HiddenFolder, "Directory, Hidden", 0},
                      Entry{"LinkToFile", LinkToFile, "Symbolic link", 4}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(CFileInfoTest, MissingPathHasNothing) {
    for (const std::string& path : {std::string(), dir.File("missing"), dir.File("missing/child")}) {
        CFileInfo info = Info(path);
        EXPECT_FALSE(info.Exists());
        EXPECT_EQ(info.FullPathName(), path);
        EXPECT_EQ(info.Size() + info.Attributes(), 0u);
        EXPECT_FALSE(info.LastWriteTime());
        EXPECT_EQ(info.SizeText() + info.ShortSizeText() + info.LastWriteTimeText() + info.AttributesText(),
                  "");
    }
}

}  // namespace
