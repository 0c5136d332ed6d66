#include "storage/IniEncoding.h"

#include <cstdint>

namespace {

constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LeBom = "\xFF\xFE";
constexpr std::string_view kUtf16BeBom = "\xFE\xFF";
constexpr char32_t kReplacement = 0xFFFD;

void AppendUtf8(std::string& out, char32_t code) {
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

void AppendUtf16(std::string& out, char32_t code, bool bigEndian) {
    auto unit = [&out, bigEndian](unsigned value) {
        out.push_back(static_cast<char>(bigEndian ? value >> 8 : value & 0xFF));
        out.push_back(static_cast<char>(bigEndian ? value & 0xFF : value >> 8));
    };
    if (code < 0x10000) {
        unit(code);
    } else {
        code -= 0x10000;
        unit(0xD800 | (code >> 10));
        unit(0xDC00 | (code & 0x3FF));
    }
}

std::string Utf16ToUtf8(std::string_view bytes, bool bigEndian) {
    std::string out;
    out.reserve(bytes.size());
    auto unitAt = [&bytes, bigEndian](std::size_t i) {
        const auto low = static_cast<unsigned char>(bytes[bigEndian ? i + 1 : i]);
        const auto high = static_cast<unsigned char>(bytes[bigEndian ? i : i + 1]);
        return static_cast<char32_t>(low | (high << 8));
    };
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        char32_t unit = unitAt(i);
        bool high = unit >= 0xD800 && unit < 0xDC00;
        char32_t next = i + 3 < bytes.size() ? unitAt(i + 2) : 0;
        if (high && next >= 0xDC00 && next < 0xE000) {
            AppendUtf8(out, 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00));
            i += 2;
        } else {
            AppendUtf8(out, (unit >= 0xD800 && unit < 0xE000) ? kReplacement : unit);
        }
    }
    return out;
}

// Decodes one UTF-8 sequence at `i` and advances `i`; malformed input yields one replacement character.
char32_t NextUtf8(std::string_view text, std::size_t& i) {
    auto at = [&text](std::size_t k) { return static_cast<unsigned char>(text[k]); };
    unsigned char lead = at(i++);
    if (lead < 0x80)
        return lead;
    int extra = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : -1;
    if (extra < 0 || lead > 0xF4 || i + static_cast<std::size_t>(extra) > text.size())
        return kReplacement;
    char32_t code = lead & (0x3F >> extra);
    for (int k = 0; k < extra; ++k) {
        if ((at(i) & 0xC0) != 0x80)
            return kReplacement;
        code = (code << 6) | (at(i++) & 0x3F);
    }
    static constexpr char32_t kSmallest[] = {0, 0x80, 0x800, 0x10000};
    bool valid = code >= kSmallest[extra] && code <= 0x10FFFF && !(code >= 0xD800 && code < 0xE000);
    return valid ? code : kReplacement;
}

std::string Utf8ToUtf16(std::string_view text, bool bigEndian) {
    std::string out;
    out.reserve(text.size() * 2);
    for (std::size_t i = 0; i < text.size();)
        AppendUtf16(out, NextUtf8(text, i), bigEndian);
    return out;
}

}  // namespace

DecodedIni DecodeIni(std::string_view bytes) {
    if (bytes.starts_with(kUtf16LeBom))
        return {Utf16ToUtf8(bytes.substr(kUtf16LeBom.size()), false), IniEncoding::Utf16Le};
    if (bytes.starts_with(kUtf16BeBom))
        return {Utf16ToUtf8(bytes.substr(kUtf16BeBom.size()), true), IniEncoding::Utf16Be};
    if (bytes.starts_with(kUtf8Bom))
        return {std::string(bytes.substr(kUtf8Bom.size())), IniEncoding::Utf8Bom};
    // No 8-bit text holds a NUL byte, while UTF-16 holds one in every plain ASCII character, which a
    // settings or language file starts with: its first two bytes tell the order.
    if (bytes.size() >= 2 && (bytes[0] == '\0') != (bytes[1] == '\0')) {
        const bool bigEndian = bytes[0] == '\0';
        return {Utf16ToUtf8(bytes, bigEndian),
                bigEndian ? IniEncoding::Utf16BeBare : IniEncoding::Utf16LeBare};
    }
    return {std::string(bytes), IniEncoding::Narrow};
}

std::string EncodeIni(std::string text, IniEncoding encoding) {
    switch (encoding) {
        case IniEncoding::Utf16Le:
            return std::string(kUtf16LeBom) + Utf8ToUtf16(text, false);
        case IniEncoding::Utf16Be:
            return std::string(kUtf16BeBom) + Utf8ToUtf16(text, true);
        case IniEncoding::Utf16LeBare:
            return Utf8ToUtf16(text, false);
        case IniEncoding::Utf16BeBare:
            return Utf8ToUtf16(text, true);
        case IniEncoding::Utf8Bom:
            return text.insert(0, kUtf8Bom);
        case IniEncoding::Narrow:
            break;
    }
    return text;
}
