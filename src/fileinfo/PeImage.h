// Finds the version resource in a Windows executable (PE32 or PE32+) without loading the file: it reads the
// headers, the section table, three levels of the resource directory and the resource itself, each read
// checked against the file's end and the section it must lie in, so a few megabytes at most are read
// whatever the file's size. A resource tree that points back at itself cannot make it loop, since it never
// goes deeper than the three levels a version resource lives at.
#pragma once

#include <cstdint>
#include <istream>
#include <optional>
#include <string>
#include <vector>

class PeImage {
public:
    // A version resource is one block whose 16-bit length field bounds it, so no more is ever read.
    static constexpr uint32_t kMaxVersionResourceSize = 0xFFFF;

    // `image` must stay alive while the PeImage is used; it is only read, from any position.
    explicit PeImage(std::istream& image);

    // The bytes of the first version resource (type 16, its first name, its first language), cut to
    // kMaxVersionResourceSize; nothing when the image is no PE file, has no such resource, or any offset on
    // the way leads outside the file or its sections.
    std::optional<std::string> VersionResource();

private:
    struct Section {
        uint32_t virtualAddress = 0;
        uint32_t span = 0;  // bytes of the section that the file holds
        uint32_t rawOffset = 0;
    };
    struct DirectoryEntry {
        uint32_t name = 0;
        uint32_t target = 0;
    };

    bool ReadHeaders();
    bool ReadSections(uint64_t tableOffset, uint16_t count);
    std::optional<std::string> ReadAt(uint64_t offset, uint64_t length);
    std::optional<std::string> ReadRva(uint64_t rva, uint64_t length);
    std::optional<DirectoryEntry> FindEntry(uint32_t directoryOffset, std::optional<uint32_t> name = {});
    std::optional<uint32_t> Subdirectory(const std::optional<DirectoryEntry>& entry) const;
    std::optional<std::string> ReadDataEntry(const std::optional<DirectoryEntry>& entry);

    std::istream& m_image;
    uint64_t m_size = 0;
    uint32_t m_resourceRva = 0;
    std::vector<Section> m_sections;
};
