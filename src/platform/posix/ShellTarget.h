// What the shell is asked to open, seen the way the Windows shell sees it: an address for a handler, a file
// found beside the working directory, and for a program, what kind of program its first bytes make it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

// A web or mail address (a scheme of at least two characters before "://", or "mailto:"); it goes to the
// desktop's handler untouched. A drive letter ("C://") does not make an address.
bool IsAddress(std::string_view file);

// The absolute path of `file`, looked for in `directory` first when it is relative, as the Windows shell
// does; "" when it exists in neither place.
std::string LocateFile(const std::string& file, const std::string& directory);

// The shell's error code for a file that LocateFile did not find: kSeErrPathNotFound when its folder is
// missing too, else kSeErrFileNotFound.
int32_t MissingFileResult(const std::string& file, const std::string& directory);

// An existing folder ("" and a text with a NUL character are none).
bool IsFolder(const std::string& path);

// A regular file whose name ends in ".exe" in any case: the file names a program whatever its permissions.
bool HasProgramName(const std::string& path);

// A regular file with an execute permission bit for anybody.
bool HasExecuteBit(const std::string& path);

enum class ProgramKind {
    kNative,      // ELF, or a script with a "#!" line
    kWindows,     // an "MZ" executable, which needs Wine here
    kUnknown,     // neither: nothing can start it
    kUnreadable,  // its first bytes cannot be read
};

// The kind of program in `path`, by its first bytes.
ProgramKind ProgramKindOf(const std::string& path);

// Where Wine's loader is looked for, in this order: a name on PATH, a path as it is. Debian's wine64
// package alone puts no command on PATH, so its loader is looked for where Debian keeps it.
inline const std::vector<std::string> kWineCandidates = {"wine", "wine64", "/usr/lib/wine/wine64"};

// The first of `candidates` that is an executable file; "" when there is none.
std::string FindWine(const std::vector<std::string>& candidates);

// The Wine prefix that holds `program`: the folder above the nearest "drive_c" on its path, when that folder
// also holds Wine's registry file "system.reg"; "" outside any prefix. A Windows program installed in a
// prefix of its own finds its registry entries and runtimes only when Wine runs in that prefix.
std::string WinePrefixOf(const std::string& program);

// The environment a Windows program is started with: WINEPREFIX set to its prefix when it lies in one
// (whatever the launcher's own environment says), else nothing changed.
std::vector<std::string> WineEnvironmentFor(const std::string& program);

}  // namespace platform
