// The byte encodings a settings or language file may come in. The engine works on the narrow text; a file
// is written back in the encoding it was read in.
#pragma once

#include <string>
#include <string_view>

enum class IniEncoding {
    Narrow,       // UTF-8 without a byte-order mark (plain ASCII among it)
    Utf8Bom,      // narrow text behind a UTF-8 byte-order mark, which is kept
    Utf16Le,      // UTF-16 little endian behind its byte-order mark
    Utf16Be,      // UTF-16 big endian behind its byte-order mark
    Utf16LeBare,  // UTF-16 little endian without a byte-order mark, and so written back
    Utf16BeBare,  // UTF-16 big endian without a byte-order mark, and so written back
    Windows1252,  // not UTF-8: what Windows tools write in their "ANSI" code page
};

struct DecodedIni {
    std::string text;
    IniEncoding encoding = IniEncoding::Narrow;
};

// Recognises the byte-order mark, or UTF-16 without one, or Windows-1252 in text that is not UTF-8, and
// returns the text in UTF-8.
DecodedIni DecodeIni(std::string_view bytes);

// The bytes of `text` in `encoding`, with its byte-order mark if it has one. Text that Windows-1252 cannot
// hold (a Greek or Japanese name) turns a Windows-1252 file into UTF-8 with a byte-order mark, which
// `encoding` then says: every character of every line is kept, and Windows tools recognise the mark.
std::string EncodeIni(std::string text, IniEncoding& encoding);
