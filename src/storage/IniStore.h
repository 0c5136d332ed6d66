// Keeps a parsed copy of every settings or language file the program touches. Each access first compares
// the file on disk (identity, size, modification time) with the copy, so another program's edit is seen at
// the next read. Writes go to the copy and are committed to the disk atomically, once per update.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/FileSystem.h"
#include "storage/IniDocument.h"
#include "storage/IniEncoding.h"

class IniStore {
public:
    // The value of `key` in `section`, or nothing when the file, the section or the key is missing.
    std::optional<std::string> Read(const std::string& file, std::string_view section, std::string_view key);

    // Sets (value given) or deletes (no value) a key, or deletes a whole section (no key).
    void Write(const std::string& file, std::string_view section, std::optional<std::string_view> key,
               std::optional<std::string_view> value);

    // Between BeginUpdate and the matching EndUpdate, writes to `file` stay in memory; EndUpdate commits
    // them as one replacement of the file. Updates nest.
    void BeginUpdate(const std::string& file);
    void EndUpdate(const std::string& file) noexcept;

    // Forgets every parsed copy.
    void Clear() noexcept { m_files.clear(); }

private:
    struct Entry {
        std::optional<platform::FileStamp> stamp;  // nothing while the file does not exist
        IniDocument document;
        IniEncoding encoding = IniEncoding::Narrow;
        bool settled = true;  // see platform::FileContent
        int updates = 0;
        bool dirty = false;
    };

    Entry* Current(const std::string& file);
    Entry& ForUpdate(const std::string& file);
    void Commit(const std::string& file, Entry& entry) noexcept;

    std::unordered_map<std::string, Entry> m_files;
    std::string m_buffer;  // the bytes of the file being committed, kept to spare an allocation per commit
};
