// Finding the version resource in PE32 and PE32+ images, and refusing every image whose headers, sections
// or resource tree lead outside the file.
#include "fileinfo/PeImage.h"

#include <gtest/gtest.h>

#include <sstream>

#include "fileinfo/VersionFixture.h"

using namespace VersionFixture;

namespace {

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

}  // namespace
