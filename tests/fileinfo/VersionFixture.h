// The executables of fixtures/ as bytes, where their parts lie, and the small edits that tests use to vary
// or damage them.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "fileinfo/LittleEndian.h"

namespace VersionFixture {

// A PE32 and a PE32+ executable with the same version resource of kResourceSize bytes.
inline const char* const kImages[] = {"version32.exe", "version64.exe"};
inline constexpr std::size_t kResourceSize = 692;

inline std::string PathOf(const std::string& name) {
    return std::string(PAVONEL_SOURCE_DIR) + "/tests/fileinfo/fixtures/" + name;
}

inline std::string Bytes(const std::string& name) {
    std::ifstream file(PathOf(name), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

// File offsets of an image's parts. windres lays out both resource sections alike: the root directory,
// the name level at 0x18, the language level at 0x30, the data entry at 0x48 and the resource at 0x58.
struct Layout {
    std::size_t dos, pe, optional, directories, section, root, names, languages, dataEntry, data;
};

inline Layout LayoutOf(std::string_view image) {
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
inline std::string Resource() {
    std::string image = Bytes(kImages[0]);
    return image.substr(LayoutOf(image).data, kResourceSize);
}

inline std::string Le32(uint32_t value) {
    return {static_cast<char>(value), static_cast<char>(value >> 8), static_cast<char>(value >> 16),
            static_cast<char>(value >> 24)};
}

inline void PutU16(std::string& bytes, std::size_t at, uint32_t value) {
    bytes.replace(at, 2, Le32(value), 0, 2);
}

inline void PutU32(std::string& bytes, std::size_t at, uint32_t value) {
    bytes.replace(at, 4, Le32(value));
}

inline std::string Utf16(std::u16string_view text) {
    std::string bytes;
    for (char16_t unit : text)
        bytes += Le32(unit).substr(0, 2);
    return bytes;
}

// Replaces the first `from` in `bytes` by `to`, which has the same size.
inline void Replace(std::string& bytes, std::string_view from, std::string_view to) {
    std::size_t at = bytes.find(from);
    ASSERT_NE(at, std::string::npos);
    bytes.replace(at, from.size(), to);
}

}  // namespace VersionFixture
