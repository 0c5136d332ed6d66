// Small text helpers with the rules the program's texts follow: blanks are spaces, case folding is ASCII.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace mString {

// The line break of the program's texts, the settings file's and the reports'.
inline constexpr const char* kCrLf = "\r\n";

// `text` without the leading and trailing characters that are in `blanks`.
std::string_view TrimView(std::string_view text, std::string_view blanks = " ");

// Removes leading and trailing spaces (tabs and other characters stay).
std::string Trim(std::string_view text);
std::string TrimLeft(std::string_view text);
std::string TrimRight(std::string_view text);

// `text` as one line, as a setting keeps it: the line breaks at either end dropped, each run of them
// inside turned into one space.
std::string OneLine(std::string_view text);

std::string UCase(std::string_view text);
std::string LCase(std::string_view text);
bool EqualsNoCase(std::string_view a, std::string_view b);
bool StartsWithNoCase(std::string_view text, std::string_view prefix);
bool EndsWithNoCase(std::string_view text, std::string_view ending);

// The first line of `text` and the break that ends it: CR LF, LF, CR, or nothing at the end of the text.
struct Line {
    std::string_view text;
    std::string_view lineBreak;
};
Line FirstLine(std::string_view text);

// Calls `visit` with each line of `text`; a last line without a break counts, an empty text has none.
template <class Visit>
void ForEachLine(std::string_view text, Visit&& visit) {
    while (!text.empty()) {
        const Line line = FirstLine(text);
        visit(line);
        text.remove_prefix(line.text.size() + line.lineBreak.size());
    }
}

// A hash and an equality that ignore ASCII case, for maps looked up with any spelling of a name.
struct NoCaseHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const noexcept;
};
struct NoCaseEqual {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const noexcept;
};

// The text before the first NUL character, or the whole text when it holds none.
std::string StripAtNul(std::string_view text);
std::string StripAtNul(std::string&& text);

std::vector<std::string> Split(std::string_view text, char separator);

// `text` up to and including the last of `characters` in it; empty when it holds none of them.
std::string_view UpToLastOf(std::string_view text, std::string_view characters);

// Replaces every occurrence of `find` from the 1-based position `start` on. After a hit the search goes on
// behind the inserted replacement, so a replacement that contains `find` is not replaced again. `start` is
// left where the next search would have begun. An empty `find` changes nothing.
void ReplaceAll(std::string& text, std::string_view find, std::string_view replacement, std::size_t& start);

// Converts a decimal text to a 16-bit integer like the game's settings expect: blanks around it and a
// fraction (rounded half to even) are accepted. Raises failure 13 (type mismatch) for text that is no number
// and 6 (overflow) for a number outside -32768..32767.
int16_t ToInt16(std::string_view text);

// Rounds half to even into a 16-bit integer; raises failure 6 (overflow) for what does not fit.
int16_t RoundToInt16(double value);

// True for text that ToInt16-style conversion would read as a number, whatever its size.
bool IsNumeric(std::string_view text);

}  // namespace mString
