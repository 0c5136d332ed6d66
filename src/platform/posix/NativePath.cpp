#include "platform/NativePath.h"

#include "base/mString.h"

namespace platform {

std::filesystem::path PathOf(const std::string& text) {
    return std::filesystem::path(text);
}

std::string TextOf(const std::filesystem::path& path) {
    return path.string();
}

std::string FolderOf(const std::string& path) {
    const std::string_view directory = mString::UpToLastOf(path, "/");
    if (directory.empty())
        return ".";
    return std::string(directory.size() == 1 ? directory : directory.substr(0, directory.size() - 1));
}

}  // namespace platform
