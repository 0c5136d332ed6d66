// The platform on Linux: the program directory comes from /proc, and the shell's "open" is carried out
// with the desktop's default handler (xdg-open) for documents, folders and addresses, by starting a native
// executable directly as a detached process, and by starting a Windows ".exe" through Wine.
#pragma once

#include <vector>

#include "platform/Platform.h"
#include "platform/posix/ShellTarget.h"

namespace platform {

// The first of the desktops' own text editors that `folder` holds as a program, else xdg-open.
std::string InstalledTextEditor(const std::string& folder);

}  // namespace platform

class PosixPlatform : public Platform {
public:
    std::string ProgramDirectory() override;

    // The program's folder while it may be written and is not installed (a build tree, a portable copy),
    // else $XDG_CONFIG_HOME/Pavonel (~/.config/Pavonel), whether or not that exists yet; the program's
    // folder, too, when there is no home folder to find a config folder in.
    std::string SettingsDirectory() override;
    // <prefix>/share/pavonel when the program runs from <prefix>/bin and that folder exists, else the
    // program's folder.
    std::string DataDirectory() override;

    // `owner` and `showCommand` have no counterpart here: a started program has no owner window, and how
    // its first window appears is the window manager's decision. Returns kShellExecOk once the program is
    // running, else the Windows shell error code that describes why it could not be started:
    // kSeErrFileNotFound and kSeErrPathNotFound for a missing file or folder, kSeErrAccessDenied for a
    // program without execute permission, kSeErrBadFormat for a ".exe" that is no program at all, and
    // kSeErrNoAssociation when nothing can open the file (no Wine for a Windows program, no handler).
    int32_t ShellExec(int64_t owner, const std::string& verb, const std::string& file,
                      const std::string& parameters, const std::string& directory,
                      int32_t showCommand) override;

    // The freedesktop folders that play the special folders' parts (see XdgFolders.h); the drive list is
    // the root of the one file-system tree. "" for any other folder number.
    std::string SpecialFolder(int32_t csidl) override;

    // The system's programs live in /usr/bin, so a program proposed from there exists.
    std::string WindowsDirectory() override;

    // The first of the desktops' own text editors installed in WindowsDirectory(), else xdg-open, which
    // opens the log file in whatever the desktop uses for text.
    std::string TextEditorName() override;

    // A lock file held for the process's life (see RunningMarker.h for where it is and how to test it).
    bool CreateNamedMutex(const std::string& name) override;

    // A freedesktop desktop entry takes a shell link's place (see DesktopEntry.h): named by the file's name
    // without its ending, with the link's comment, its working directory as Path, and an Exec line that
    // starts the target as ShellExec does: a Windows program through Wine, the arguments cut by the Windows
    // rules. The file is replaced whole, made executable, and marked trusted for the desktop through `gio`
    // when that is installed. The icon, show command and hotkey have no place in it and read back as none.
    std::string ShellLinkEnding() override { return ".desktop"; }
    // Whether written entries are marked trusted through gio (tests keep the user's desktop data untouched).
    void SetTrustMarking(bool mark) { m_markTrusted = mark; }
    // Where Wine is looked for (kWineCandidates unless a test says otherwise).
    void SetWineCandidates(std::vector<std::string> candidates) { m_wineCandidates = std::move(candidates); }
    bool WriteShellLink(const std::string& linkFile, const ShellLink& link) override;
    std::optional<ShellLink> ReadShellLink(const std::string& linkFile) override;

private:
    std::vector<std::string> m_wineCandidates = platform::kWineCandidates;
    bool m_markTrusted = true;
};
