// Finding the version resource in PE32 and PE32+ images, and refusing every image whose headers, sections
// or resource tree lead outside the file.
#include "fileinfo/PeImage.h"

#include <gtest/gtest.h>

#include <sstream>

#include "fileinfo/PeBuilder.h"

using namespace PeBuilder;

namespace {

const std::string kResource = Resource({{u"ProductName", u"Tarvolin"}, {u"ProductVersion", u"1.0"}});

std::optional<std::string> VersionResourceOf(const std::string& bytes) {
    std::istringstream image(bytes);
    return PeImage(image).VersionResource();
}

class PeFormats : public ::testing::TestWithParam<bool> {};

// Whatever the cut, the resource is found exactly when all of it is in the file.
TEST_P(PeFormats, FindsTheResourceOnlyWhenItIsWhole) {
    Image image = Build(kResource, GetParam());
    EXPECT_EQ(VersionResourceOf(image.bytes), kResource);
    std::size_t end = image.layout.data + kResource.size();
    for (std::size_t size = 0; size <= end; ++size)
        EXPECT_EQ(VersionResourceOf(image.bytes.substr(0, size)).has_value(), size == end) << size;
}

INSTANTIATE_TEST_SUITE_P(Pe, PeFormats, ::testing::Values(false, true),
                         [](const auto& info) { return info.param ? "Pe32Plus" : "Pe32"; });

// A field overwritten with `value`: `width` bytes at `offset` behind the part of the image named by `part`.
struct Damage {
    const char* name;
    std::size_t Layout::*part;
    int offset;
    int width;
    uint32_t value;
};

void PrintTo(const Damage& damage, std::ostream* out) {
    *out << damage.name;
}

class DamagedImage : public ::testing::TestWithParam<Damage> {};

TEST_P(DamagedImage, HasNoVersionResource) {
    for (bool pe32Plus : {false, true}) {
        Image image = Build(kResource, pe32Plus);
        const Damage& damage = GetParam();
        std::size_t at =
            static_cast<std::size_t>(static_cast<int>(image.layout.*damage.part) + damage.offset);
        (damage.width == 2 ? PutU16 : PutU32)(image.bytes, at, damage.value);
        EXPECT_FALSE(VersionResourceOf(image.bytes)) << (pe32Plus ? "PE32+" : "PE32");
    }
}

constexpr uint32_t kSubdirectory = 0x80000000u;

INSTANTIATE_TEST_SUITE_P(
    Headers, DamagedImage,
    ::testing::Values(Damage{"NoDosSignature", &Layout::dosHeader, 0, 2, 0x5A4E},
                      Damage{"PeHeaderBeyondFile", &Layout::dosHeader, 0x3C, 4, 0xFFFFFFF0},
                      Damage{"NoPeSignature", &Layout::peHeader, 0, 4, 0x4551},
                      Damage{"UnknownMagic", &Layout::optionalHeader, 0, 2, 0x107},
                      Damage{"TooFewDirectories", &Layout::dataDirectories, -4, 4, 2},
                      Damage{"OptionalHeaderTooSmall", &Layout::peHeader, 20, 2, 96},
                      Damage{"NoResourceDirectory", &Layout::dataDirectories, 16, 4, 0},
                      Damage{"ResourceOutsideSections", &Layout::dataDirectories, 16, 4, 0x9000},
                      Damage{"NoSections", &Layout::peHeader, 6, 2, 0},
                      Damage{"SectionTableBeyondFile", &Layout::peHeader, 6, 2, 0xFFFF},
                      Damage{"SectionDataBeyondFile", &Layout::sectionTable, 60, 4, 0xFFFFFF00},
                      Damage{"SectionEndsInsideDirectory", &Layout::sectionTable, 48, 4, 64},
                      Damage{"SectionEndsInsideResource", &Layout::sectionTable, 48, 4, 96 + 10}),
    [](const auto& info) { return std::string(info.param.name); });

INSTANTIATE_TEST_SUITE_P(
    ResourceTree, DamagedImage,
    ::testing::Values(Damage{"NoVersionType", &Layout::resourceSection, 24, 4, 17},
                      Damage{"VersionTypeIsData", &Layout::resourceSection, 28, 4, 32},
                      Damage{"AbsurdEntryCounts", &Layout::resourceSection, 12, 4, 0xFFFFFFFF},
                      Damage{"EmptyNameDirectory", &Layout::nameDirectory, 14, 2, 0},
                      Damage{"NameLevelLoopsToRoot", &Layout::nameDirectory, 20, 4, kSubdirectory},
                      Damage{"SubdirectoryFarAway", &Layout::nameDirectory, 20, 4, 0xFFFFFFFF},
                      Damage{"LanguageLevelLoopsToItself", &Layout::languageDirectory, 20, 4,
                             kSubdirectory | 56},
                      Damage{"DataEntryOutsideSection", &Layout::languageDirectory, 20, 4, 0x7FFFFFF0},
                      Damage{"DataRvaOutsideSections", &Layout::dataEntry, 0, 4, 0xFFFFFFFF},
                      Damage{"AbsurdDataSize", &Layout::dataEntry, 4, 4, 0xFFFFFFF0}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(PeImage, ReadsNothingFromAnEmptyOrForeignStream) {
    for (const std::string& bytes : {std::string(), std::string("MZ"), std::string(4096, 'M')})
        EXPECT_FALSE(VersionResourceOf(bytes));
}

}  // namespace
