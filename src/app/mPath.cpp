#include "app/mPath.h"

#include <filesystem>
#include <system_error>

#include "base/mString.h"
#include "platform/NativePath.h"

namespace mPath {
namespace {

namespace fs = std::filesystem;

// `path` with each part that is not there as spelt replaced by the entry of its folder that matches it in
// any case; `path` itself when some part is not there in any case.
fs::path Resolved(const fs::path& path) {
    fs::path resolved;
    for (const fs::path& part : path) {
        std::error_code error;
        if (resolved.empty() || fs::exists(resolved / part, error)) {
            resolved /= part;
            continue;
        }
        fs::path found;
        for (fs::directory_iterator entry(resolved, error); !error && entry != fs::directory_iterator();
             entry.increment(error)) {
            if (mString::EqualsNoCase(platform::TextOf(entry->path().filename()), platform::TextOf(part))) {
                found = entry->path();
                break;
            }
        }
        if (found.empty())
            return path;
        resolved = found;
    }
    return resolved;
}

// Windows finds a file or folder whatever the case of its name; so does the program where the file system
// tells case apart, so that a game folder's "Scenarios" is found as "scenarios" as the game itself finds it.
fs::file_status StatusOf(const std::string& path) {
    std::error_code ignored;
    const fs::path native = platform::PathOf(path);
    const fs::file_status status = fs::status(native, ignored);
    if (fs::exists(status) || kNativePathFlavour == PathFlavour::Windows)
        return status;
    return fs::status(Resolved(native), ignored);
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

std::string InAnyCase(const std::string& path) {
    std::error_code ignored;
    const fs::path native = platform::PathOf(path);
    if (path.empty() || fs::exists(native, ignored) || kNativePathFlavour == PathFlavour::Windows)
        return path;
    return platform::TextOf(Resolved(native));
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
