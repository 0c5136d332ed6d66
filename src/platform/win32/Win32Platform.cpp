#include "platform/win32/Win32Platform.h"

#include <windows.h>
// The shell's headers need the definitions of windows.h first.
#include <shellapi.h>
#include <shlobj.h>

#include <string>
#include <vector>

#include "platform/NativePath.h"
#include "platform/SettingsFolder.h"

namespace {

// The owner value the launcher has always passed for special-folder lookups; the shell only uses it to
// parent a dialog, which these lookups never show.
const auto kSpecialFolderOwner = reinterpret_cast<HWND>(static_cast<INT_PTR>(100));
constexpr std::size_t kSpecialFolderBuffer = 512;
constexpr UINT kWindowsDirectoryBuffer = 256;
// The length field of the security record as the launcher has always filled it; Windows reads only the
// descriptor and the inherit flag.
constexpr DWORD kSecurityRecordLength = 12;

const char* OrNull(const std::string& text) {
    return text.empty() ? nullptr : text.c_str();
}

// Whether a file may be made in `folder`: the only answer that counts the folder's access rules, the
// user's rights and a read-only medium alike is a file made there, which goes again when it is closed.
bool FolderAcceptsFiles(const std::string& folder) {
    const std::string probe = folder + "\\~pavonel-" + std::to_string(GetCurrentProcessId()) + ".tmp";
    const HANDLE file = CreateFileA(probe.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    CloseHandle(file);
    return true;
}

}  // namespace

std::string Win32Platform::SettingsDirectory() {
    const std::string program = ProgramDirectory();
    const std::string uninstaller = program + "\\" + platform::kUninstallerName;
    const bool installed = GetFileAttributesA(uninstaller.c_str()) != INVALID_FILE_ATTRIBUTES;
    return platform::ChooseSettingsFolder(program, SpecialFolder(kCsidlAppData), installed,
                                          [&] { return FolderAcceptsFiles(program); });
}

std::string Win32Platform::ProgramDirectory() {
    std::vector<char> buffer(MAX_PATH);
    for (;;) {
        const DWORD length = GetModuleFileNameA(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
        if (length == 0)
            return ".";
        if (length < buffer.size())
            return platform::FolderOf(std::string(buffer.data(), length));
        buffer.resize(buffer.size() * 2);
    }
}

int32_t Win32Platform::ShellExec(int64_t owner, const std::string& verb, const std::string& file,
                                 const std::string& parameters, const std::string& directory,
                                 int32_t showCommand) {
    const HINSTANCE result = ShellExecuteA(reinterpret_cast<HWND>(static_cast<INT_PTR>(owner)), OrNull(verb),
                                           file.c_str(), OrNull(parameters), OrNull(directory), showCommand);
    return static_cast<int32_t>(reinterpret_cast<INT_PTR>(result));
}

std::string Win32Platform::SpecialFolder(int32_t csidl) {
    LPITEMIDLIST item = nullptr;
    if (SHGetSpecialFolderLocation(kSpecialFolderOwner, csidl, &item) != S_OK || item == nullptr)
        return {};
    std::string buffer(kSpecialFolderBuffer, ' ');
    // The shell writes an empty text for a folder without a file-system path, so the answer is whatever
    // stands before the terminator; a buffer without one holds nothing that can be trusted as a path.
    SHGetPathFromIDListA(item, buffer.data());
    CoTaskMemFree(item);
    const std::string::size_type end = buffer.find('\0');
    if (end == std::string::npos)
        return {};
    buffer.resize(end);
    return buffer;
}

std::string Win32Platform::WindowsDirectory() {
    char buffer[kWindowsDirectoryBuffer];
    const UINT length = GetWindowsDirectoryA(buffer, kWindowsDirectoryBuffer - 1);
    return length < kWindowsDirectoryBuffer ? std::string(buffer, length) : std::string();
}

bool Win32Platform::CreateNamedMutex(const std::string& name) {
    SECURITY_ATTRIBUTES security{};
    security.nLength = kSecurityRecordLength;
    security.lpSecurityDescriptor = nullptr;
    security.bInheritHandle = FALSE;
    return CreateMutexA(&security, FALSE, name.c_str()) != nullptr;
}

std::unique_ptr<Platform> CreateNativePlatform() {
    return std::make_unique<Win32Platform>();
}
