#include "app/mPath.h"

#include <filesystem>
#include <system_error>

#include "base/mString.h"
#include "platform/NativePath.h"

namespace mPath {
namespace {

std::filesystem::file_status StatusOf(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::status(platform::PathOf(path), ignored);
}

}  // namespace

char Separator(PathFlavour flavour) {
    return flavour == PathFlavour::Windows ? '\\' : '/';
}

bool FileExists(const std::string& path) {
    // A name that ends in a separator lists a folder's content, never a file; Windows' own checks of such
    // a path are not all alike.
    if (path.empty() || path.back() == Separator() || path.back() == '/')
        return false;
    std::filesystem::file_status status = StatusOf(path);
    return std::filesystem::exists(status) && !std::filesystem::is_directory(status);
}

bool FolderExists(const std::string& path) {
    return !path.empty() && std::filesystem::is_directory(StatusOf(path));
}

std::string AddOrRemoveBackslash(const std::string& path, bool add, PathFlavour flavour) {
    if (mString::Trim(path).empty())
        return path;
    char separator = Separator(flavour);
    bool ends = path.back() == separator;
    if (add)
        return ends ? path : path + separator;
    return ends ? path.substr(0, path.size() - 1) : path;
}

std::string GetDirectoryPart(const std::string& path, PathFlavour flavour) {
    const char separator = Separator(flavour);
    return std::string(mString::UpToLastOf(path, std::string_view(&separator, 1)));
}

}  // namespace mPath
