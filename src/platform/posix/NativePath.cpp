#include "platform/NativePath.h"

namespace platform {

std::filesystem::path PathOf(const std::string& text) {
    return std::filesystem::path(text);
}

std::string TextOf(const std::filesystem::path& path) {
    return path.string();
}

}  // namespace platform
