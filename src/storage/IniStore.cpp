#include "storage/IniStore.h"

#include <utility>

IniStore::Entry* IniStore::Current(const std::string& file) {
    auto found = m_files.find(file);
    if (found != m_files.end() && found->second.updates > 0)
        return &found->second;
    std::optional<platform::FileStamp> stamp = platform::StampOf(file);
    if (found != m_files.end() && stamp && found->second.stamp == stamp && found->second.settled) {
        return &found->second;
    }
    if (found != m_files.end())
        m_files.erase(found);
    std::optional<platform::FileContent> content = stamp ? platform::ReadFile(file) : std::nullopt;
    if (!content)
        return nullptr;
    DecodedIni decoded = DecodeIni(content->bytes);
    Entry entry{content->stamp, IniDocument::Parse(decoded.text), decoded.encoding, content->settled};
    return &(m_files.insert_or_assign(file, std::move(entry)).first->second);
}

std::optional<std::string> IniStore::Read(const std::string& file, std::string_view section,
                                          std::string_view key) {
    Entry* entry = Current(file);
    return entry != nullptr ? entry->document.Value(section, key) : std::nullopt;
}

IniStore::Entry& IniStore::ForUpdate(const std::string& file) {
    Entry* entry = Current(file);
    return entry != nullptr ? *entry : m_files[file];
}

void IniStore::BeginUpdate(const std::string& file) {
    ++ForUpdate(file).updates;
}

void IniStore::EndUpdate(const std::string& file) noexcept {
    auto found = m_files.find(file);
    if (found == m_files.end() || found->second.updates == 0)
        return;
    if (--found->second.updates == 0 && found->second.dirty)
        Commit(file, found->second);
}

void IniStore::Write(const std::string& file, std::string_view section, std::optional<std::string_view> key,
                     std::optional<std::string_view> value) {
    BeginUpdate(file);
    Entry& entry = m_files[file];
    bool changed = !key                ? entry.document.DeleteSection(section)
                   : value.has_value() ? entry.document.SetValue(section, *key, *value)
                                       : entry.document.DeleteKey(section, *key);
    entry.dirty = entry.dirty || changed;
    EndUpdate(file);
}

void IniStore::Commit(const std::string& file, Entry& entry) noexcept {
    std::optional<platform::FileStamp> stamp;
    try {
        if (platform::CanReplaceFile(file)) {
            entry.document.SerializeInto(m_buffer);
            if (entry.encoding != IniEncoding::Narrow)
                m_buffer = EncodeIni(std::move(m_buffer), entry.encoding);
            stamp = platform::ReplaceFile(file, m_buffer);
        }
    } catch (...) {
        // Out of memory while serialising: the file keeps its old content, as with any failed write.
    }
    if (stamp) {
        entry.stamp = stamp;
        entry.settled = true;
        entry.dirty = false;
    } else {
        // The write did not happen, so the copy must not pretend it did: the next read looks at the disk.
        m_files.erase(file);
    }
}
