#include "storage/IniStore.h"

#include <utility>

#include "platform/FileLock.h"

namespace {

// True when writing these names and this value would make lines the file did not have, or make the key
// read as a section or as another key.
bool BreaksLines(std::string_view section, std::optional<std::string_view> key,
                 std::optional<std::string_view> value) {
    constexpr std::string_view kBreaks = "\r\n";
    if (section.find_first_of(kBreaks) != std::string_view::npos ||
        section.find(']') != std::string_view::npos)
        return true;
    if (key && (key->find_first_of("\r\n=") != std::string_view::npos || key->find_first_of("[;") == 0))
        return true;
    return value && value->find_first_of(kBreaks) != std::string_view::npos;
}

// A file found to hold what the copy does: the copy takes the stamp of what was just read.
void Restamp(std::optional<platform::FileStamp>& stamp, bool& settled,
             const std::optional<platform::FileContent>& content) {
    if (content) {
        stamp = content->stamp;
        settled = content->settled;
    }
}

}  // namespace

IniStore::Found IniStore::Look(const std::string& file, const Entry& entry,
                               std::optional<platform::FileContent>& content) {
    const std::optional<platform::FileStamp> stamp = platform::StampOf(file);
    if (!stamp)
        return entry.stamp ? Found::Missing : Found::Current;
    if (entry.stamp == stamp && entry.settled)
        return Found::Current;
    // A young file may have been edited within the same tick of the file system's clock, keeping every
    // time and the size: only its bytes tell.
    content = platform::ReadFile(file);
    if (!content)
        return Found::Unreadable;
    return entry.stamp && content->bytes == entry.bytes ? Found::Current : Found::Changed;
}

void IniStore::Take(Entry& entry, platform::FileContent content) {
    DecodedIni decoded = DecodeIni(content.bytes);
    entry.document = IniDocument::Parse(decoded.text);
    entry.encoding = decoded.encoding;
    entry.stamp = content.stamp;
    entry.settled = content.settled;
    entry.bytes = std::move(content.bytes);
}

void IniStore::ForgetFile(Entry& entry) noexcept {
    entry.stamp.reset();
    entry.bytes.clear();
    entry.document = IniDocument();
    entry.encoding = IniEncoding::Narrow;
    entry.settled = true;
}

void IniStore::Forget(Entry& entry) noexcept {
    ForgetFile(entry);
    entry.changes.clear();
    entry.dirty = false;
    entry.checked = false;
}

IniStore::Entry& IniStore::Current(std::string_view path) {
    auto found = m_files.find(path);
    if (found == m_files.end())
        found = m_files.try_emplace(std::string(path)).first;
    const std::string& file = found->first;
    Entry& entry = found->second;
    if (entry.updates > 0 || (entry.loads > 0 && entry.checked))
        return entry;
    std::optional<platform::FileContent> content;
    switch (Look(file, entry, content)) {
        case Found::Current:
            Restamp(entry.stamp, entry.settled, content);
            break;
        case Found::Changed:
            Take(entry, std::move(*content));
            break;
        case Found::Missing:
        case Found::Unreadable:
            Forget(entry);
            break;
    }
    entry.checked = entry.loads > 0;
    return entry;
}

std::optional<std::string> IniStore::Read(std::string_view file, std::string_view section,
                                          std::string_view key) {
    return Current(file).document.Value(section, key);
}

void IniStore::BeginUpdate(const std::string& file) {
    ++Current(file).updates;
}

platform::WriteFault IniStore::EndUpdate(const std::string& file) noexcept {
    auto found = m_files.find(file);
    if (found == m_files.end() || found->second.updates == 0)
        return platform::WriteFault::None;
    Entry& entry = found->second;
    if (--entry.updates > 0)
        return platform::WriteFault::None;
    const platform::WriteFault refusal = std::exchange(entry.refusal, platform::WriteFault::None);
    // A rename onto a name that is taken would leave the update's other writes pointing at a profile that is
    // not there: none of them is written.
    if (refusal == platform::WriteFault::NameTaken) {
        Forget(entry);
        return refusal;
    }
    const platform::WriteFault fault =
        entry.changes.empty() ? platform::WriteFault::None : Commit(file, entry);
    return fault == platform::WriteFault::None ? refusal : fault;
}

void IniStore::BeginLoad(const std::string& file) {
    Entry& entry = m_files[file];
    if (entry.loads++ == 0)
        entry.checked = false;
}

void IniStore::EndLoad(const std::string& file) noexcept {
    auto found = m_files.find(file);
    if (found != m_files.end() && found->second.loads > 0)
        --found->second.loads;
}

bool IniStore::Apply(IniDocument& document, const Change& change) {
    if (change.renameTo)
        return document.RenameSection(change.section, *change.renameTo);
    if (!change.key)
        return document.DeleteSection(change.section);
    if (!change.value)
        return document.DeleteKey(change.section, *change.key);
    return document.SetValue(change.section, *change.key, *change.value);
}

platform::WriteFault IniStore::Write(const std::string& file, std::string_view section,
                                     std::optional<std::string_view> key,
                                     std::optional<std::string_view> value) {
    Change change{std::string(section), key ? std::optional<std::string>(*key) : std::nullopt,
                  value ? std::optional<std::string>(*value) : std::nullopt, std::nullopt};
    return Record(
        file, std::move(change),
        BreaksLines(section, key, value) ? platform::WriteFault::LineBreak : platform::WriteFault::None);
}

platform::WriteFault IniStore::RenameSection(const std::string& file, std::string_view section,
                                             std::string_view to) {
    const bool refused =
        BreaksLines(section, std::nullopt, std::nullopt) || BreaksLines(to, std::nullopt, std::nullopt);
    Change change{std::string(section), std::nullopt, std::nullopt, std::string(to)};
    if (refused)
        return Record(file, std::move(change), platform::WriteFault::LineBreak);
    const bool taken = Current(file).document.RenameBlocked(section, to);
    return Record(file, std::move(change),
                  taken ? platform::WriteFault::NameTaken : platform::WriteFault::None);
}

platform::WriteFault IniStore::Record(const std::string& file, Change change, platform::WriteFault refusal) {
    if (refusal != platform::WriteFault::None) {
        auto found = m_files.find(file);
        if (found != m_files.end() && found->second.updates > 0 &&
            found->second.refusal != platform::WriteFault::NameTaken)
            found->second.refusal = refusal;
        return refusal;
    }
    BeginUpdate(file);
    Entry& entry = m_files[file];
    entry.dirty = Apply(entry.document, change) || entry.dirty;
    // Kept even when the copy already holds it: the file may say otherwise by the time it is committed.
    entry.changes.push_back(std::move(change));
    return EndUpdate(file);
}

platform::WriteFault IniStore::Rebase(const std::string& file, Entry& entry) {
    std::optional<platform::FileContent> content;
    switch (Look(file, entry, content)) {
        case Found::Current:
            Restamp(entry.stamp, entry.settled, content);
            return platform::WriteFault::None;
        case Found::Unreadable:
            return platform::WriteFault::WriteFailed;
        case Found::Missing:
            ForgetFile(entry);
            break;
        case Found::Changed:
            Take(entry, std::move(*content));
            break;
    }
    // Only what this update asked for goes onto the newer file; everything else stays as the file has it.
    entry.dirty = false;
    for (const Change& change : entry.changes) {
        // Another copy gave a section the name this update renames onto.
        if (change.renameTo && entry.document.RenameBlocked(change.section, *change.renameTo))
            return platform::WriteFault::NameTaken;
        entry.dirty = Apply(entry.document, change) || entry.dirty;
    }
    return platform::WriteFault::None;
}

platform::WriteFault IniStore::Commit(const std::string& file, Entry& entry) noexcept {
    platform::WriteFault fault = platform::WriteFault::WriteFailed;
    try {
        std::optional<platform::FileContent> content;
        if (!entry.dirty && Look(file, entry, content) == Found::Current) {
            // Nothing to write while the file still holds what the copy does.
            Restamp(entry.stamp, entry.settled, content);
            entry.changes.clear();
            return platform::WriteFault::None;
        }
        fault = CommitUnderLock(file, entry);
    } catch (...) {
        // Out of memory: the file keeps its old content, as with any failed write.
    }
    // The write did not happen, so the copy must not pretend it did: the next read looks at the disk.
    if (fault != platform::WriteFault::None)
        Forget(entry);
    return fault;
}

platform::WriteFault IniStore::CommitUnderLock(const std::string& file, Entry& entry) {
    // While another copy replaces the file it may look unwritable for a moment (on Windows); where a lock
    // file shows that copies write here, the question is asked again under the lock, so that no write is
    // dropped for that moment. Nothing is created beside a file that is not to be written.
    platform::WriteFault fault = platform::ReplaceObstacle(file);
    const bool writable = fault == platform::WriteFault::None;
    const std::optional<platform::FileLock> lock =
        platform::FileLock::Acquire(file, m_lockPatience, writable);
    if (!lock)
        return writable ? platform::WriteFault::Locked : fault;
    if (!writable)
        fault = platform::ReplaceObstacle(file);
    if (fault != platform::WriteFault::None)
        return fault;
    const platform::WriteFault rebased = Rebase(file, entry);
    return rebased == platform::WriteFault::None ? Replace(file, entry) : rebased;
}

platform::WriteFault IniStore::Replace(const std::string& file, Entry& entry) {
    // No other copy of the program is saving while the lock is held, so every temporary file beside the
    // settings file is a crashed save's.
    platform::RemoveLeftovers(file);
    if (entry.dirty) {
        std::string bytes;
        entry.document.SerializeInto(bytes);
        if (entry.encoding != IniEncoding::Narrow)
            bytes = EncodeIni(std::move(bytes), entry.encoding);
        platform::WriteFault fault = platform::WriteFault::None;
        std::optional<platform::FileStamp> stamp = platform::ReplaceFile(file, bytes, &fault);
        if (!stamp)
            return fault;
        entry.stamp = stamp;
        entry.bytes = std::move(bytes);
        entry.settled = false;
        entry.dirty = false;
    }
    entry.changes.clear();
    return platform::WriteFault::None;
}
