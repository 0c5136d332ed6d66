#include "base/Mnemonics.h"

#include "base/Utf8.h"

namespace {

std::u32string CodePoints(std::string_view text) {
    std::u32string codes;
    codes.reserve(text.size());
    for (std::size_t i = 0; i < text.size();)
        codes.push_back(Utf8::NextUtf8(text, i));
    return codes;
}

}  // namespace

// The position of the letter or digit behind a single "&", or -1; "&&" is a literal ampersand.
std::ptrdiff_t Mnemonics::ExistingMnemonic(const std::u32string& text) const {
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != U'&')
            continue;
        if (m_alphabet.isLetterOrDigit(text[i + 1]))
            return static_cast<std::ptrdiff_t>(i + 1);
        if (text[i + 1] == U'&')
            ++i;
    }
    return -1;
}

bool Mnemonics::Taken(char32_t letter) const {
    return m_taken.find(m_alphabet.lower(letter)) != std::u32string::npos;
}

std::ptrdiff_t Mnemonics::FreeLetter(const std::u32string& text) const {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (m_alphabet.isLetterOrDigit(text[i]) && !Taken(text[i]))
            return static_cast<std::ptrdiff_t>(i);
    }
    return -1;
}

std::string Mnemonics::Add(std::string_view text) {
    const std::u32string codes = CodePoints(text);
    const std::ptrdiff_t existing = ExistingMnemonic(codes);
    if (existing >= 0) {
        m_taken += m_alphabet.lower(codes[static_cast<std::size_t>(existing)]);
        return m_marked[std::string(text)] = std::string(text);
    }
    const std::ptrdiff_t letter = FreeLetter(codes);
    if (letter >= 0)
        m_taken += m_alphabet.lower(codes[static_cast<std::size_t>(letter)]);
    std::string marked;
    for (std::size_t i = 0; i < codes.size(); ++i) {
        if (static_cast<std::ptrdiff_t>(i) == letter)
            marked += '&';
        if (codes[i] != U'&') {
            Utf8::AppendUtf8(marked, codes[i]);
            continue;
        }
        marked += "&&";
        if (i + 1 < codes.size() && codes[i + 1] == U'&')
            ++i;
    }
    return m_marked[std::string(text)] = marked;
}

std::string Mnemonics::Again(std::string_view text) {
    const auto marked = m_marked.find(std::string(text));
    return marked != m_marked.end() ? marked->second : Add(text);
}
