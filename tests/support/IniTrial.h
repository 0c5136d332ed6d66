// The settings file that the crash trials save over and over: save i sets every key K0... of [STATE] to
// the same text of i, so a file is exactly one save's state or broken.
#pragma once

#include <string>

namespace IniTrial {

constexpr int kKeys = 200;

// Long values make a save take long enough for a kill to land inside it.
inline std::string Value(int save) {
    return std::to_string(save) + ":" + std::string(100, 'v');
}

// The file after save `save`, when the saves started on an empty file.
inline std::string StateBytes(int save) {
    std::string bytes = "[STATE]\r\n";
    for (int key = 0; key < kKeys; ++key)
        bytes += "K" + std::to_string(key) + "=" + Value(save) + "\r\n";
    return bytes;
}

}  // namespace IniTrial
