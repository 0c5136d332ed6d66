// The version reader on real files: built images and executables made by a real Windows tool chain, the
// texts of the fixed part, and every kind of path that has no version information.
#include "fileinfo/CFileVersionInfo.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "fileinfo/PeBuilder.h"
#include "support/TempDir.h"

using namespace PeBuilder;

namespace {

const Strings kStrings = {{u"ProductName", u"Tarvolin"},
                          {u"ProductVersion", u"0.99 beta"},
                          {u"LegalCopyright", u"\u00A9 2024 Tarvo Works"}};

class VersionInfoFormats : public ::testing::TestWithParam<bool> {};

TEST_P(VersionInfoFormats, ReadsABuiltImage) {
    TempDir dir;
    Fixed fixed;
    fixed.flags = 0x3F;
    fixed.flagsMask = 0x2B;
    std::string path = dir.Write("tarvolin.exe", Build(Resource(kStrings, fixed), GetParam()).bytes);
    CFileVersionInfo info;
    info.SetFullPathName(path);
    ASSERT_TRUE(info.IsVersionInfoAvailable());
    EXPECT_EQ(info.FullPathName(), path);
    EXPECT_EQ(info.ProductName() + " " + info.ProductVersion(), "Tarvolin 0.99 beta");
    EXPECT_EQ(info.LegalCopyright(), "\xC2\xA9 2024 Tarvo Works");
    EXPECT_EQ(info.StringValue("productNAME"), "Tarvolin");
    EXPECT_EQ(info.CompanyName(), "");
    EXPECT_EQ(info.Translation(), "040904B0");
    EXPECT_EQ(info.FixedFileVersion() + " " + info.FixedProductVersion(), "1.2.3.4 5.6.7.8");
    EXPECT_GT(info.ProductVersionNumber(), info.FileVersionNumber());
    EXPECT_EQ(info.FileFlags(), 0x2Bu);
    EXPECT_EQ(info.FileFlagsText(), "Debug, Prerelease, Private build, Special build");
}

INSTANTIATE_TEST_SUITE_P(Pe, VersionInfoFormats, ::testing::Values(false, true),
                         [](const auto& info) { return info.param ? "Pe32Plus" : "Pe32"; });

struct FixedTexts {
    uint32_t os, type, subtype;
    const char* osText;
    const char* typeText;
};

class VersionInfoTexts : public ::testing::TestWithParam<FixedTexts> {};

TEST_P(VersionInfoTexts, NameOsAndType) {
    TempDir dir;
    Fixed fixed{0x3F, 0, GetParam().os, GetParam().type, GetParam().subtype};
    CFileVersionInfo info;
    info.SetFullPathName(dir.Write("a.dll", Build(Resource({}, fixed)).bytes));
    EXPECT_EQ(info.FileOSText(), GetParam().osText);
    EXPECT_EQ(info.FileTypeText(), GetParam().typeText);
    EXPECT_EQ(info.FileFlagsText(), "");
}

INSTANTIATE_TEST_SUITE_P(
    Fixed, VersionInfoTexts,
    ::testing::Values(FixedTexts{0x40004, 1, 0, "Windows NT, Windows 32-bit", "Application"},
                      FixedTexts{0x10001, 2, 0, "MS-DOS, Windows 16-bit", "Dynamic-link library"},
                      FixedTexts{0x00004, 3, 4, "Windows 32-bit", "Driver (Display)"},
                      FixedTexts{0x40000, 3, 12, "Windows NT", "Driver (Versioned printer)"},
                      FixedTexts{0x00000, 4, 3, "Unknown", "Font (TrueType)"},
                      FixedTexts{0x30003, 3, 13, "OS/2 32-bit, Presentation Manager 32-bit",
                                 "Driver (Unknown (0xD))"},
                      FixedTexts{0x90004, 6, 0, "Unknown (0x90000), Windows 32-bit", "Unknown (0x6)"},
                      FixedTexts{0x50000, 0, 0, "Windows CE", "Unknown"}));

// Executables made once by a Windows cross tool chain from fixtures/version.rc; see fixtures/README.md.
class VersionInfoFixtures : public ::testing::TestWithParam<const char*> {};

TEST_P(VersionInfoFixtures, ReadsARealExecutable) {
    CFileVersionInfo info;
    info.SetFullPathName(std::string(PAVONEL_SOURCE_DIR) + "/tests/fileinfo/fixtures/" + GetParam());
    ASSERT_TRUE(info.IsVersionInfoAvailable());
    EXPECT_EQ(info.ProductName() + " " + info.ProductVersion(), "Tarvolin 1.4 Gold");
    EXPECT_EQ(info.FileDescription(), "Tarvolin \xE2\x80\x93 transport company");
    EXPECT_EQ(info.FixedFileVersion(), "1.4.0.212");
    EXPECT_EQ(info.Translation(), "040704E4");
    EXPECT_EQ(info.FileFlagsText() + "; " + info.FileOSText() + "; " + info.FileTypeText(),
              "Prerelease; Windows NT, Windows 32-bit; Application");
}

INSTANTIATE_TEST_SUITE_P(Mingw, VersionInfoFixtures, ::testing::Values("version32.exe", "version64.exe"),
                         [](const auto& info) { return std::string(info.param).substr(0, 9); });

TEST(CFileVersionInfo, PathsWithoutVersionInformation) {
    TempDir dir;
    Image image = Build(Resource(kStrings));
    std::filesystem::create_directory(dir.File("folder.exe"));
    const std::string paths[] = {"",
                                 dir.File("missing.exe"),
                                 dir.File("folder.exe"),
                                 dir.Write("empty.exe", ""),
                                 dir.Write("text.exe", "MZ but not really an executable"),
                                 dir.Write("cut.exe", image.bytes.substr(0, image.layout.data + 20))};
    CFileVersionInfo info;
    for (const std::string& path : paths) {
        info.SetFullPathName(dir.Write("good.exe", image.bytes));
        ASSERT_TRUE(info.IsVersionInfoAvailable());
        info.SetFullPathName(path);
        EXPECT_FALSE(info.IsVersionInfoAvailable()) << path;
        EXPECT_EQ(info.FullPathName(), path);
        EXPECT_EQ(info.ProductName() + info.ProductVersion() + info.FixedFileVersion() + info.FileTypeText(),
                  "");
    }
}

}  // namespace
