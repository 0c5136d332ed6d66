#include "winui/dialogs/FileChooser.h"

#include <commdlg.h>
#include <shlobj.h>

#include <vector>

#include "winui/WinText.h"

namespace FileChooser {

namespace {

HWND OwnerOf(int64_t owner) {
    return owner == -1 ? nullptr : reinterpret_cast<HWND>(static_cast<intptr_t>(owner));
}

// "Programs (*.exe)|*.exe" as Windows takes it: every pair's parts ended by a NUL, the list by another.
std::string FilterOf(const std::string& filter) {
    std::string pairs = filter;
    for (char& c : pairs)
        if (c == '|')
            c = '\0';
    return pairs + std::string(2, '\0');
}

// The chosen files: one full path, or a folder followed by the names chosen in it.
std::vector<std::string> FilesOf(const std::string& buffer) {
    std::vector<std::string> parts;
    for (std::size_t at = 0; at < buffer.size() && buffer[at] != '\0';) {
        const std::size_t end = buffer.find('\0', at);
        parts.push_back(buffer.substr(at, end - at));
        at = end + 1;
    }
    if (parts.size() <= 1)
        return parts;
    std::string folder = parts.front();
    if (folder.back() != '\\')
        folder += '\\';
    std::vector<std::string> files;
    for (std::size_t i = 1; i < parts.size(); ++i)
        files.push_back(folder + parts[i]);
    return files;
}

}  // namespace

namespace {

// The record both choosers are given, over the buffers that live as long as the call.
struct Record {
    explicit Record(const OpenFileOptions& options)
        : file(options.fileName.substr(0, Size(options) - 1)),
          filter(FilterOf(options.filter)),
          extension(options.defaultExtension.substr(options.defaultExtension.starts_with('.'))) {
        file.resize(Size(options), '\0');
        record.lStructSize = sizeof record;
        record.hwndOwner = OwnerOf(options.owner);
        record.lpstrFilter = options.filter.empty() ? nullptr : filter.c_str();
        record.nFilterIndex = static_cast<DWORD>(options.filterIndex);
        record.lpstrFile = file.data();
        record.nMaxFile = static_cast<DWORD>(file.size());
        record.lpstrInitialDir =
            options.initialDirectory.empty() ? nullptr : options.initialDirectory.c_str();
        record.lpstrTitle = options.title.empty() ? nullptr : options.title.c_str();
        record.lpstrDefExt = extension.empty() ? nullptr : extension.c_str();
        record.Flags = OFN_EXPLORER | (options.readOnlyChecked ? OFN_READONLY : 0) |
                       (options.hideReadOnly ? OFN_HIDEREADONLY : 0);
    }
    static std::size_t Size(const OpenFileOptions& options) { return options.multiSelect ? 8192 : 260; }

    std::string file;
    std::string filter;
    std::string extension;
    OPENFILENAMEA record{};
};

}  // namespace

OpenFileAnswer Run(const OpenFileOptions& options) {
    Record chooser(options);
    chooser.record.Flags |=
        (options.fileMustExist ? OFN_FILEMUSTEXIST : 0) | (options.multiSelect ? OFN_ALLOWMULTISELECT : 0);
    OpenFileAnswer answer;
    if (GetOpenFileNameA(&chooser.record)) {
        answer.outcome = OpenFileAnswer::Outcome::kChosen;
        answer.files = FilesOf(chooser.file);
        answer.readOnlyChecked = (chooser.record.Flags & OFN_READONLY) != 0;
    } else if (const DWORD error = CommDlgExtendedError(); error != 0) {
        answer.outcome = OpenFileAnswer::Outcome::kFailed;
        answer.errorCode = static_cast<int32_t>(error);
    }
    return answer;
}

std::string RunSave(const OpenFileOptions& options) {
    Record chooser(options);
    chooser.record.Flags |= OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY;
    if (!GetSaveFileNameA(&chooser.record))
        return {};
    return chooser.file.substr(0, chooser.file.find('\0'));
}

std::string RunFolder(int64_t owner, const std::string& title, const std::string& rootFolder) {
    PIDLIST_ABSOLUTE root = nullptr;
    if (!rootFolder.empty())
        SHParseDisplayName(WinText::Wide(rootFolder).c_str(), nullptr, &root, 0, nullptr);
    BROWSEINFOA browse{};
    browse.hwndOwner = OwnerOf(owner);
    browse.pidlRoot = root;
    browse.lpszTitle = title.c_str();
    browse.ulFlags = BIF_RETURNONLYFSDIRS;
    PIDLIST_ABSOLUTE chosen = SHBrowseForFolderA(&browse);
    char path[512] = {};
    const bool found = chosen != nullptr && SHGetPathFromIDListA(chosen, path);
    CoTaskMemFree(chosen);
    CoTaskMemFree(root);
    return found ? std::string(path) : std::string();
}

}  // namespace FileChooser
