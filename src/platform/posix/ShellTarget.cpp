#include "platform/posix/ShellTarget.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "base/mString.h"
#include "platform/Platform.h"
#include "platform/posix/ProcessLauncher.h"

namespace fs = std::filesystem;

namespace platform {

namespace {

bool IsSchemeChar(unsigned char c) {
    return std::isalnum(c) != 0 || c == '+' || c == '-' || c == '.';
}

bool HasNul(std::string_view text) {
    return text.find('\0') != std::string_view::npos;
}

bool Exists(const fs::path& path) {
    std::error_code error;
    return fs::exists(path, error);
}

std::string Absolute(const fs::path& path) {
    std::error_code error;
    const fs::path result = fs::absolute(path, error);
    return error ? std::string() : result.string();
}

bool IsRegularFile(const std::string& path) {
    std::error_code error;
    return fs::is_regular_file(path, error);
}

bool StartsWith(std::string_view text, std::string_view prefix) {
    return text.substr(0, prefix.size()) == prefix;
}

}  // namespace

bool IsAddress(std::string_view file) {
    if (HasNul(file))
        return false;
    if (mString::StartsWithNoCase(file, "mailto:"))
        return true;
    const size_t end = file.find("://");
    if (end == std::string_view::npos || end < 2)
        return false;
    if (std::isalpha(static_cast<unsigned char>(file[0])) == 0)
        return false;
    return std::all_of(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(end),
                       [](char c) { return IsSchemeChar(static_cast<unsigned char>(c)); });
}

std::string LocateFile(const std::string& file, const std::string& directory) {
    if (file.empty() || HasNul(file))
        return {};
    const fs::path path(file);
    if (path.is_relative() && !directory.empty() && Exists(fs::path(directory) / path))
        return Absolute(fs::path(directory) / path);
    return Exists(path) ? Absolute(path) : std::string();
}

int32_t MissingFileResult(const std::string& file, const std::string& directory) {
    if (HasNul(file))
        return kSeErrFileNotFound;
    const fs::path folder = fs::path(file).parent_path();
    if (folder.empty() || IsFolder(folder.string()))
        return kSeErrFileNotFound;
    if (folder.is_relative() && !directory.empty() && IsFolder((fs::path(directory) / folder).string()))
        return kSeErrFileNotFound;
    return kSeErrPathNotFound;
}

bool IsFolder(const std::string& path) {
    std::error_code error;
    return !path.empty() && !HasNul(path) && fs::is_directory(path, error);
}

bool HasProgramName(const std::string& path) {
    constexpr std::string_view kSuffix = ".exe";
    return path.size() > kSuffix.size() && mString::EndsWithNoCase(path, kSuffix) && IsRegularFile(path);
}

bool HasExecuteBit(const std::string& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    constexpr fs::perms kAnyExec = fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
    return !error && fs::is_regular_file(status) && (status.permissions() & kAnyExec) != fs::perms::none;
}

ProgramKind ProgramKindOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        return ProgramKind::kUnreadable;
    char bytes[4] = {};
    file.read(bytes, sizeof bytes);
    if (file.bad())
        return ProgramKind::kUnreadable;
    const std::string_view head(bytes, static_cast<size_t>(file.gcount()));
    if (StartsWith(head,
                   "\x7f"
                   "ELF") ||
        StartsWith(head, "#!"))
        return ProgramKind::kNative;
    return StartsWith(head, "MZ") ? ProgramKind::kWindows : ProgramKind::kUnknown;
}

std::string WinePrefixOf(const std::string& program) {
    for (fs::path folder = fs::path(program).parent_path(); folder.has_relative_path();
         folder = folder.parent_path()) {
        std::error_code error;
        if (folder.filename() == "drive_c" && fs::is_regular_file(folder.parent_path() / "system.reg", error))
            return fs::absolute(folder.parent_path(), error).string();
    }
    return {};
}

std::vector<std::string> WineEnvironmentFor(const std::string& program) {
    const std::string prefix = WinePrefixOf(program);
    if (prefix.empty())
        return {};
    return {"WINEPREFIX=" + prefix};
}

// An absolute candidate replaces every folder of PATH, so FindOnPath takes it as it is.
std::string FindWine(const std::vector<std::string>& candidates) {
    for (const std::string& candidate : candidates) {
        if (std::string found = FindOnPath(candidate); !found.empty())
            return found;
    }
    return {};
}

}  // namespace platform
