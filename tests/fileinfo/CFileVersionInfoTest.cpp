// The version reader on executables made by a real Windows tool chain, the texts of the fixed part, and
// every kind of path that has no version information.
#include "fileinfo/CFileVersionInfo.h"

#include <gtest/gtest.h>

#include <array>

#include "fileinfo/VersionFixture.h"
#include "support/TempDir.h"

using namespace VersionFixture;

namespace {

TEST(CFileVersionInfo, ReadsRealExecutables) {
    for (const char* name : kImages) {
        CFileVersionInfo info;
        info.SetFullPathName(PathOf(name));
        ASSERT_TRUE(info.IsVersionInfoAvailable()) << name;
        EXPECT_EQ(info.ProductName() + " " + info.ProductVersion(), "Tarvolin 1.4 Gold");
        EXPECT_EQ(info.FileDescription(), "Tarvolin \xE2\x80\x93 transport company");
        EXPECT_EQ(info.StringValue("companyNAME") + "|" + info.LegalCopyright(), "Tarvo Works|");
        EXPECT_EQ(info.FixedFileVersion(), "1.4.0.212");
        EXPECT_EQ(info.Translation(), "040704E4");
        EXPECT_EQ(info.FileFlagsText() + "; " + info.FileOSText() + "; " + info.FileTypeText(),
                  "Prerelease; Windows NT, Windows 32-bit; Application");
    }
}

TEST(CFileVersionInfo, NamesFlagsOsAndType) {
    // The fixed part's flags mask, flags, OS, type and subtype, and the texts they give.
    const std::pair<std::array<uint32_t, 5>, const char*> cases[] = {
        {{0x2B, 0x3F, 0x40004, 1, 0},
         "Debug, Prerelease, Private build, Special build; Windows NT, Windows 32-bit; Application"},
        {{0x3F, 0x14, 0x10001, 2, 0}, "Patched, Info inferred; MS-DOS, Windows 16-bit; Dynamic-link library"},
        {{0x3F, 0, 0x00004, 3, 4}, "; Windows 32-bit; Driver (Display)"},
        {{0x3F, 0, 0x00000, 4, 3}, "; Unknown; Font (TrueType)"},
        {{0x3F, 0, 0x30003, 3, 13}, "; OS/2 32-bit, Presentation Manager 32-bit; Driver (Unknown (0xD))"},
        {{0x3F, 0, 0x90004, 6, 0}, "; Unknown (0x90000), Windows 32-bit; Unknown (0x6)"},
        {{0x3F, 0, 0x50000, 0, 0}, "; Windows CE; Unknown"}};
    TempDir dir;
    for (const auto& [fields, texts] : cases) {
        std::string image = Bytes(kImages[0]);
        std::size_t at = LayoutOf(image).data + 64;
        for (uint32_t field : fields) {
            PutU32(image, at, field);
            at += 4;
        }
        CFileVersionInfo info;
        info.SetFullPathName(dir.Write("a.dll", image));
        EXPECT_EQ(info.FileFlagsText() + "; " + info.FileOSText() + "; " + info.FileTypeText(), texts);
    }
}

TEST(CFileVersionInfo, PathsWithoutVersionInformation) {
    TempDir dir;
    std::string image = Bytes(kImages[0]);
    const std::string paths[] = {"",
                                 dir.File("missing.exe"),
                                 dir.Path().string(),
                                 dir.Write("empty.exe", ""),
                                 dir.Write("text.exe", "MZ but not really an executable"),
                                 dir.Write("cut.exe", image.substr(0, LayoutOf(image).data + 20))};
    CFileVersionInfo info;
    for (const std::string& path : paths) {
        info.SetFullPathName(PathOf(kImages[0]));
        ASSERT_TRUE(info.IsVersionInfoAvailable());
        info.SetFullPathName(path);
        EXPECT_FALSE(info.IsVersionInfoAvailable()) << path;
        EXPECT_EQ(info.ProductName() + info.FixedFileVersion() + info.FileTypeText() + info.Translation(),
                  "");
    }
}

}  // namespace
