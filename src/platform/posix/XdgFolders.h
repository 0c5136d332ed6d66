// Where a freedesktop desktop keeps the user's folders, standing in for the Windows shell's special folders.
// Paths are returned whether or not the folder exists yet: whoever writes into one creates what is missing.
// An environment variable that is empty or holds a relative path is ignored, as the XDG base directory
// rules require, and its default is used instead. Defaults lie under $HOME, else under the home folder of
// the user's account entry; with neither known, a folder is "".
#pragma once

#include <string>

namespace platform {

// $XDG_CONFIG_HOME, default ~/.config.
std::string XdgConfigHome();

// $XDG_DATA_HOME, default ~/.local/share.
std::string XdgDataHome();

// XDG_DESKTOP_DIR from user-dirs.dirs in $XDG_CONFIG_HOME (default ~/.config): the last assignment wins,
// and "$HOME" or "${HOME}" at the start of its value is expanded. Default ~/Desktop. An assignment whose
// value is not an absolute path after expansion is ignored, as xdg-user-dir does.
std::string XdgDesktopDirectory();

}  // namespace platform
