// The platform on Windows: every operation is the Windows function of the same purpose, called with the
// values the launcher has always passed, so an installer or a script sees the same program.
#pragma once

#include "platform/Platform.h"

namespace platform {

// The uninstaller that the installer writes into the program's folder (cmake/WindowsPackaging.cmake).
inline constexpr char kUninstallerName[] = "Uninstall.exe";

}  // namespace platform

class Win32Platform : public Platform {
public:
    // The folder of the running executable (GetModuleFileNameA), without its trailing backslash unless it
    // is a drive's root.
    std::string ProgramDirectory() override;

    // The program's folder for a portable copy (a folder it may write), else the user's application data
    // folder's Pavonel, whether or not that exists yet. A program that the installer put in place is
    // installed: its uninstaller (kUninstallerName) lies beside it. Its texts stay in the program's folder.
    std::string SettingsDirectory() override;

    // ShellExecuteA with `owner` as the owner window; its result as a number.
    int32_t ShellExec(int64_t owner, const std::string& verb, const std::string& file,
                      const std::string& parameters, const std::string& directory,
                      int32_t showCommand) override;

    // SHGetSpecialFolderLocation with the owner value 100, then SHGetPathFromIDListA into a 512-character
    // buffer. "" when the shell knows no such folder or it has no file-system path (the drive list).
    std::string SpecialFolder(int32_t csidl) override;

    // GetWindowsDirectoryA into a 256-character buffer.
    std::string WindowsDirectory() override;

    // WordPad's old name in the Windows directory.
    std::string TextEditorName() override { return "write.exe"; }

    // CreateMutexA without initial ownership. The handle stays open until the process ends, and a mutex that
    // already exists (a second copy of the launcher) is as good as a new one.
    bool CreateNamedMutex(const std::string& name) override;

    std::string ShellLinkEnding() override { return ".lnk"; }

    // A shell link written through the shell's link object (IShellLinkA, saved by IPersistFile): the
    // working directory, arguments, icon and hotkey only when given, then resolved with the update flag.
    // Any failure of the shell's calls gives false, without a message.
    bool WriteShellLink(const std::string& linkFile, const ShellLink& link) override;

    // The link loaded read-only and every field read back; nothing when it cannot be loaded.
    std::optional<ShellLink> ReadShellLink(const std::string& linkFile) override;
};
