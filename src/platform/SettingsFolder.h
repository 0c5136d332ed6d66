// Where the settings file lives, decided the same way on every OS: a copy of the program that is not
// installed and may write its own folder (a build tree, a portable copy) keeps it beside itself, so the
// copy carries its settings wherever it goes; an installed program, or one in a folder it may not write,
// keeps it in the user's own settings folder, so every user has settings of their own.
#pragma once

#include <functional>
#include <string>

namespace platform {

// The folder, under the user's settings folder, that an installed program's settings file goes in.
inline constexpr char kUserSettingsFolder[] = "Pavonel";

// `program` while the program is not `installed` and `writable` answers true (asked only then), else
// `user`'s kUserSettingsFolder; `program`, too, when there is no user folder ("") to go to.
std::string ChooseSettingsFolder(const std::string& program, const std::string& user, bool installed,
                                 const std::function<bool()>& writable);

}  // namespace platform
