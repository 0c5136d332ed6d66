// UTF-8, the program's text encoding inside: one code point appended, one decoded. Inline, because the
// settings file's encodings run them for every character of a file.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace Utf8 {

// What a malformed sequence becomes.
inline constexpr char32_t kReplacement = 0xFFFD;

inline void AppendUtf8(std::string& out, char32_t code) {
    auto byte = [&out](unsigned value) { out.push_back(static_cast<char>(value)); };
    if (code < 0x80) {
        byte(code);
    } else if (code < 0x800) {
        byte(0xC0 | (code >> 6));
        byte(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        byte(0xE0 | (code >> 12));
        byte(0x80 | ((code >> 6) & 0x3F));
        byte(0x80 | (code & 0x3F));
    } else {
        byte(0xF0 | (code >> 18));
        byte(0x80 | ((code >> 12) & 0x3F));
        byte(0x80 | ((code >> 6) & 0x3F));
        byte(0x80 | (code & 0x3F));
    }
}

// Decodes one UTF-8 sequence at `i` and advances `i`; nothing for a malformed one.
inline std::optional<char32_t> DecodeUtf8(std::string_view text, std::size_t& i) {
    auto at = [&text](std::size_t k) { return static_cast<unsigned char>(text[k]); };
    unsigned char lead = at(i++);
    if (lead < 0x80)
        return lead;
    int extra = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : -1;
    if (extra < 0 || lead > 0xF4 || i + static_cast<std::size_t>(extra) > text.size())
        return std::nullopt;
    char32_t code = lead & (0x3F >> extra);
    for (int k = 0; k < extra; ++k) {
        if ((at(i) & 0xC0) != 0x80)
            return std::nullopt;
        code = (code << 6) | (at(i++) & 0x3F);
    }
    static constexpr char32_t kSmallest[] = {0, 0x80, 0x800, 0x10000};
    bool valid = code >= kSmallest[extra] && code <= 0x10FFFF && !(code >= 0xD800 && code < 0xE000);
    return valid ? std::optional<char32_t>(code) : std::nullopt;
}

// The same, with one replacement character for a malformed sequence.
inline char32_t NextUtf8(std::string_view text, std::size_t& i) {
    return DecodeUtf8(text, i).value_or(kReplacement);
}

}  // namespace Utf8
