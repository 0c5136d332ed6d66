// The settings-file engine: the semantics of the Windows private-profile functions on any OS.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/FileSystem.h"

class IniStore;

namespace iniFile {

// The text that a buffer of `size` characters would receive when reading `key` of `section` in `file`:
// the stored value, or `defaultValue` without its trailing spaces when the key (or section, or file) is
// missing, cut to `size - 1` characters. Spaces around `section` and `key` are ignored.
std::string Read(std::string_view file, std::string_view section, std::string_view key,
                 std::string_view defaultValue, std::size_t size);

// Sets `key` of `section` in `file` to `value`; no value deletes the key, no key deletes the section with
// its keys. A missing folder, a folder in the file's place, or a read-only file or folder make it a no-op,
// and so does a name or value with a line break, which would change the file's structure. The result says
// why the write did not reach the file (None when it did, or when an open update will commit it).
platform::WriteFault Write(const std::string& file, std::string_view section,
                           std::optional<std::string_view> key, std::optional<std::string_view> value);

// Gives the section `section` of `file` the name `to` in one write of the file, its keys and every other
// byte kept; nothing happens when the section is missing or `to` names another section already.
platform::WriteFault RenameSection(const std::string& file, std::string_view section, std::string_view to);

// Gathers every write to `file` made while it lives into one atomic update of the file, committed when
// the last open update ends (also when a failure leaves the scope). The commit takes the file's lock,
// starts from the file as it is then and makes only these writes, so another copy of the program's
// writes in the meantime are kept. No lock is held while the update is open.
class Update {
public:
    explicit Update(std::string file);
    ~Update();
    Update(const Update&) = delete;
    Update& operator=(const Update&) = delete;

    // Ends the update now and says why its writes did not all reach the file when this was the outermost
    // update (a read-only file, another copy of the program keeping the lock, a full disk): the caller must
    // not count them as saved. An update inside another one leaves that to the outer one and gives None.
    platform::WriteFault Commit();

private:
    std::string m_file;
    bool m_open = true;
};

// Makes every read of `file` made while it lives come from one check of the file: the first read compares
// the file with the engine's copy, the others trust that copy. One owner's load checks the file once.
class Load {
public:
    explicit Load(std::string file);
    ~Load();
    Load(const Load&) = delete;
    Load& operator=(const Load&) = delete;

private:
    std::string m_file;
};

// The engine's parsed copies (tests use it to start from a clean state).
IniStore& Store();

}  // namespace iniFile
