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

std::string_view TrimView(std::string_view text, std::string_view blanks) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
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

bool StartsWithNoCase(std::string_view text, std::string_view prefix) {
    return text.size() >= prefix.size() && EqualsNoCase(text.substr(0, prefix.size()), prefix);
}

std::string StripAtNul(std::string_view text) {
    return std::string(text.substr(0, text.find('\0')));
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

}  // namespace mString
