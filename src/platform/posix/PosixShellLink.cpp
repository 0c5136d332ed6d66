#include <sys/stat.h>

#include <algorithm>
#include <filesystem>

#include "base/mString.h"
#include "platform/FileSystem.h"
#include "platform/NativePath.h"
#include "platform/WindowsCommandLine.h"
#include "platform/posix/DesktopEntry.h"
#include "platform/posix/PosixPlatform.h"
#include "platform/posix/ProcessLauncher.h"
#include "platform/posix/ShellTarget.h"

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kEnding = ".desktop";

// The program and its arguments as ShellExec would start the target. Without Wine, a Windows program is
// still written for `wine`, which the desktop finds once Wine is installed; one in a Wine prefix of its own
// is started in that prefix through `env`.
std::vector<std::string> ExecOf(const ShellLink& link, const std::vector<std::string>& wines) {
    std::vector<std::string> exec;
    if (platform::ProgramKindOf(link.target) == platform::ProgramKind::kWindows) {
        exec = platform::WineEnvironmentFor(link.target);
        if (!exec.empty())
            exec.insert(exec.begin(), "env");
        const std::string wine = platform::FindWine(wines);
        exec.push_back(wine.empty() ? "wine" : wine);
    }
    exec.push_back(link.target);
    for (std::string& argument : SplitWindowsCommandLine(link.arguments))
        exec.push_back(std::move(argument));
    return exec;
}

// A program named like one of the places Wine is looked for.
bool IsWine(const std::string& program, const std::vector<std::string>& wines) {
    const fs::path name = fs::path(program).filename();
    return std::any_of(wines.begin(), wines.end(),
                       [&name](const std::string& wine) { return fs::path(wine).filename() == name; });
}

// Where the target stands in an entry's command: behind "env WINEPREFIX=…" and Wine when they are there.
std::size_t ProgramIndex(const std::vector<std::string>& exec, const std::vector<std::string>& wines) {
    std::size_t at = 0;
    if (exec.size() > 2 && exec[0] == "env" && exec[1].starts_with("WINEPREFIX="))
        at = 2;
    return exec.size() > at + 1 && IsWine(exec[at], wines) ? at + 1 : at;
}

// Marks the entry as one the user trusts, so that a desktop starts it from the desktop folder without
// asking; a desktop without GIO's metadata store simply does not know the mark.
void MarkTrusted(const std::string& file) {
    const std::string gio = platform::FindOnPath("gio");
    if (!gio.empty())
        platform::LaunchDetached(gio, {gio, "set", file, "metadata::trusted", "true"}, "");
}

}  // namespace

bool PosixPlatform::WriteShellLink(const std::string& linkFile, const ShellLink& link) {
    if (link.target.empty() || linkFile.empty())
        return false;
    std::string name = fs::path(platform::PathOf(linkFile)).filename().string();
    if (mString::EndsWithNoCase(name, kEnding))
        name.resize(name.size() - kEnding.size());
    const platform::DesktopEntry entry{name, link.description, ExecOf(link, m_wineCandidates),
                                       link.workingDirectory};
    if (!platform::ReplaceFile(linkFile, platform::DesktopEntryText(entry)))
        return false;
    chmod(linkFile.c_str(), 0755);
    if (m_markTrusted)
        MarkTrusted(linkFile);
    return true;
}

std::optional<ShellLink> PosixPlatform::ReadShellLink(const std::string& linkFile) {
    const std::optional<platform::FileContent> content = platform::ReadFile(linkFile);
    if (!content)
        return std::nullopt;
    const std::optional<platform::DesktopEntry> entry = platform::ParseDesktopEntry(content->bytes);
    if (!entry || entry->exec.empty())
        return std::nullopt;
    const std::size_t program = ProgramIndex(entry->exec, m_wineCandidates);
    ShellLink link;
    link.target = entry->exec[program];
    link.arguments = JoinWindowsCommandLine(
        {entry->exec.begin() + static_cast<std::ptrdiff_t>(program) + 1, entry->exec.end()});
    link.workingDirectory = entry->path;
    link.description = entry->comment;
    return link;
}
