// The settings-file states that the crash trials save and recognise: every key K0... of [STATE] holds the
// same text of the save's number, so a file is either exactly one save's state or broken.
#pragma once

#include <optional>
#include <string>

namespace IniTrial {

// Saves state `save` of a file with `keys` keys as one update through the engine.
void SaveState(const std::string& file, int keys, int save);

// The bytes of a file that was created by state 0 and has since had state `save` written.
std::string StateBytes(int keys, int save);

// The save whose state `bytes` are exactly; nothing for anything else.
std::optional<int> StateOf(const std::string& bytes, int keys);

}  // namespace IniTrial
