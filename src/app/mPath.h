// The path helpers every part of the program shares. Windows paths use "\", Linux paths "/"; the helpers
// take the flavour so that both rules are tested on every host, and default to this build's own.
#pragma once

#include <string>

enum class PathFlavour { Windows, Posix };

#ifdef _WIN32
inline constexpr PathFlavour kNativePathFlavour = PathFlavour::Windows;
#else
inline constexpr PathFlavour kNativePathFlavour = PathFlavour::Posix;
#endif

namespace mPath {

char Separator(PathFlavour flavour = kNativePathFlavour);

// The existence tests find a name in any case, as on Windows (on Linux a name not there as spelt is looked
// for among its folder's entries).
// True for an existing entry that is not a folder (hidden entries included); false for an empty path.
bool FileExists(const std::string& path);

// True for an existing folder; false for an empty path.
bool FolderExists(const std::string& path);

// `path` as the file system spells it when it is there in another case only; else `path` itself.
std::string InAnyCase(const std::string& path);

// Adds (add) or removes one trailing separator. A path that is blank after trimming comes back unchanged;
// the path itself is never trimmed.
std::string AddOrRemoveBackslash(const std::string& path, bool add, PathFlavour flavour = kNativePathFlavour);

// The path up to and including its last separator; empty when it has none.
std::string GetDirectoryPart(const std::string& path, PathFlavour flavour = kNativePathFlavour);

}  // namespace mPath
