#include "platform/NativePath.h"

namespace platform {

std::filesystem::path PathOf(const std::string& text) {
    return std::filesystem::path(text);
}

std::string TextOf(const std::filesystem::path& path) {
    return path.string();
}

std::string FolderOf(const std::string& path) {
    const std::string::size_type slash = path.find_last_of('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

}  // namespace platform
