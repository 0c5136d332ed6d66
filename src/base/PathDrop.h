// What a path field makes of something dropped on it, the same in both faces: text is taken as it is (not
// trimmed, not checked to be a path); without text, a file list of exactly one file gives that file; any
// other drop empties the field. Text and a single file are taken as a copy; anything else keeps the action
// the drag proposed.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace PathDrop {

std::string PathOf(const std::optional<std::string>& text, const std::vector<std::string>& files);

bool TakenAsCopy(bool offersText, std::size_t files);

}  // namespace PathDrop
