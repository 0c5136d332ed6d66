#include "platform/posix/PosixPlatform.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "base/mString.h"
#include "platform/SettingsFolder.h"
#include "platform/WindowsCommandLine.h"
#include "platform/posix/ProcessLauncher.h"
#include "platform/posix/RunningMarker.h"
#include "platform/posix/ShellTarget.h"
#include "platform/posix/XdgFolders.h"

namespace fs = std::filesystem;

using platform::LaunchFailure;
using platform::ProgramKind;

namespace {

bool IsOpenVerb(std::string_view verb) {
    return verb.empty() || mString::EqualsNoCase(verb, "open");
}

// The program's own failure, by the codes the Windows shell gives for the same cause.
int32_t ProgramResult(const LaunchFailure& failure) {
    if (failure.step == LaunchFailure::Step::kDirectory)
        return kSeErrPathNotFound;
    if (failure.step != LaunchFailure::Step::kExec)
        return kSeErrNoAssociation;
    switch (failure.error) {
        case ENOENT:  // a script whose interpreter is missing
            return kSeErrFileNotFound;
        case EACCES:
        case EPERM:
            return kSeErrAccessDenied;
        case ENOEXEC:
            return kSeErrBadFormat;
        default:
            return kSeErrNoAssociation;
    }
}

// A helper (the desktop's handler, Wine) that cannot run leaves the file without anything to open it.
int32_t HelperResult(const LaunchFailure& failure) {
    return failure.step == LaunchFailure::Step::kDirectory ? kSeErrPathNotFound : kSeErrNoAssociation;
}

std::vector<std::string> ArgumentsFor(std::vector<std::string> leading, const std::string& parameters) {
    for (std::string& argument : SplitWindowsCommandLine(parameters))
        leading.push_back(std::move(argument));
    return leading;
}

int32_t StartProgram(const std::string& program, const std::string& parameters,
                     const std::string& directory) {
    const std::optional<LaunchFailure> failure =
        platform::LaunchDetached(program, ArgumentsFor({program}, parameters), directory);
    return failure ? ProgramResult(*failure) : kShellExecOk;
}

// The file goes to the handler as its only argument; the parameters have no place on its command line.
int32_t OpenWithHandler(const std::string& target, const std::string& directory) {
    const std::string handler = platform::FindOnPath("xdg-open");
    if (handler.empty())
        return kSeErrNoAssociation;
    const std::optional<LaunchFailure> failure =
        platform::LaunchDetached(handler, {handler, target}, directory);
    return failure ? HelperResult(*failure) : kShellExecOk;
}

int32_t StartThroughWine(const std::string& program, const std::string& parameters,
                         const std::string& directory, const std::vector<std::string>& wines) {
    const std::string wine = platform::FindWine(wines);
    if (wine.empty())
        return kSeErrNoAssociation;
    const std::optional<LaunchFailure> failure = platform::LaunchDetached(
        wine, ArgumentsFor({wine, program}, parameters), directory, platform::WineEnvironmentFor(program));
    return failure ? HelperResult(*failure) : kShellExecOk;
}

// A ".exe" is a program by its name alone, as on Windows; its first bytes tell how it can be started here.
int32_t StartNamedProgram(const std::string& program, const std::string& parameters,
                          const std::string& directory, const std::vector<std::string>& wines) {
    switch (platform::ProgramKindOf(program)) {
        case ProgramKind::kWindows:
            return StartThroughWine(program, parameters, directory, wines);
        case ProgramKind::kNative:
            return platform::HasExecuteBit(program) ? StartProgram(program, parameters, directory)
                                                    : kSeErrAccessDenied;
        case ProgramKind::kUnreadable:
            return kSeErrAccessDenied;
        case ProgramKind::kUnknown:
            break;
    }
    return kSeErrBadFormat;
}

}  // namespace

std::string PosixPlatform::ProgramDirectory() {
    std::error_code error;
    const fs::path executable = fs::read_symlink("/proc/self/exe", error);
    if (!error && executable.has_parent_path())
        return executable.parent_path().string();
    const fs::path current = fs::current_path(error);
    return error ? std::string(".") : current.string();
}

// An installed program (its texts in the layout's data folder) never writes beside itself, whoever runs
// it; another one does while its folder may be written. Permission bits count for the superuser too.
std::string PosixPlatform::SettingsDirectory() {
    const std::string program = ProgramDirectory();
    return platform::ChooseSettingsFolder(
        program, platform::XdgConfigHome(), DataDirectory() != program, [&] {
            struct stat info {};
            return stat(program.c_str(), &info) == 0 && (info.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0 &&
                   access(program.c_str(), W_OK) == 0;
        });
}

std::string PosixPlatform::DataDirectory() {
    const fs::path program = ProgramDirectory();
    if (program.filename() == "bin") {
        const fs::path data = program.parent_path() / "share" / "pavonel";
        std::error_code error;
        if (fs::is_directory(data, error))
            return data.string();
    }
    return program.string();
}

int32_t PosixPlatform::ShellExec(int64_t /*owner*/, const std::string& verb, const std::string& file,
                                 const std::string& parameters, const std::string& directory,
                                 int32_t /*showCommand*/) {
    if (!IsOpenVerb(verb))
        return kSeErrNoAssociation;
    if (!directory.empty() && !platform::IsFolder(directory))
        return kSeErrPathNotFound;
    if (platform::IsAddress(file))
        return OpenWithHandler(file, directory);
    const std::string target = platform::LocateFile(file, directory);
    if (target.empty())
        return platform::MissingFileResult(file, directory);
    if (platform::HasProgramName(target))
        return StartNamedProgram(target, parameters, directory, m_wineCandidates);
    if (platform::HasExecuteBit(target))
        return StartProgram(target, parameters, directory);
    return OpenWithHandler(target, directory);
}

std::string PosixPlatform::SpecialFolder(int32_t csidl) {
    switch (csidl) {
        case kCsidlDesktop:
            return platform::XdgDesktopDirectory();
        case kCsidlStartMenu: {
            const std::string data = platform::XdgDataHome();
            return data.empty() ? std::string() : (fs::path(data) / "applications").string();
        }
        case kCsidlAppData:
            return platform::XdgDataHome();
        case kCsidlDrives:
            return "/";
        default:
            return {};
    }
}

std::string PosixPlatform::WindowsDirectory() {
    return "/usr/bin";
}

std::string PosixPlatform::TextEditorName() {
    return platform::InstalledTextEditor(WindowsDirectory());
}

namespace platform {

std::string InstalledTextEditor(const std::string& folder) {
    static constexpr const char* kEditors[] = {
        "gnome-text-editor", "gedit", "kate", "kwrite", "mousepad", "xed", "pluma", "geany", "featherpad"};
    for (const char* editor : kEditors) {
        if (access((folder + "/" + editor).c_str(), X_OK) == 0)
            return editor;
    }
    return "xdg-open";
}

}  // namespace platform

bool PosixPlatform::CreateNamedMutex(const std::string& name) {
    return platform::HoldRunningMarker(name);
}

std::unique_ptr<Platform> CreateNativePlatform() {
    return std::make_unique<PosixPlatform>();
}
