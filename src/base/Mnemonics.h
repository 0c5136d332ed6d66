// Keyboard access for the captions of one window: the language files carry plain texts, so each window hands
// its captions through one set that gives every caption its own Alt+letter. Both faces use it, each telling
// it what its own text library counts as a letter or digit and which characters are one key.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

class Mnemonics {
public:
    struct Alphabet {
        bool (*isLetterOrDigit)(char32_t);
        char32_t (*lower)(char32_t);  // upper and lower case of a letter are one key
    };

    explicit Mnemonics(Alphabet alphabet) : m_alphabet(alphabet) {}

    // `text` (UTF-8) with "&" in front of its first letter or digit that no earlier text of this set
    // claimed. A text that already carries a mnemonic ("&" before a letter or digit, as the menu texts of
    // the language files do) keeps it and claims its letter. Otherwise "&&" stays the literal ampersand it
    // is in a caption, and a lone "&" becomes one. A text with no free letter comes back without a mnemonic.
    std::string Add(std::string_view text);
    // `text` as Add marked it before, for a button that repeats another's command on another page; a text
    // not added yet is added now.
    std::string Again(std::string_view text);

private:
    std::ptrdiff_t ExistingMnemonic(const std::u32string& text) const;
    std::ptrdiff_t FreeLetter(const std::u32string& text) const;
    bool Taken(char32_t letter) const;

    Alphabet m_alphabet;
    std::u32string m_taken;
    std::unordered_map<std::string, std::string> m_marked;  // each text added, as Add marked it
};
