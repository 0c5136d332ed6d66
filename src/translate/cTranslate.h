// Looks up every text the program shows in the language file of the chosen language, falling back to the
// English file. It keeps no state: the language and its file are looked up afresh on every call, so a
// change of language shows with the next text.
#pragma once

#include <string>

#include "storage/iniFile.h"

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

    // Makes the texts looked up while it lives come from one look at each language file (the chosen one
    // and English): a window that sets all its captions at once checks its files once, not per caption.
    class Batch {
    public:
        Batch();

    private:
        iniFile::Load m_chosen;
        iniFile::Load m_english;
    };

private:
    static std::string Lookup(const std::string& section, const std::string& key);
};
