// Looks up every text the program shows in the language file of the chosen language, falling back to the
// English file. It keeps no state: the language and its file are looked up afresh on every call, so a
// change of language shows with the next text.
#pragma once

#include <string>

class cTranslate {
public:
    // The marker shown for a text that neither the chosen language nor English has.
    static constexpr const char* kNoText = "<NO TEXT AVAILABLE>";

    // The text of `key` in `section`, with "%P1%" and "%P2%" replaced by p1 and p2 and "\n" by a line
    // break. Reports a failure and gives "" when the text cannot be looked up.
    std::string TranslateEx(const std::string& section, const std::string& key, const std::string& p1 = "",
                            const std::string& p2 = "") const;

    // The "yes" or "no" text of the chosen language (TranslateEx reports any failure).
    std::string TranslateBool_YesNo(bool value) const;

private:
    static std::string Lookup(const std::string& section, const std::string& key);
};
