#include "support/IniTrial.h"

#include "storage/iniFile.h"

namespace IniTrial {
namespace {

// Long values make a save take long enough for a kill to land inside it.
std::string Value(int save) {
    return std::to_string(save) + ":" + std::string(100, 'v');
}

}  // namespace

void SaveState(const std::string& file, int keys, int save) {
    iniFile::Update update(file);
    for (int key = 0; key < keys; ++key)
        iniFile::Write(file, "STATE", "K" + std::to_string(key), Value(save));
}

std::string StateBytes(int keys, int save) {
    std::string bytes = "[STATE]\r\n";
    for (int key = 0; key < keys; ++key)
        bytes += "K" + std::to_string(key) + "=" + Value(save) + "\r\n";
    return bytes;
}

std::optional<int> StateOf(const std::string& bytes, int keys) {
    const std::string start = "[STATE]\r\nK0=";
    if (!bytes.starts_with(start))
        return std::nullopt;
    const int save = std::atoi(bytes.c_str() + start.size());
    return bytes == StateBytes(keys, save) ? std::optional<int>(save) : std::nullopt;
}

}  // namespace IniTrial
