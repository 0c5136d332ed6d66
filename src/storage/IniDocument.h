// A settings file held in memory line by line, so that a change rewrites only the line it must and every
// other byte serialises exactly as it was read. Lookups follow the rules of the Windows private-profile
// functions: names match without regard to case, the first section of a name and the first key in it win.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/mString.h"

class IniDocument {
public:
    static IniDocument Parse(std::string_view text);

    std::string Serialize() const;
    // Serialises into `text`, reusing its memory.
    void SerializeInto(std::string& text) const;

    // `section` and `key` are compared without regard to case, exactly as given otherwise (the caller
    // removes the spaces around them). The value comes without the blanks and one pair of quotes around it.
    std::optional<std::string> Value(std::string_view section, std::string_view key) const;

    // The names of every section header in order, and the key names of the first section named `section`.
    std::vector<std::string> SectionNames() const;
    std::vector<std::string> KeyNames(std::string_view section) const;

    // Each returns true when the document's text changed.
    bool SetValue(std::string_view section, std::string_view key, std::string_view value);
    bool DeleteKey(std::string_view section, std::string_view key);
    bool DeleteSection(std::string_view section);
    // Gives the first section named `section` the name `to` in its header, every other byte of the line and
    // of the section kept. Refused (false) when another section is named `to` already: the file would then
    // hold two sections of one name, of which only the first is ever read.
    bool RenameSection(std::string_view section, std::string_view to);
    // True when `to` names another section than `section`, which a rename must not take.
    bool RenameBlocked(std::string_view section, std::string_view to) const;

private:
    enum class Kind : unsigned char { Other, Header, Key };

    // How a line ends; None only for a last line without a break.
    enum class Eol : unsigned char { None, CrLf, Lf, Cr };

    struct Line {
        std::string text;
        // Where the section name of a header or the key name of a key line stands in `text`.
        std::uint32_t nameBegin = 0;
        std::uint32_t nameLength = 0;
        Eol eol = Eol::CrLf;
        Kind kind = Kind::Other;

        std::string_view Name() const { return std::string_view(text).substr(nameBegin, nameLength); }
    };

    // A header line with the lines up to the next header; the first one holds the lines before any header.
    struct Section {
        std::vector<Line> lines;
    };

    static Line ParseLine(std::string_view text, Eol eol);
    static std::string ValueOf(const Line& line);

    void StartSection(const Line& header);
    void AddLine(Line line);
    void Reindex();
    Section* Find(std::string_view section);
    const Section* Find(std::string_view section) const;
    static std::vector<Line>::const_iterator FindKey(const Section& section, std::string_view key);
    void EnsureLastLineEnds();
    void AppendSection(std::string_view section, std::string_view key, std::string_view value);
    bool Apply(std::string_view section, std::string_view key, std::string_view value);

    std::vector<Section> m_sections{Section{}};
    std::unordered_map<std::string, std::size_t, mString::NoCaseHash, mString::NoCaseEqual>
        m_firstSection;  // section name in any case -> index
};
