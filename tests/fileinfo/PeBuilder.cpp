#include "fileinfo/PeBuilder.h"

namespace PeBuilder {
namespace {

constexpr uint32_t kResourceRva = 0x2000;
constexpr uint32_t kSubdirectory = 0x80000000u;
constexpr std::size_t kNameDirectory = 32;
constexpr std::size_t kLanguageDirectory = 56;
constexpr std::size_t kDataEntry = 80;
constexpr std::size_t kData = 96;

void PadTo4(std::string& bytes) {
    bytes.resize((bytes.size() + 3) & ~std::size_t{3}, '\0');
}

void PutU32s(std::string& bytes, std::size_t at, const std::vector<uint32_t>& values) {
    for (uint32_t value : values) {
        PutU32(bytes, at, value);
        at += 4;
    }
}

// A directory at `at` whose entries are (numeric name, target) pairs.
void PutDirectory(std::string& section, std::size_t at, const std::vector<uint32_t>& entries) {
    PutU16(section, at + 14, static_cast<uint32_t>(entries.size() / 2));
    PutU32s(section, at + 16, entries);
}

std::string ResourceSection(const std::string& resource) {
    std::string section(kData, '\0');
    PutDirectory(section, 0, {3, kSubdirectory | kLanguageDirectory, 16, kSubdirectory | kNameDirectory});
    PutDirectory(section, kNameDirectory, {1, kSubdirectory | kLanguageDirectory});
    PutDirectory(section, kLanguageDirectory, {0x409, kDataEntry});
    PutU32s(section, kDataEntry, {kResourceRva + kData, static_cast<uint32_t>(resource.size())});
    return section + resource;
}

// The headers for a code section and a resource section of `resourceSize` bytes at file offset 0x400.
Layout PutHeaders(std::string& bytes, bool pe32Plus, uint32_t resourceSize, uint32_t rawSize) {
    Layout layout{0, 0x40, 0x58};
    bytes.replace(0, 2, "MZ");
    PutU32(bytes, 0x3C, 0x40);
    bytes.replace(layout.peHeader, 4, std::string("PE\0\0", 4));
    uint32_t optionalSize = pe32Plus ? 240 : 224;
    PutU16(bytes, layout.peHeader + 4, pe32Plus ? 0x8664 : 0x14C);
    PutU16(bytes, layout.peHeader + 6, 2);
    PutU16(bytes, layout.peHeader + 20, optionalSize);
    PutU16(bytes, layout.optionalHeader, pe32Plus ? 0x20B : 0x10B);
    layout.dataDirectories = layout.optionalHeader + (pe32Plus ? 112 : 96);
    PutU32s(bytes, layout.dataDirectories - 4, {16, 0, 0, 0, 0, kResourceRva, resourceSize});
    layout.sectionTable = layout.optionalHeader + optionalSize;
    bytes.replace(layout.sectionTable, 5, ".text");
    PutU32s(bytes, layout.sectionTable + 8, {0x10, 0x1000, 0x200, 0x200});
    bytes.replace(layout.sectionTable + 40, 5, ".rsrc");
    PutU32s(bytes, layout.sectionTable + 48, {resourceSize, kResourceRva, rawSize, 0x400});
    return layout;
}

}  // namespace

std::string Utf16(const std::u16string& text) {
    std::string bytes(text.size() * 2, '\0');
    for (std::size_t i = 0; i < text.size(); ++i)
        PutU16(bytes, i * 2, text[i]);
    return bytes;
}

void PutU16(std::string& bytes, std::size_t at, uint32_t value) {
    bytes[at] = static_cast<char>(value & 0xFF);
    bytes[at + 1] = static_cast<char>(value >> 8 & 0xFF);
}

void PutU32(std::string& bytes, std::size_t at, uint32_t value) {
    PutU16(bytes, at, value & 0xFFFF);
    PutU16(bytes, at + 2, value >> 16);
}

Block TextBlock(const std::u16string& key, const std::u16string& value) {
    return Block{key, Utf16(value + u'\0'), static_cast<uint16_t>(value.size() + 1), 1, {}};
}

Block TableBlock(const std::u16string& translation, const Strings& strings) {
    Block table{translation, "", 0, 1, {}};
    for (const auto& [key, value] : strings)
        table.children.push_back(TextBlock(key, value));
    return table;
}

Block StringFileInfoBlock(std::vector<Block> tables) {
    return Block{u"StringFileInfo", "", 0, 1, std::move(tables)};
}

Block VarFileInfoBlock(const std::vector<uint32_t>& translations) {
    std::string value(translations.size() * 4, '\0');
    PutU32s(value, 0, translations);
    Block translation{u"Translation", value, static_cast<uint16_t>(value.size()), 0, {}};
    return Block{u"VarFileInfo", "", 0, 1, {translation}};
}

Block RootBlock(const Fixed& fixed, std::vector<Block> children) {
    std::string value(52, '\0');
    PutU32s(value, 0,
            {0xFEEF04BD, 0x10000, 0x10002, 0x30004, 0x50006, 0x70008, fixed.flagsMask, fixed.flags, fixed.os,
             fixed.type, fixed.subtype});
    return Block{u"VS_VERSION_INFO", value, 52, 0, std::move(children)};
}

std::string Serialize(const Block& block) {
    std::string bytes(6, '\0');
    bytes += Utf16(block.key + u'\0');
    PadTo4(bytes);
    bytes += block.value;
    for (const Block& child : block.children) {
        PadTo4(bytes);
        bytes += Serialize(child);
    }
    PutU16(bytes, 0, static_cast<uint32_t>(bytes.size()));
    PutU16(bytes, 2, block.valueLength);
    PutU16(bytes, 4, block.type);
    return bytes;
}

std::string Resource(const Strings& strings, const Fixed& fixed) {
    return Serialize(RootBlock(
        fixed, {StringFileInfoBlock({TableBlock(u"040904B0", strings)}), VarFileInfoBlock({0x04B00409})}));
}

Image Build(const std::string& resource, bool pe32Plus) {
    std::string section = ResourceSection(resource);
    uint32_t rawSize = static_cast<uint32_t>((section.size() + 0x1FF) & ~std::size_t{0x1FF});
    Image image{std::string(0x400 + rawSize, '\0'), {}};
    image.layout = PutHeaders(image.bytes, pe32Plus, static_cast<uint32_t>(section.size()), rawSize);
    image.bytes.replace(0x400, section.size(), section);
    image.layout.resourceSection = 0x400;
    image.layout.nameDirectory = 0x400 + kNameDirectory;
    image.layout.languageDirectory = 0x400 + kLanguageDirectory;
    image.layout.dataEntry = 0x400 + kDataEntry;
    image.layout.data = 0x400 + kData;
    return image;
}

}  // namespace PeBuilder
