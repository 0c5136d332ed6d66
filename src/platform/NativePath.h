// Path texts as each OS spells them. PathOf and TextOf cross between the program's narrow texts and
// std::filesystem: on Linux they are the same bytes; on Windows std::filesystem works in UTF-16 and would
// read a narrow text as Latin-1, while the program's texts are in the ANSI code page that the Windows "A"
// functions use, so these two convert by that code page.
#pragma once

#include <filesystem>
#include <string>

namespace platform {

std::filesystem::path PathOf(const std::string& text);

// "" for a name the ANSI code page cannot spell.
std::string TextOf(const std::filesystem::path& path);

// The folder that holds `path`, without a trailing separator unless it is a root ("/", "C:\"); "." for a
// bare name.
std::string FolderOf(const std::string& path);

}  // namespace platform
