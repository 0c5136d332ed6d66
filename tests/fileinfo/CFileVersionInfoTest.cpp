// The version reader at each of its levels: finding the version resource in PE32 and PE32+ images, parsing
// it, and what CFileVersionInfo shows of real executables. Every image whose headers, sections or resource
// tree lead outside the file, and every damaged resource, is refused.
//
// The executables of fixtures/ are made by a real Windows tool chain; the tests vary or damage copies of them
// in memory. In the fixture's resource the fixed part starts at 40, StringFileInfo at 92, its first table
// ("040904B0") at 128 and that table's first string ("ProductName") at 152.
#include "fileinfo/CFileVersionInfo.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <string_view>
#include <tuple>

#include "fileinfo/LittleEndian.h"
#include "fileinfo/PeImage.h"
#include "fileinfo/VersionResource.h"
#include "support/TempDir.h"

namespace {

// A PE32 and a PE32+ executable with the same version resource of kResourceSize bytes.
const char* const kImages[] = {"version32.exe", "version64.exe"};
constexpr std::size_t kResourceSize = 692;

std::string PathOf(const std::string& name) {
    return std::string(PAVONEL_SOURCE_DIR) + "/tests/fileinfo/fixtures/" + name;
}

std::string Bytes(const std::string& name) {
    std::ifstream file(PathOf(name), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

// File offsets of an image's parts. windres lays out both resource sections alike: the root directory,
// the name level at 0x18, the language level at 0x30, the data entry at 0x48 and the resource at 0x58.
struct Layout {
    std::size_t dos, pe, optional, directories, section, root, names, languages, dataEntry, data;
};

Layout LayoutOf(std::string_view image) {
    using namespace mLittleEndian;
    std::size_t pe = LoadU32(image, 0x3C);
    std::size_t optional = pe + 24;
    std::size_t directories = optional + (LoadU16(image, optional) == 0x20B ? 112 : 96);
    // The resource section's header is the last of the table.
    std::size_t section = optional + LoadU16(image, pe + 20) + 40 * (LoadU16(image, pe + 6) - 1u);
    std::size_t root = LoadU32(image, section + 20);
    return {0, pe, optional, directories, section, root, root + 0x18, root + 0x30, root + 0x48, root + 0x58};
}

// The version resource of the PE32 image.
std::string Resource() {
    std::string image = Bytes(kImages[0]);
    return image.substr(LayoutOf(image).data, kResourceSize);
}

std::string Le32(uint32_t value) {
    return {static_cast<char>(value), static_cast<char>(value >> 8), static_cast<char>(value >> 16),
            static_cast<char>(value >> 24)};
}

void PutU16(std::string& bytes, std::size_t at, uint32_t value) {
    bytes.replace(at, 2, Le32(value), 0, 2);
}

void PutU32(std::string& bytes, std::size_t at, uint32_t value) {
    bytes.replace(at, 4, Le32(value));
}

std::string Utf16(std::u16string_view text) {
    std::string bytes;
    for (char16_t unit : text)
        bytes += Le32(unit).substr(0, 2);
    return bytes;
}

// Replaces the first `from` in `bytes` by `to`, which has the same size.
void Replace(std::string& bytes, std::string_view from, std::string_view to) {
    std::size_t at = bytes.find(from);
    ASSERT_NE(at, std::string::npos);
    bytes.replace(at, from.size(), to);
}

std::optional<std::string> VersionResourceOf(const std::string& bytes) {
    std::istringstream image(bytes);
    return PeImage(image).VersionResource();
}

// Whatever cuts the file or its resource section short, the resource is found exactly when all of it is in.
TEST(PeImage, FindsTheResourceOnlyWhenItIsWhole) {
    for (const char* name : kImages) {
        SCOPED_TRACE(name);
        std::string image = Bytes(name);
        Layout at = LayoutOf(image);
        std::size_t end = at.data + kResourceSize;
        EXPECT_EQ(VersionResourceOf(image), image.substr(at.data, kResourceSize));
        for (std::size_t size = 0; size <= end; ++size)
            EXPECT_EQ(VersionResourceOf(image.substr(0, size)).has_value(), size == end) << size;
        for (uint32_t span = 1; span <= end - at.root; ++span) {
            PutU32(image, at.section + 8, span);
            EXPECT_EQ(VersionResourceOf(image).has_value(), span == end - at.root) << span;
        }
    }
}

// A field overwritten with `value`: `width` bytes at `offset` behind the part of the image named by `part`.
struct Damage {
    const char* name;
    std::size_t Layout::*part;
    int offset;
    int width;
    uint32_t value;
};

class DamagedImage : public ::testing::TestWithParam<Damage> {};

TEST_P(DamagedImage, HasNoVersionResource) {
    for (const char* name : kImages) {
        std::string image = Bytes(name);
        const Damage& damage = GetParam();
        std::size_t at =
            static_cast<std::size_t>(static_cast<int>(LayoutOf(image).*damage.part) + damage.offset);
        (damage.width == 2 ? PutU16 : PutU32)(image, at, damage.value);
        EXPECT_FALSE(VersionResourceOf(image)) << name;
    }
}

constexpr uint32_t kSubdirectory = 0x80000000u;

INSTANTIATE_TEST_SUITE_P(
    Fields, DamagedImage,
    ::testing::Values(Damage{"NoDosSignature", &Layout::dos, 0, 2, 0x5A4E},
                      Damage{"PeHeaderBeyondFile", &Layout::dos, 0x3C, 4, 0xFFFFFFF0},
                      Damage{"NoPeSignature", &Layout::pe, 0, 4, 0x4551},
                      Damage{"UnknownMagic", &Layout::optional, 0, 2, 0x107},
                      Damage{"TooFewDirectories", &Layout::directories, -4, 4, 2},
                      Damage{"OptionalHeaderTooSmall", &Layout::pe, 20, 2, 96},
                      Damage{"NoResourceDirectory", &Layout::directories, 16, 4, 0},
                      Damage{"ResourceOutsideSections", &Layout::directories, 16, 4, 0x90000},
                      Damage{"SectionTableBeyondFile", &Layout::pe, 6, 2, 0xFFFF},
                      Damage{"SectionDataBeyondFile", &Layout::section, 20, 4, 0xFFFFFF00},
                      Damage{"NoVersionType", &Layout::root, 16, 4, 17},
                      Damage{"VersionTypeIsData", &Layout::root, 20, 4, 0x18},
                      Damage{"AbsurdEntryCounts", &Layout::root, 12, 4, 0xFFFFFFFF},
                      Damage{"EmptyNameDirectory", &Layout::names, 14, 2, 0},
                      Damage{"NameLevelLoopsToRoot", &Layout::names, 20, 4, kSubdirectory},
                      Damage{"LanguageLevelLoopsToRoot", &Layout::languages, 20, 4, kSubdirectory},
                      Damage{"DataEntryOutsideSection", &Layout::languages, 20, 4, 0x7FFFFFF0},
                      Damage{"DataRvaOutsideSections", &Layout::dataEntry, 0, 4, 0xFFFFFFFF},
                      Damage{"AbsurdDataSize", &Layout::dataEntry, 4, 4, 0xFFFFFFF0}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(VersionResource, ReadsFixedPartStringsAndTranslations) {
    std::string bytes = Resource();
    PutU32(bytes, 56, 0x50006);  // product version 5.6.7.8
    PutU32(bytes, 60, 0x70008);
    std::u16string text = u"Gr\u00FC\u00DFe";
    text += static_cast<char16_t>(0xD800);  // a high surrogate with no partner
    Replace(bytes, Utf16(u"Tarvo Works"), Utf16(text + u"\u6E38\u620F \U0001F3AE"));
    std::optional<VersionResource> resource = VersionResource::Parse(bytes);
    ASSERT_TRUE(resource && resource->Fixed() && resource->PreferredTable());
    EXPECT_EQ(resource->Fixed()->fileVersion.Text(), "1.4.0.212");
    EXPECT_EQ(resource->Fixed()->productVersion, (VersionNumber{{5, 6, 7, 8}}));
    EXPECT_EQ(resource->Translations(), std::vector<uint32_t>{0x04E40407});
    EXPECT_EQ(resource->PreferredTable()->strings.front().second,
              "Gr\xC3\xBC\xC3\x9F"
              "e\xEF\xBF\xBD\xE6\xB8\xB8\xE6\x88\x8F \xF0\x9F\x8E\xAE");
}

TEST(VersionResource, PicksTheTableTheTranslationListNamesElseAnEnglishOne) {
    // The fixture's two tables renamed to the first two, its one translation replaced, and the table chosen.
    const std::tuple<std::u16string, std::u16string, uint32_t, std::string> choices[] = {
        {u"040904B0", u"040704E4", 0x04E40407, "040704E4"},  // the list decides
        {u"040904b0", u"040704E4", 0x04B00409, "040904b0"},  // in any case
        // Else US English in Unicode, Latin-1, neutral, else the first table.
        {u"040904E4", u"040904B0", 0x04B00407, "040904B0"},
        {u"040704B0", u"040904E4", 0x04B0040C, "040904E4"},
        {u"040704B0", u"04090000", 0x04B0040C, "04090000"},
        {u"040C04B0", u"041004B0", 0x04B00407, "040C04B0"}};
    for (const auto& [first, second, translation, chosen] : choices) {
        std::string bytes = Resource();
        Replace(bytes, Utf16(u"040904B0"), Utf16(first));
        Replace(bytes, Utf16(u"040704E4"), Utf16(second));
        Replace(bytes, Le32(0x04E40407), Le32(translation));
        std::optional<VersionResource> resource = VersionResource::Parse(bytes);
        ASSERT_TRUE(resource && resource->PreferredTable());
        EXPECT_EQ(resource->PreferredTable()->translation, chosen);
    }
}

TEST(VersionResource, AcceptsWhatRealWritersProduce) {
    std::string bytes = Resource();
    PutU16(bytes, 154, 38);         // a text's length counted in bytes
    PutU16(bytes, 220, 'X');        // a text without its NUL, which then ends with its block
    bytes += std::string(8, '\0');  // zeros behind the root's last child
    PutU16(bytes, 0, static_cast<uint32_t>(bytes.size()));
    std::optional<VersionResource> resource = VersionResource::Parse(bytes);
    ASSERT_TRUE(resource && resource->Table("040904B0"));
    EXPECT_EQ(resource->Table("040904B0")->strings.front().second, "Tarvolin (English)X");
    EXPECT_EQ(resource->PreferredTable()->translation, "040704E4");
}

TEST(VersionResource, DamageAndEveryTruncationAreRejected) {
    const std::pair<std::size_t, uint16_t> damages[] = {{0, 0xFFFF},     // longer than the resource
                                                        {0, 4},          // shorter than a header
                                                        {0, 60},         // ends inside the fixed part
                                                        {6, 'X'},        // another root key
                                                        {40, 0x04BE},    // wrong signature
                                                        {92, 0x1000},    // child runs past the root
                                                        {92, 5},         // child shorter than a header
                                                        {128, 20},       // table name without its NUL
                                                        {152, 0xFFF0}};  // string runs past the table
    for (const auto& [offset, value] : damages) {
        std::string bytes = Resource();
        PutU16(bytes, offset, value);
        EXPECT_FALSE(VersionResource::Parse(bytes)) << offset << " " << value;
    }
    std::string bytes = Resource();
    for (std::size_t size = 0; size < bytes.size(); ++size)
        EXPECT_FALSE(VersionResource::Parse(bytes.substr(0, size))) << size;
}

// The texts of the fixed part's flags, OS and type.
std::string FixedTexts(const CFileVersionInfo& info) {
    return info.FileFlagsText() + "; " + info.FileOSText() + "; " + info.FileTypeText();
}

TEST(CFileVersionInfo, ReadsRealExecutables) {
    for (const char* name : kImages) {
        CFileVersionInfo info;
        info.SetFullPathName(PathOf(name));
        ASSERT_TRUE(info.IsVersionInfoAvailable()) << name;
        EXPECT_EQ(info.ProductName() + " " + info.ProductVersion() + "|" + info.FileDescription() + "|" +
                      info.StringValue("companyNAME") + "|" + info.LegalCopyright() + "|" +
                      info.FixedFileVersion() + "|" + info.Translation() + "|" + FixedTexts(info),
                  "Tarvolin 1.4 Gold|Tarvolin \xE2\x80\x93 transport company|Tarvo Works||1.4.0.212|040704E4|"
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
        EXPECT_EQ(FixedTexts(info), texts);
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
