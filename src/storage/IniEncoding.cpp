#include "storage/IniEncoding.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <optional>

#include "base/Utf8.h"
#include "base/mString.h"

namespace {

using Utf8::AppendUtf8;
using Utf8::DecodeUtf8;
using Utf8::kReplacement;
using Utf8::NextUtf8;

constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LeBom = "\xFF\xFE";
constexpr std::string_view kUtf16BeBom = "\xFE\xFF";

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

bool IsUtf8(std::string_view text) {
    constexpr uint64_t kHighBits = 0x8080808080808080;
    for (std::size_t i = 0; i < text.size();) {
        // Plain ASCII, nearly all of any settings file, is passed over eight bytes at a time.
        uint64_t word = 0;
        if (i + sizeof word <= text.size()) {
            std::memcpy(&word, text.data() + i, sizeof word);
            if ((word & kHighBits) == 0) {
                i += sizeof word;
                continue;
            }
        }
        if (!DecodeUtf8(text, i))
            return false;
    }
    return true;
}

// What Windows-1252 puts at 0x80 to 0x9F; its five unassigned bytes stand for the C1 controls of the same
// number, as Windows itself converts them, so that every byte comes back as it was.
constexpr char32_t kWindows1252High[32] = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                           0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                           0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                           0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

std::string Windows1252ToUtf8(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size() + bytes.size() / 8);
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        AppendUtf8(out, byte >= 0x80 && byte < 0xA0 ? kWindows1252High[byte - 0x80] : byte);
    }
    return out;
}

// A file that is not UTF-8 was written in Windows-1252, but an older version of this program wrote the
// values it changed in UTF-8 into such files: each line is read in the encoding it has, and a file that
// holds both goes back as UTF-8 with a byte-order mark.
DecodedIni DecodeWindows1252(std::string_view bytes) {
    DecodedIni decoded{std::string(), IniEncoding::Windows1252};
    decoded.text.reserve(bytes.size() + bytes.size() / 8);
    mString::ForEachLine(bytes, [&decoded](const mString::Line& line) {
        const bool plain = std::all_of(line.text.begin(), line.text.end(),
                                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
        if (!plain && IsUtf8(line.text)) {
            decoded.encoding = IniEncoding::Utf8Bom;
            decoded.text += line.text;
        } else {
            decoded.text += Windows1252ToUtf8(line.text);
        }
        decoded.text += line.lineBreak;
    });
    return decoded;
}

// The Windows-1252 bytes of `text`, or nothing when it holds a character that the code page lacks.
std::optional<std::string> Utf8ToWindows1252(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        const char32_t code = NextUtf8(text, i);
        const auto* high = std::find(std::begin(kWindows1252High), std::end(kWindows1252High), code);
        if (high != std::end(kWindows1252High))
            out.push_back(static_cast<char>(0x80 + (high - std::begin(kWindows1252High))));
        else if (code < 0x80 || (code >= 0xA0 && code < 0x100))
            out.push_back(static_cast<char>(code));
        else
            return std::nullopt;
    }
    return out;
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
    // Text that is not UTF-8 was written by a Windows tool in its "ANSI" code page; UTF-8 (plain ASCII
    // among it) stays what it is.
    if (!IsUtf8(bytes))
        return DecodeWindows1252(bytes);
    return {std::string(bytes), IniEncoding::Narrow};
}

std::string EncodeIni(std::string text, IniEncoding& encoding) {
    switch (encoding) {
        case IniEncoding::Windows1252:
            if (std::optional<std::string> bytes = Utf8ToWindows1252(text))
                return std::move(*bytes);
            encoding = IniEncoding::Utf8Bom;
            return text.insert(0, kUtf8Bom);
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
