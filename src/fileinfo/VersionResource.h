// The content of a version resource (a VS_VERSIONINFO block): its fixed part, its string tables and its
// translation list. Parsing is all or nothing: a block that runs past its parent, a length too small to hold
// a block, a name without its terminating NUL or a fixed part with a wrong signature make the whole resource
// unreadable, so a damaged resource never yields half of its texts.
#pragma once

#include <array>
#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// A four-part version number as the fixed part stores it in two 32-bit halves.
struct VersionNumber {
    std::array<uint16_t, 4> parts{};

    static VersionNumber FromHalves(uint32_t mostSignificant, uint32_t leastSignificant);
    // "a.b.c.d" in decimal.
    std::string Text() const;

    auto operator<=>(const VersionNumber&) const = default;
};

// The fixed part (VS_FIXEDFILEINFO) after its signature and structure version.
struct FixedFileInfo {
    VersionNumber fileVersion;
    VersionNumber productVersion;
    uint32_t fileFlagsMask = 0;
    uint32_t fileFlags = 0;
    uint32_t fileOS = 0;
    uint32_t fileType = 0;
    uint32_t fileSubtype = 0;
    uint64_t fileDate = 0;
};

// One language's strings, in the order the resource lists them, converted to UTF-8.
struct StringTable {
    std::string translation;  // the table's name: language and code page as eight hex digits
    std::vector<std::pair<std::string, std::string>> strings;
};

class VersionResource {
public:
    static constexpr uint32_t kFixedSignature = 0xFEEF04BD;

    // Nothing when the bytes are no well-formed version resource.
    static std::optional<VersionResource> Parse(std::string_view bytes);

    const std::optional<FixedFileInfo>& Fixed() const { return m_fixed; }
    const std::vector<StringTable>& StringTables() const { return m_tables; }
    // The "Translation" list: each entry holds the language in its low and the code page in its high word.
    const std::vector<uint32_t>& Translations() const { return m_translations; }

    // The table to read texts from: the first listed translation that has a table, else US English in
    // Unicode, Windows Latin-1 or a neutral code page, else the first table; nullptr when there is none.
    const StringTable* PreferredTable() const;

    // The table named `translation`, compared without regard to case; nullptr when there is none.
    const StringTable* Table(std::string_view translation) const;

private:
    std::optional<FixedFileInfo> m_fixed;
    std::vector<StringTable> m_tables;
    std::vector<uint32_t> m_translations;
};
