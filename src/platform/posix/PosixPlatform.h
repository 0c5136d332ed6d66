// The platform on Linux: the program directory comes from /proc, and the shell's "open" is carried out
// with the desktop's default handler (xdg-open) for documents, folders and addresses, and by starting an
// executable directly as a detached process.
#pragma once

#include "platform/Platform.h"

class PosixPlatform : public Platform {
public:
    std::string ProgramDirectory() override;

    // `owner` and `showCommand` have no counterpart here: a started program has no owner window, and how
    // its first window appears is the window manager's decision. Returns kShellExecOk once the program is
    // running, else the Windows shell error code that describes why it could not be started.
    int32_t ShellExec(int64_t owner, const std::string& verb, const std::string& file,
                      const std::string& parameters, const std::string& directory,
                      int32_t showCommand) override;
};
