// The byte encodings a settings or language file may come in. The engine works on the narrow text; a file
// is written back in the encoding it was read in.
#pragma once

#include <string>
#include <string_view>

enum class IniEncoding {
    Narrow,   // the system's narrow encoding, no byte-order mark
    Utf8Bom,  // narrow text behind a UTF-8 byte-order mark, which is kept
    Utf16Le,  // UTF-16 little endian behind its byte-order mark
    Utf16Be,  // UTF-16 big endian behind its byte-order mark
};

struct DecodedIni {
    std::string text;
    IniEncoding encoding = IniEncoding::Narrow;
};

// Recognises the byte-order mark and returns the narrow text behind it.
DecodedIni DecodeIni(std::string_view bytes);

// The bytes of `text` in `encoding`, with its byte-order mark.
std::string EncodeIni(std::string text, IniEncoding encoding);
