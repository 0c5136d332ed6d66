#include "fileinfo/VersionResource.h"

#include <algorithm>

#include "base/mString.h"
#include "fileinfo/LittleEndian.h"

using mLittleEndian::LoadU16;
using mLittleEndian::LoadU32;

namespace {

constexpr std::size_t kBlockHeaderSize = 6;  // length, value length, type
constexpr std::size_t kFixedInfoSize = 52;
constexpr uint32_t kReplacementCharacter = 0xFFFD;

// One block of the resource: positions count from the start of the resource, which is also what the
// 32-bit alignment of names, values and children refers to.
struct Block {
    std::string key;
    uint16_t valueLength = 0;
    std::size_t valueBegin = 0;
    std::size_t valueEnd = 0;
    std::size_t childrenBegin = 0;
    std::size_t end = 0;
};

std::size_t Align4(std::size_t offset) {
    return (offset + 3) & ~std::size_t{3};
}

void AppendUtf8(std::string& text, uint32_t codePoint) {
    auto add = [&text](uint32_t byte) { text += static_cast<char>(byte); };
    if (codePoint < 0x80) {
        add(codePoint);
    } else if (codePoint < 0x800) {
        add(0xC0 | codePoint >> 6);
        add(0x80 | (codePoint & 0x3F));
    } else if (codePoint < 0x10000) {
        add(0xE0 | codePoint >> 12);
        add(0x80 | (codePoint >> 6 & 0x3F));
        add(0x80 | (codePoint & 0x3F));
    } else {
        add(0xF0 | codePoint >> 18);
        add(0x80 | (codePoint >> 12 & 0x3F));
        add(0x80 | (codePoint >> 6 & 0x3F));
        add(0x80 | (codePoint & 0x3F));
    }
}

bool IsHighSurrogate(uint32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLowSurrogate(uint32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

// The UTF-16LE text from `begin` up to its first NUL or `end`, in UTF-8; an unpaired surrogate becomes
// U+FFFD. `afterNul` receives the position behind the NUL, and stays empty when the text has none.
std::string DecodeText(std::string_view bytes, std::size_t begin, std::size_t end,
                       std::optional<std::size_t>* afterNul = nullptr) {
    std::string text;
    std::size_t at = begin;
    while (at + 2 <= end) {
        uint32_t unit = LoadU16(bytes, at);
        at += 2;
        if (unit == 0) {
            if (afterNul != nullptr)
                *afterNul = at;
            break;
        }
        if (IsHighSurrogate(unit) && at + 2 <= end && IsLowSurrogate(LoadU16(bytes, at))) {
            unit = 0x10000 + ((unit - 0xD800) << 10) + (LoadU16(bytes, at) - 0xDC00u);
            at += 2;
        } else if (IsHighSurrogate(unit) || IsLowSurrogate(unit)) {
            unit = kReplacementCharacter;
        }
        AppendUtf8(text, unit);
    }
    return text;
}

// The block at `offset`, which must end by `limit`.
std::optional<Block> ReadBlock(std::string_view bytes, std::size_t offset, std::size_t limit) {
    if (limit - offset < kBlockHeaderSize)
        return std::nullopt;
    std::size_t length = LoadU16(bytes, offset);
    if (length < kBlockHeaderSize || length > limit - offset)
        return std::nullopt;
    Block block;
    block.end = offset + length;
    block.valueLength = LoadU16(bytes, offset + 2);
    // Text values count their length in characters, everything else in bytes.
    std::size_t valueSize = LoadU16(bytes, offset + 4) == 1 ? block.valueLength * 2u : block.valueLength;
    std::optional<std::size_t> afterKey;
    block.key = DecodeText(bytes, offset + kBlockHeaderSize, block.end, &afterKey);
    if (!afterKey)
        return std::nullopt;
    block.valueBegin = std::min(Align4(*afterKey), block.end);
    block.valueEnd = std::min(block.valueBegin + valueSize, block.end);
    block.childrenBegin = std::min(Align4(block.valueEnd), block.end);
    return block;
}

// Calls `visit` for each child of `parent` until it returns false; false when a child is damaged or a visit
// failed. A zero length ends the children: some writers pad a block with zeros behind its last child.
template <class Visit>
bool ForEachChild(std::string_view bytes, const Block& parent, Visit&& visit) {
    std::size_t offset = parent.childrenBegin;
    while (parent.end - offset >= kBlockHeaderSize && LoadU16(bytes, offset) != 0) {
        std::optional<Block> child = ReadBlock(bytes, offset, parent.end);
        if (!child || !visit(*child))
            return false;
        offset = std::min(Align4(child->end), parent.end);
    }
    return true;
}

std::optional<FixedFileInfo> ParseFixed(std::string_view bytes, const Block& root) {
    std::string_view value = bytes.substr(root.valueBegin, root.valueEnd - root.valueBegin);
    if (value.size() < kFixedInfoSize || LoadU32(value, 0) != VersionResource::kFixedSignature)
        return std::nullopt;
    FixedFileInfo fixed;
    fixed.fileVersion = VersionNumber::FromHalves(LoadU32(value, 8), LoadU32(value, 12));
    fixed.productVersion = VersionNumber::FromHalves(LoadU32(value, 16), LoadU32(value, 20));
    fixed.fileFlagsMask = LoadU32(value, 24);
    fixed.fileFlags = LoadU32(value, 28);
    fixed.fileOS = LoadU32(value, 32);
    fixed.fileType = LoadU32(value, 36);
    fixed.fileSubtype = LoadU32(value, 40);
    fixed.fileDate = uint64_t{LoadU32(value, 44)} << 32 | LoadU32(value, 48);
    return fixed;
}

std::optional<StringTable> ParseStringTable(std::string_view bytes, const Block& block) {
    StringTable table{block.key, {}};
    bool intact = ForEachChild(bytes, block, [&](const Block& entry) {
        // Writers disagree on whether a text's length counts characters or bytes, so read up to the NUL.
        std::string value = entry.valueLength == 0 ? "" : DecodeText(bytes, entry.valueBegin, entry.end);
        table.strings.emplace_back(entry.key, std::move(value));
        return true;
    });
    return intact ? std::optional<StringTable>(std::move(table)) : std::nullopt;
}

bool ParseStringFileInfo(std::string_view bytes, const Block& block, std::vector<StringTable>& tables) {
    return ForEachChild(bytes, block, [&](const Block& child) {
        std::optional<StringTable> table = ParseStringTable(bytes, child);
        if (table)
            tables.push_back(std::move(*table));
        return table.has_value();
    });
}

bool ParseVarFileInfo(std::string_view bytes, const Block& block, std::vector<uint32_t>& translations) {
    return ForEachChild(bytes, block, [&](const Block& child) {
        if (child.key == "Translation") {
            for (std::size_t at = child.valueBegin; at + 4 <= child.valueEnd; at += 4)
                translations.push_back(LoadU32(bytes, at));
        }
        return true;
    });
}

std::string TranslationName(uint32_t translation) {
    static constexpr char kHex[] = "0123456789ABCDEF";
    uint32_t name = (translation & 0xFFFF) << 16 | translation >> 16;
    std::string text(8, '0');
    for (int digit = 7; digit >= 0; --digit, name >>= 4)
        text[static_cast<std::size_t>(digit)] = kHex[name & 0xF];
    return text;
}

}  // namespace

VersionNumber VersionNumber::FromHalves(uint32_t mostSignificant, uint32_t leastSignificant) {
    return VersionNumber{
        {static_cast<uint16_t>(mostSignificant >> 16), static_cast<uint16_t>(mostSignificant),
         static_cast<uint16_t>(leastSignificant >> 16), static_cast<uint16_t>(leastSignificant)}};
}

std::string VersionNumber::Text() const {
    return std::to_string(parts[0]) + "." + std::to_string(parts[1]) + "." + std::to_string(parts[2]) + "." +
           std::to_string(parts[3]);
}

std::optional<VersionResource> VersionResource::Parse(std::string_view bytes) {
    std::optional<Block> root = ReadBlock(bytes, 0, bytes.size());
    if (!root || root->key != "VS_VERSION_INFO")
        return std::nullopt;
    VersionResource resource;
    if (root->valueLength != 0) {
        resource.m_fixed = ParseFixed(bytes, *root);
        if (!resource.m_fixed)
            return std::nullopt;
    }
    bool intact = ForEachChild(bytes, *root, [&](const Block& child) {
        if (child.key == "StringFileInfo")
            return ParseStringFileInfo(bytes, child, resource.m_tables);
        if (child.key == "VarFileInfo")
            return ParseVarFileInfo(bytes, child, resource.m_translations);
        return true;
    });
    return intact ? std::optional<VersionResource>(std::move(resource)) : std::nullopt;
}

const StringTable* VersionResource::PreferredTable() const {
    for (uint32_t translation : m_translations) {
        if (const StringTable* table = Table(TranslationName(translation)))
            return table;
    }
    for (std::string_view fallback : {"040904B0", "040904E4", "04090000"}) {
        if (const StringTable* table = Table(fallback))
            return table;
    }
    return m_tables.empty() ? nullptr : &m_tables.front();
}

const StringTable* VersionResource::Table(std::string_view translation) const {
    auto found = std::find_if(m_tables.begin(), m_tables.end(), [&](const StringTable& table) {
        return mString::EqualsNoCase(table.translation, translation);
    });
    return found == m_tables.end() ? nullptr : &*found;
}
