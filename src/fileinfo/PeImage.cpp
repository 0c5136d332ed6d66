#include "fileinfo/PeImage.h"

#include <algorithm>

#include "fileinfo/LittleEndian.h"

using mLittleEndian::LoadU16;
using mLittleEndian::LoadU32;

namespace {

constexpr uint32_t kNewHeaderPointer = 0x3C;
constexpr uint32_t kFileHeaderSize = 24;  // "PE\0\0" and the COFF file header
constexpr uint16_t kMagicPe32 = 0x10B;
constexpr uint16_t kMagicPe32Plus = 0x20B;
constexpr uint32_t kSectionHeaderSize = 40;
constexpr uint32_t kResourceDirectoryIndex = 2;
constexpr uint32_t kDirectoryHeaderSize = 16;
constexpr uint32_t kDirectoryEntrySize = 8;
constexpr uint32_t kDataEntrySize = 16;
constexpr uint32_t kSubdirectoryBit = 0x80000000u;
constexpr uint32_t kVersionResourceType = 16;

struct OptionalHeaderLayout {
    uint32_t directoryCount;  // offset of NumberOfRvaAndSizes
    uint32_t directories;     // offset of the first data directory
};

std::optional<OptionalHeaderLayout> LayoutFor(uint16_t magic) {
    if (magic == kMagicPe32)
        return OptionalHeaderLayout{92, 96};
    if (magic == kMagicPe32Plus)
        return OptionalHeaderLayout{108, 112};
    return std::nullopt;
}

}  // namespace

PeImage::PeImage(std::istream& image) : m_image(image) {
    m_image.clear();
    m_image.seekg(0, std::ios::end);
    std::streamoff end = m_image.tellg();
    m_size = end > 0 ? static_cast<uint64_t>(end) : 0;
}

std::optional<std::string> PeImage::VersionResource() {
    if (!ReadHeaders())
        return std::nullopt;
    std::optional<uint32_t> names = Subdirectory(FindEntry(0, kVersionResourceType));
    std::optional<uint32_t> languages = names ? Subdirectory(FindEntry(*names)) : std::nullopt;
    return languages ? ReadDataEntry(FindEntry(*languages)) : std::nullopt;
}

bool PeImage::ReadHeaders() {
    std::optional<std::string> dos = ReadAt(0, kNewHeaderPointer + 4);
    if (!dos || dos->compare(0, 2, "MZ") != 0)
        return false;
    uint64_t peOffset = LoadU32(*dos, kNewHeaderPointer);
    std::optional<std::string> file = ReadAt(peOffset, kFileHeaderSize);
    if (!file || file->compare(0, 4, std::string("PE\0\0", 4)) != 0)
        return false;
    uint16_t sectionCount = LoadU16(*file, 6);
    uint16_t optionalSize = LoadU16(*file, 20);
    std::optional<std::string> optional = ReadAt(peOffset + kFileHeaderSize, optionalSize);
    if (!optional || optionalSize < 2)
        return false;
    std::optional<OptionalHeaderLayout> layout = LayoutFor(LoadU16(*optional, 0));
    uint32_t resourceEntry = layout ? layout->directories + kResourceDirectoryIndex * 8 : 0;
    if (!layout || resourceEntry + 8 > optionalSize ||
        LoadU32(*optional, layout->directoryCount) <= kResourceDirectoryIndex)
        return false;
    m_resourceRva = LoadU32(*optional, resourceEntry);
    return m_resourceRva != 0 && ReadSections(peOffset + kFileHeaderSize + optionalSize, sectionCount);
}

bool PeImage::ReadSections(uint64_t tableOffset, uint16_t count) {
    std::optional<std::string> table = ReadAt(tableOffset, uint64_t{count} * kSectionHeaderSize);
    if (!table)
        return false;
    m_sections.clear();
    for (uint32_t at = 0; at < table->size(); at += kSectionHeaderSize) {
        uint32_t virtualSize = LoadU32(*table, at + 8);
        uint32_t rawSize = LoadU32(*table, at + 16);
        // The loader maps only the virtual size; an old linker may leave it 0, then the raw size counts.
        uint32_t span = virtualSize == 0 ? rawSize : std::min(virtualSize, rawSize);
        m_sections.push_back(Section{LoadU32(*table, at + 12), span, LoadU32(*table, at + 20)});
    }
    return true;
}

std::optional<std::string> PeImage::ReadAt(uint64_t offset, uint64_t length) {
    if (offset > m_size || length > m_size - offset)
        return std::nullopt;
    std::string bytes(static_cast<std::size_t>(length), '\0');
    m_image.clear();
    m_image.seekg(static_cast<std::streamoff>(offset));
    m_image.read(bytes.data(), static_cast<std::streamsize>(length));
    if (m_image.gcount() != static_cast<std::streamsize>(length))
        return std::nullopt;
    return bytes;
}

std::optional<std::string> PeImage::ReadRva(uint64_t rva, uint64_t length) {
    for (const Section& section : m_sections) {
        if (rva < section.virtualAddress || rva - section.virtualAddress >= section.span)
            continue;
        uint64_t into = rva - section.virtualAddress;
        if (length > section.span - into)
            return std::nullopt;
        return ReadAt(uint64_t{section.rawOffset} + into, length);
    }
    return std::nullopt;
}

// The entry with the numeric name `name` (the first entry when no name is given) of the directory at
// `directoryOffset`, which counts from the start of the resource directory.
std::optional<PeImage::DirectoryEntry> PeImage::FindEntry(uint32_t directoryOffset,
                                                          std::optional<uint32_t> name) {
    uint64_t at = uint64_t{m_resourceRva} + directoryOffset;
    std::optional<std::string> header = ReadRva(at, kDirectoryHeaderSize);
    if (!header)
        return std::nullopt;
    uint32_t count = uint32_t{LoadU16(*header, 12)} + LoadU16(*header, 14);
    std::optional<std::string> table =
        ReadRva(at + kDirectoryHeaderSize, uint64_t{count} * kDirectoryEntrySize);
    for (uint32_t offset = 0; table && offset < table->size(); offset += kDirectoryEntrySize) {
        // A name given by a string has its top bit set, so it never equals a numeric name.
        DirectoryEntry entry{LoadU32(*table, offset), LoadU32(*table, offset + 4)};
        if (!name || entry.name == *name)
            return entry;
    }
    return std::nullopt;
}

std::optional<uint32_t> PeImage::Subdirectory(const std::optional<DirectoryEntry>& entry) const {
    if (!entry || (entry->target & kSubdirectoryBit) == 0)
        return std::nullopt;
    return entry->target & ~kSubdirectoryBit;
}

std::optional<std::string> PeImage::ReadDataEntry(const std::optional<DirectoryEntry>& entry) {
    if (!entry || (entry->target & kSubdirectoryBit) != 0)
        return std::nullopt;
    std::optional<std::string> data = ReadRva(uint64_t{m_resourceRva} + entry->target, kDataEntrySize);
    if (!data)
        return std::nullopt;
    uint32_t size = std::min(LoadU32(*data, 4), kMaxVersionResourceSize);
    return ReadRva(LoadU32(*data, 0), size);
}
