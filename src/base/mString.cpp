#include "base/mString.h"

#include <algorithm>
#include <cmath>

#include "error/mError.h"

namespace mString {
namespace {

char Lower(char c) {
    return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}
char Upper(char c) {
    return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

struct Number {
    bool negative = false;
    std::string_view whole;
    std::string_view fraction;
};

// Splits "[+-]digits[.digits]" (at least one digit in all); false for anything else.
bool ParseDecimal(std::string_view text, Number& number) {
    std::size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        number.negative = text[i] == '-';
        ++i;
    }
    std::size_t wholeStart = i;
    while (i < text.size() && IsDigit(text[i]))
        ++i;
    number.whole = text.substr(wholeStart, i - wholeStart);
    if (i < text.size() && text[i] == '.') {
        std::size_t fractionStart = ++i;
        while (i < text.size() && IsDigit(text[i]))
            ++i;
        number.fraction = text.substr(fractionStart, i - fractionStart);
    }
    return i == text.size() && !(number.whole.empty() && number.fraction.empty());
}

}  // namespace

// Plain loops: find_first_not_of would call memchr for every character it passes, and this runs for
// every line of a settings file.
std::string_view TrimView(std::string_view text, std::string_view blanks) {
    const auto isBlank = [blanks](char c) {
        return std::find(blanks.begin(), blanks.end(), c) != blanks.end();
    };
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::string_view UpToLastOf(std::string_view text, std::string_view characters) {
    const std::size_t last = text.find_last_of(characters);
    return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

std::string TrimLeft(std::string_view text) {
    std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string() : std::string(text.substr(first));
}

std::string TrimRight(std::string_view text) {
    std::size_t last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string() : std::string(text.substr(0, last + 1));
}

std::string Trim(std::string_view text) {
    return std::string(TrimView(text));
}

std::string UCase(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), Upper);
    return result;
}

std::string LCase(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), Lower);
    return result;
}

bool EqualsNoCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return Lower(x) == Lower(y); });
}

std::size_t NoCaseHash::operator()(std::string_view text) const noexcept {
    std::size_t hash = 14695981039346656037ULL;  // FNV-1a
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(Lower(c))) * 1099511628211ULL;
    return hash;
}

bool NoCaseEqual::operator()(std::string_view a, std::string_view b) const noexcept {
    return EqualsNoCase(a, b);
}

// Two fast searches instead of find_first_of, which calls memchr once for every character it passes. They
// look at a stretch at a time, so that in a text with one kind of break the search for the other never
// runs to the text's end for every line.
Line FirstLine(std::string_view text) {
    constexpr std::size_t kStretch = 256;
    std::size_t end = 0;
    while (end < text.size()) {
        const std::string_view stretch = text.substr(end, kStretch);
        const std::size_t lineFeed = stretch.find('\n');
        const std::size_t found = std::min(lineFeed, stretch.substr(0, lineFeed).find('\r'));
        if (found != std::string_view::npos) {
            end += found;
            break;
        }
        end += stretch.size();
    }
    const bool crLf = end + 1 < text.size() && text[end] == '\r' && text[end + 1] == '\n';
    const std::size_t breakLength = end == text.size() ? 0 : crLf ? 2 : 1;
    return {text.substr(0, end), text.substr(end, breakLength)};
}

bool StartsWithNoCase(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() && EqualsNoCase(text.substr(0, prefix.size()), prefix);
}

bool EndsWithNoCase(std::string_view text, std::string_view ending) {
    return text.size() >= ending.size() && EqualsNoCase(text.substr(text.size() - ending.size()), ending);
}

std::string StripAtNul(std::string_view text) {
    return std::string(text.substr(0, text.find('\0')));
}

std::string StripAtNul(std::string&& text) {
    text.resize(std::min(text.find('\0'), text.size()));
    return std::move(text);
}

std::vector<std::string> Split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    std::size_t begin = 0;
    for (std::size_t end; (end = text.find(separator, begin)) != std::string_view::npos; begin = end + 1) {
        parts.emplace_back(text.substr(begin, end - begin));
    }
    parts.emplace_back(text.substr(begin));
    return parts;
}

void ReplaceAll(std::string& text, std::string_view find, std::string_view replacement, std::size_t& start) {
    if (find.empty())
        return;
    while (start >= 1 && start <= text.size()) {
        std::size_t hit = text.find(find, start - 1);
        if (hit == std::string::npos)
            break;
        text.replace(hit, find.size(), replacement);
        start = hit + 1 + replacement.size();
    }
}

bool IsNumeric(std::string_view text) {
    Number number;
    std::string trimmed = Trim(text);
    return ParseDecimal(trimmed, number);
}

int16_t ToInt16(std::string_view text) {
    Number number;
    std::string trimmed = Trim(text);
    if (!ParseDecimal(trimmed, number))
        mError::RaiseRuntimeError(mError::kTypeMismatch);
    // Digits beyond these cannot fit anyway; leading zeros are dropped first so "00012" still reads.
    std::string_view whole =
        number.whole.substr(std::min(number.whole.find_first_not_of('0'), number.whole.size()));
    if (whole.size() > 6)
        mError::RaiseRuntimeError(mError::kOverflow);
    double value = whole.empty() ? 0.0 : std::stod(std::string(whole));
    if (!number.fraction.empty())
        value += std::stod("0." + std::string(number.fraction));
    return RoundToInt16(number.negative ? -value : value);
}

int16_t RoundToInt16(double value) {
    const double rounded = std::nearbyint(value);  // the default rounding mode: half to even
    if (!(rounded >= -32768.0 && rounded <= 32767.0))
        mError::RaiseRuntimeError(mError::kOverflow);
    return static_cast<int16_t>(rounded);
}

std::string OneLine(std::string_view text) {
    constexpr std::string_view kBreaks = "\r\n";
    text = TrimView(text, kBreaks);
    std::string line;
    line.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find_first_of(kBreaks, at), text.size());
        line.append(text, at, end - at);
        at = text.find_first_not_of(kBreaks, end);
        if (at == std::string_view::npos)
            break;
        line += ' ';
    }
    return line;
}

}  // namespace mString
