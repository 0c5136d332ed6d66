// Builds version resources and the Windows executables that carry them, byte by byte, so that tests can
// check the reader against known content and then damage any field of it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace PeBuilder {

// One block of a version resource. Serialize computes its length; everything else is written as given.
struct Block {
    std::u16string key;
    std::string value;
    uint16_t valueLength = 0;
    uint16_t type = 0;
    std::vector<Block> children;
};

// The fixed part's fields a test chooses; the file version is always 1.2.3.4, the product version 5.6.7.8.
struct Fixed {
    uint32_t flagsMask = 0x3F;
    uint32_t flags = 0;
    uint32_t os = 0x40004;
    uint32_t type = 1;
    uint32_t subtype = 0;
};

using Strings = std::vector<std::pair<std::u16string, std::u16string>>;

std::string Utf16(const std::u16string& text);
void PutU16(std::string& bytes, std::size_t at, uint32_t value);
void PutU32(std::string& bytes, std::size_t at, uint32_t value);

Block TextBlock(const std::u16string& key, const std::u16string& value);
Block TableBlock(const std::u16string& translation, const Strings& strings);
Block StringFileInfoBlock(std::vector<Block> tables);
Block VarFileInfoBlock(const std::vector<uint32_t>& translations);
Block RootBlock(const Fixed& fixed, std::vector<Block> children);
std::string Serialize(const Block& block);

// A usual resource: fixed part, one translation 0409/04B0 and its table with the given strings.
std::string Resource(const Strings& strings, const Fixed& fixed = {});

// Where the parts of a built image lie, as file offsets. The resource directory's root is the start of the
// resource section (RVA 0x2000); the version resource's bytes start 96 bytes behind it.
struct Layout {
    std::size_t dosHeader = 0;
    std::size_t peHeader = 0;
    std::size_t optionalHeader = 0;
    std::size_t dataDirectories = 0;
    std::size_t sectionTable = 0;
    std::size_t resourceSection = 0;
    std::size_t nameDirectory = 0;
    std::size_t languageDirectory = 0;
    std::size_t dataEntry = 0;
    std::size_t data = 0;
};

struct Image {
    std::string bytes;
    Layout layout;
};

// A PE32 (or PE32+) image with a code section and a resource section that holds `resource` as its version
// resource; the root directory lists an icon type before the version type.
Image Build(const std::string& resource, bool pe32Plus = false);

}  // namespace PeBuilder
