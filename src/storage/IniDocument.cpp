#include "storage/IniDocument.h"

#include <algorithm>

#include "base/mString.h"

namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kEolText[] = {"", "\r\n", "\n", "\r"};

std::string_view TrimBlanks(std::string_view text) {
    return mString::TrimView(text, kBlanks);
}

std::string_view Unquoted(std::string_view value) {
    bool quoted =
        value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.back() == value.front();
    return quoted ? value.substr(1, value.size() - 2) : value;
}

// Concatenates with append, which also keeps GCC 12's false -Wrestrict alarm on string operator+ away.
std::string Concat(std::string_view a, std::string_view b, std::string_view c) {
    std::string text;
    text.reserve(a.size() + b.size() + c.size());
    text.append(a).append(b).append(c);
    return text;
}

bool HasLineBreak(std::string_view text) {
    return mString::FirstLine(text).lineBreak.size() > 0;
}

}  // namespace

IniDocument::Line IniDocument::ParseLine(std::string_view text, Eol eol) {
    Line line{std::string(text), 0, 0, eol, Kind::Other};
    std::string_view name;
    std::string_view content = TrimBlanks(text);
    if (content.starts_with('[')) {
        std::string_view inside = content.substr(1);
        line.kind = Kind::Header;
        name = TrimBlanks(inside.substr(0, inside.find(']')));
    } else if (!content.starts_with(';')) {
        std::size_t equals = text.find('=');
        if (equals != std::string_view::npos) {
            line.kind = Kind::Key;
            name = TrimBlanks(text.substr(0, equals));
        }
    }
    line.nameBegin = name.empty() ? 0 : static_cast<std::uint32_t>(name.data() - text.data());
    line.nameLength = static_cast<std::uint32_t>(name.size());
    return line;
}

std::string IniDocument::ValueOf(const Line& line) {
    std::string_view raw = std::string_view(line.text).substr(line.text.find('=') + 1);
    return std::string(Unquoted(TrimBlanks(raw)));
}

// The lines are gathered first and each section then gets its own at once: a settings file with a
// thousand profiles is read at every start, and a section's vector allocated once is a good part of that.
IniDocument IniDocument::Parse(std::string_view text) {
    std::vector<Line> lines;
    lines.reserve(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1);
    mString::ForEachLine(text, [&lines](const mString::Line& line) {
        const Eol eol = line.lineBreak.empty()           ? Eol::None
                        : line.lineBreak.size() == 2     ? Eol::CrLf
                        : line.lineBreak.front() == '\n' ? Eol::Lf
                                                         : Eol::Cr;
        lines.push_back(ParseLine(line.text, eol));
    });
    IniDocument document;
    auto begin = lines.begin();
    while (begin != lines.end()) {
        const auto end = std::find_if(std::next(begin), lines.end(),
                                      [](const Line& line) { return line.kind == Kind::Header; });
        if (begin->kind == Kind::Header)
            document.StartSection(*begin);
        document.m_sections.back().lines.assign(std::make_move_iterator(begin), std::make_move_iterator(end));
        begin = end;
    }
    return document;
}

void IniDocument::StartSection(const Line& header) {
    m_firstSection.try_emplace(std::string(header.Name()), m_sections.size());
    m_sections.emplace_back();
}

void IniDocument::AddLine(Line line) {
    if (line.kind == Kind::Header)
        StartSection(line);
    m_sections.back().lines.push_back(std::move(line));
}

std::string IniDocument::Serialize() const {
    std::string text;
    SerializeInto(text);
    return text;
}

void IniDocument::SerializeInto(std::string& text) const {
    std::size_t size = 0;
    for (const Section& section : m_sections) {
        for (const Line& line : section.lines)
            size += line.text.size() + kEolText[static_cast<int>(line.eol)].size();
    }
    // Sized once and filled by copying: this runs for every committed update of a large file.
    text.resize(size);
    char* out = text.data();
    for (const Section& section : m_sections) {
        for (const Line& line : section.lines) {
            std::string_view eol = kEolText[static_cast<int>(line.eol)];
            out = std::copy(line.text.begin(), line.text.end(), out);
            out = std::copy(eol.begin(), eol.end(), out);
        }
    }
}

IniDocument::Section* IniDocument::Find(std::string_view section) {
    auto found = m_firstSection.find(section);
    return found == m_firstSection.end() ? nullptr : &m_sections[found->second];
}

const IniDocument::Section* IniDocument::Find(std::string_view section) const {
    return const_cast<IniDocument*>(this)->Find(section);
}

std::vector<IniDocument::Line>::const_iterator IniDocument::FindKey(const Section& section,
                                                                    std::string_view key) {
    return std::find_if(section.lines.begin(), section.lines.end(), [key](const Line& line) {
        return line.kind == Kind::Key && mString::EqualsNoCase(line.Name(), key);
    });
}

std::optional<std::string> IniDocument::Value(std::string_view section, std::string_view key) const {
    const Section* found = Find(section);
    if (found == nullptr)
        return std::nullopt;
    auto line = FindKey(*found, key);
    if (line == found->lines.end())
        return std::nullopt;
    return ValueOf(*line);
}

std::vector<std::string> IniDocument::SectionNames() const {
    std::vector<std::string> names;
    for (std::size_t i = 1; i < m_sections.size(); ++i)
        names.emplace_back(m_sections[i].lines.front().Name());
    return names;
}

std::vector<std::string> IniDocument::KeyNames(std::string_view section) const {
    std::vector<std::string> names;
    if (const Section* found = Find(section)) {
        for (const Line& line : found->lines) {
            if (line.kind == Kind::Key)
                names.emplace_back(line.Name());
        }
    }
    return names;
}

void IniDocument::EnsureLastLineEnds() {
    for (auto section = m_sections.rbegin(); section != m_sections.rend(); ++section) {
        if (section->lines.empty())
            continue;
        if (section->lines.back().eol == Eol::None)
            section->lines.back().eol = Eol::CrLf;
        return;
    }
}

void IniDocument::AppendSection(std::string_view section, std::string_view key, std::string_view value) {
    EnsureLastLineEnds();
    AddLine(ParseLine(Concat("[", section, "]"), Eol::CrLf));
    AddLine(ParseLine(Concat(key, "=", value), Eol::CrLf));
}

bool IniDocument::SetValue(std::string_view section, std::string_view key, std::string_view value) {
    bool changed = Apply(section, key, value);
    // A line break inside a written name or value makes more lines of the file than the edit made; parse
    // anew so that the copy reads exactly as the file will.
    if (changed && (HasLineBreak(section) || HasLineBreak(key) || HasLineBreak(value)))
        *this = Parse(Serialize());
    return changed;
}

bool IniDocument::Apply(std::string_view section, std::string_view key, std::string_view value) {
    Section* found = Find(section);
    if (found == nullptr) {
        AppendSection(section, key, value);
        return true;
    }
    std::vector<Line>& lines = found->lines;
    auto existing = FindKey(*found, key);
    if (existing != lines.end()) {
        Line& line = lines[static_cast<std::size_t>(existing - lines.begin())];
        std::string text = Concat(line.Name(), "=", value);
        if (text == line.text && line.eol != Eol::None)
            return false;
        line = ParseLine(text, Eol::CrLf);
        return true;
    }
    // A new key goes right behind the section's last key line, or behind its header when it has none.
    auto lastKey =
        std::find_if(lines.rbegin(), lines.rend(), [](const Line& l) { return l.kind == Kind::Key; });
    std::size_t at = lastKey == lines.rend() ? 1 : static_cast<std::size_t>(lines.rend() - lastKey);
    if (lines[at - 1].eol == Eol::None)
        lines[at - 1].eol = Eol::CrLf;
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at),
                 ParseLine(Concat(key, "=", value), Eol::CrLf));
    return true;
}

bool IniDocument::DeleteKey(std::string_view section, std::string_view key) {
    Section* found = Find(section);
    if (found == nullptr)
        return false;
    auto line = FindKey(*found, key);
    if (line == found->lines.end())
        return false;
    found->lines.erase(line);
    return true;
}

bool IniDocument::DeleteSection(std::string_view section) {
    auto found = m_firstSection.find(section);
    if (found == m_firstSection.end())
        return false;
    // As on Windows, the header and the key lines go; the comments written inside the section stay where
    // they were, now at the end of the section before it.
    const auto deleted = m_sections.begin() + static_cast<std::ptrdiff_t>(found->second);
    std::vector<Line>& before = std::prev(deleted)->lines;
    for (Line& line : deleted->lines) {
        if (TrimBlanks(line.text).starts_with(';'))
            before.push_back(std::move(line));
    }
    m_sections.erase(deleted);
    Reindex();
    return true;
}

bool IniDocument::RenameBlocked(std::string_view section, std::string_view to) const {
    auto found = m_firstSection.find(section);
    auto taken = m_firstSection.find(to);
    return found != m_firstSection.end() && taken != m_firstSection.end() && taken->second != found->second;
}

bool IniDocument::RenameSection(std::string_view section, std::string_view to) {
    if (section.empty() || to.empty())
        return false;
    auto found = m_firstSection.find(section);
    auto taken = m_firstSection.find(to);
    if (found == m_firstSection.end() || (taken != m_firstSection.end() && taken->second != found->second))
        return false;
    Line& header = m_sections[found->second].lines.front();
    if (header.Name() == to)
        return false;
    std::string text = header.text;
    text.replace(header.nameBegin, header.nameLength, to);
    header = ParseLine(text, header.eol);
    Reindex();
    return true;
}

void IniDocument::Reindex() {
    m_firstSection.clear();
    for (std::size_t i = 1; i < m_sections.size(); ++i) {
        m_firstSection.try_emplace(std::string(m_sections[i].lines.front().Name()), i);
    }
}
