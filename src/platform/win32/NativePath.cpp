#include "platform/NativePath.h"

#include <windows.h>

#include <climits>

#include "base/mString.h"

namespace platform {

std::filesystem::path PathOf(const std::string& text) {
    if (text.empty() || text.size() > INT_MAX)
        return {};
    const int size = static_cast<int>(text.size());
    const int length = MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), length);
    return std::filesystem::path(wide);
}

std::string TextOf(const std::filesystem::path& path) {
    const std::wstring& wide = path.native();
    if (wide.empty() || wide.size() > INT_MAX)
        return {};
    const int size = static_cast<int>(wide.size());
    BOOL lossy = FALSE;
    // The UTF-8 code page spells every name and takes no substitution flag.
    BOOL* lossyFlag = GetACP() == CP_UTF8 ? nullptr : &lossy;
    const int length = WideCharToMultiByte(CP_ACP, 0, wide.data(), size, nullptr, 0, nullptr, lossyFlag);
    std::string text(static_cast<std::size_t>(length), '\0');
    WideCharToMultiByte(CP_ACP, 0, wide.data(), size, text.data(), length, nullptr, lossyFlag);
    return lossy ? std::string() : text;
}

std::string FolderOf(const std::string& path) {
    const std::string_view directory = mString::UpToLastOf(path, "\\/");
    if (directory.empty())
        return ".";
    // "C:\tarvolin.exe" lives in "C:\", which keeps its backslash.
    const bool driveRoot = directory.size() == 3 && directory[1] == ':';
    return std::string(driveRoot ? directory : directory.substr(0, directory.size() - 1));
}

}  // namespace platform
