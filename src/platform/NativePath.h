// Between the program's narrow path texts and std::filesystem. On Linux both are the same bytes. On
// Windows std::filesystem works in UTF-16 and would read a narrow text as Latin-1, while the program's
// texts are in the ANSI code page that the Windows "A" functions use; these two convert by that code page.
#pragma once

#include <filesystem>
#include <string>

namespace platform {

std::filesystem::path PathOf(const std::string& text);

// "" for a name the ANSI code page cannot spell.
std::string TextOf(const std::filesystem::path& path);

}  // namespace platform
