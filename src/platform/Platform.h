// The only way core reaches the operating system for things a test must be able to replace: where the
// program lives, what the shell is asked to open, the special folders and the running marker. Each OS has its
// implementation in its own folder; tests install a recording fake.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "platform/ShellLink.h"

// The show command for ShellExec that opens a normal window.
inline constexpr int32_t kSwShowNormal = 1;

// Values above this returned by ShellExec mean success; smaller ones are the shell's error codes.
inline constexpr int32_t kShellExecSuccessAbove = 32;
inline constexpr int32_t kSeErrFileNotFound = 2;
inline constexpr int32_t kSeErrPathNotFound = 3;
inline constexpr int32_t kSeErrAccessDenied = 5;
inline constexpr int32_t kSeErrNoAssociation = 31;
inline constexpr int32_t kShellExecOk = 42;
// The shell's answer for a file that is not a program it can start (ERROR_BAD_FORMAT).
inline constexpr int32_t kSeErrBadFormat = 11;

// Special folders, by the numbers the Windows shell gives them.
inline constexpr int32_t kCsidlDesktop = 0;
inline constexpr int32_t kCsidlStartMenu = 11;
inline constexpr int32_t kCsidlDrives = 17;
inline constexpr int32_t kCsidlAppData = 26;

class Platform {
public:
    virtual ~Platform() = default;

    // The folder of the running executable, as the OS spells it, without a trailing separator
    // (unless it is the root).
    virtual std::string ProgramDirectory() = 0;

    // Where the settings file lives: the program's folder, unless the platform keeps the settings of a
    // program whose folder nobody may write elsewhere (Linux: $XDG_CONFIG_HOME/Pavonel). Without a trailing
    // separator.
    virtual std::string SettingsDirectory() { return ProgramDirectory(); }

    // The folder that holds the language files ("config"), the FAQ ("doc") and the tools: the program's
    // folder, or the data folder of an installed program's layout (Linux: <prefix>/share/pavonel beside
    // <prefix>/bin). Without a trailing separator.
    virtual std::string DataDirectory() { return ProgramDirectory(); }

    // Asks the shell to perform `verb` ("open") on `file`: an executable is started with `parameters` in
    // `directory`; a document, folder, web or mail address opens in its handler. `owner` is the calling
    // window's handle (0 for none). Returns a value above 32 on success.
    virtual int32_t ShellExec(int64_t owner, const std::string& verb, const std::string& file,
                              const std::string& parameters, const std::string& directory,
                              int32_t showCommand) = 0;

    // The file-system path of special folder `csidl` (kCsidl...), or "" when there is none.
    virtual std::string SpecialFolder(int32_t csidl) = 0;

    // The folder that holds the system's own programs (the Windows directory).
    virtual std::string WindowsDirectory() = 0;

    // The file name, inside WindowsDirectory(), of the text editor proposed for the game's log file.
    virtual std::string TextEditorName() = 0;

    // Creates the named marker that other programs (an installer) test to see that the launcher runs. It
    // lives until the process ends; a second copy of the program creates it again without harm. Returns
    // false when it could not be created.
    virtual bool CreateNamedMutex(const std::string& name) = 0;

    // The ending of the shortcut files this platform writes (".lnk" on Windows, ".desktop" on Linux).
    virtual std::string ShellLinkEnding() = 0;

    // Writes `link` as the shortcut file `linkFile`, replacing one that is there; false when it could not
    // be written. The folder must exist.
    virtual bool WriteShellLink(const std::string& linkFile, const ShellLink& link) = 0;

    // The fields of the shortcut file `linkFile`; nothing when it cannot be read as one.
    virtual std::optional<ShellLink> ReadShellLink(const std::string& linkFile) = 0;
};

// The installed platform (the native one when none is installed).
Platform& Os();

// Installs `platform` (not owned); nullptr returns to the native platform.
void InstallPlatform(Platform* platform);

// The implementation for the OS this program was built for.
std::unique_ptr<Platform> CreateNativePlatform();
