// Keeps a parsed copy of every settings or language file the program touches. A read first makes sure the
// copy is the file's current state (identity, size and times; the bytes themselves while the times are too
// young to tell a later edit apart), so another program's edit is seen at the next read; within a load only
// the first read checks. Writes go to the copy and are committed once per update: under the file's lock,
// onto the file as it is then, so two copies of the program never undo each other's changes.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/FileSystem.h"
#include "storage/IniDocument.h"
#include "storage/IniEncoding.h"

class IniStore {
public:
    // The value of `key` in `section`, or nothing when the file, the section or the key is missing.
    std::optional<std::string> Read(std::string_view file, std::string_view section, std::string_view key);

    // Sets (value given) or deletes (no value) a key, or deletes a whole section (no key). A name or value
    // that would break the file's lines (a line break anywhere, a "]" in a section name, a "=" in a key, a
    // key that would read as a section) is refused with LineBreak and has no effect. Otherwise the result is
    // EndUpdate's, or None inside an open update.
    platform::WriteFault Write(const std::string& file, std::string_view section,
                               std::optional<std::string_view> key, std::optional<std::string_view> value);

    // Gives the first section named `section` the name `to`, its keys and their order kept, as one write:
    // the file never holds both names or neither. Nothing happens when the section is missing. When another
    // section is named `to` (here, or in the file by the time it is written), the whole update it belongs to
    // is refused with NameTaken; a name that would break the file's lines is refused as Write refuses it.
    platform::WriteFault RenameSection(const std::string& file, std::string_view section,
                                       std::string_view to);

    // Between BeginUpdate and the matching EndUpdate, writes to `file` stay in memory; EndUpdate commits
    // them as one replacement of the file. Updates nest. EndUpdate says why the outermost update's writes
    // did not all reach the file (None when they did, or when there was nothing to write; None too for an
    // inner update, which leaves that to the outer one). A file that cannot be written is no failure: its
    // writes have no effect, and the result tells the caller that they were not kept.
    void BeginUpdate(const std::string& file);
    platform::WriteFault EndUpdate(const std::string& file) noexcept;

    // Between BeginLoad and the matching EndLoad, only the first read of `file` checks it against the disk;
    // one owner's values then come from one version of the file. Loads nest.
    void BeginLoad(const std::string& file);
    void EndLoad(const std::string& file) noexcept;

    // How long a commit waits for another process's lock before it gives up, as for a read-only file. A
    // save holds the lock for milliseconds; only a copy of the program that hangs holds it longer.
    static constexpr std::chrono::milliseconds kDefaultLockPatience{3000};
    void SetLockPatience(std::chrono::milliseconds patience) { m_lockPatience = patience; }

    // Forgets every parsed copy.
    void Clear() noexcept { m_files.clear(); }

private:
    // One write of an update, kept to be made again on a newer version of the file.
    struct Change {
        std::string section;
        std::optional<std::string> key;       // nothing deletes the section
        std::optional<std::string> value;     // nothing deletes the key
        std::optional<std::string> renameTo;  // the section's new name; key and value are unused then
    };

    struct Entry {
        std::optional<platform::FileStamp> stamp;  // nothing while the file does not exist
        std::string bytes;                         // what the file held when the copy was made
        IniDocument document;
        IniEncoding encoding = IniEncoding::Narrow;
        bool settled = true;  // see platform::FileContent
        int updates = 0;
        int loads = 0;
        bool checked = false;         // checked against the file in the current load
        std::vector<Change> changes;  // the writes of the open update
        bool dirty = false;           // the changes make the copy differ from the file
        platform::WriteFault refusal =
            platform::WriteFault::None;  // why a write of the open update was refused
    };

    // What a look at the disk found, compared with a copy.
    enum class Found { Current, Changed, Missing, Unreadable };

    Entry& Current(std::string_view file);
    static Found Look(const std::string& file, const Entry& entry,
                      std::optional<platform::FileContent>& content);
    static void Take(Entry& entry, platform::FileContent content);
    static bool Apply(IniDocument& document, const Change& change);
    platform::WriteFault Record(const std::string& file, Change change, platform::WriteFault refusal);
    platform::WriteFault Rebase(const std::string& file, Entry& entry);
    platform::WriteFault Commit(const std::string& file, Entry& entry) noexcept;
    platform::WriteFault CommitUnderLock(const std::string& file, Entry& entry);
    static platform::WriteFault Replace(const std::string& file, Entry& entry);
    static void ForgetFile(Entry& entry) noexcept;
    static void Forget(Entry& entry) noexcept;

    // Looked up by views, so that a read makes no copy of the path.
    struct PathHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view path) const noexcept {
            return std::hash<std::string_view>{}(path);
        }
    };
    std::unordered_map<std::string, Entry, PathHash, std::equal_to<>> m_files;
    std::chrono::milliseconds m_lockPatience = kDefaultLockPatience;
};
