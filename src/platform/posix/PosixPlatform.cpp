#include "platform/posix/PosixPlatform.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/WindowsCommandLine.h"

namespace fs = std::filesystem;

namespace {

// A started program has normally reported back within milliseconds; the limit only guards against a
// descendant of another thread's fork holding the report pipe open.
constexpr std::chrono::milliseconds kReportTimeout{5000};

enum class StartStep : int32_t { kFork = 1, kDirectory = 2, kExec = 3 };

// What a child side sends through the report pipe when it cannot go on; nothing arrives on success.
struct StartFailure {
    StartStep step;
    int32_t error;
};

// Everything the child side needs, made ready before fork: after it, only async-signal-safe calls are
// allowed, so no allocation may happen there.
struct LaunchPlan {
    std::string program;
    std::vector<std::string> arguments;
    std::string directory;
    bool isHandler = false;
};

struct ChildView {
    const char* program;
    char* const* argv;
    const char* directory;
    int reportFd;
};

bool EqualsNoCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

bool IsSchemeChar(unsigned char c) {
    return std::isalnum(c) != 0 || c == '+' || c == '-' || c == '.';
}

// A scheme of at least two characters keeps a drive letter ("C://") from passing for an address.
bool IsAddress(std::string_view file) {
    if (EqualsNoCase(file.substr(0, 7), "mailto:"))
        return true;
    const size_t end = file.find("://");
    if (end == std::string_view::npos || end < 2)
        return false;
    if (std::isalpha(static_cast<unsigned char>(file[0])) == 0)
        return false;
    return std::all_of(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(end),
                       [](char c) { return IsSchemeChar(static_cast<unsigned char>(c)); });
}

bool HasNul(const std::string& text) {
    return text.find('\0') != std::string::npos;
}

bool IsDirectory(const fs::path& path) {
    std::error_code error;
    return fs::is_directory(path, error);
}

bool Exists(const fs::path& path) {
    std::error_code error;
    return fs::exists(path, error);
}

fs::path Absolute(const fs::path& path) {
    std::error_code error;
    fs::path result = fs::absolute(path, error);
    return error ? fs::path() : result;
}

// Like the Windows shell, a relative name is looked for in the working directory first. The result is
// absolute, because the started process no longer runs in the current directory.
fs::path Locate(const std::string& file, const std::string& directory) {
    if (file.empty() || HasNul(file))
        return {};
    const fs::path path(file);
    if (path.is_relative() && !directory.empty() && Exists(fs::path(directory) / path)) {
        return Absolute(fs::path(directory) / path);
    }
    return Exists(path) ? Absolute(path) : fs::path();
}

int32_t MissingFileResult(const std::string& file, const std::string& directory) {
    if (HasNul(file))
        return kSeErrFileNotFound;
    const fs::path folder = fs::path(file).parent_path();
    if (folder.empty() || IsDirectory(folder))
        return kSeErrFileNotFound;
    if (folder.is_relative() && !directory.empty() && IsDirectory(fs::path(directory) / folder)) {
        return kSeErrFileNotFound;
    }
    return kSeErrPathNotFound;
}

bool IsExecutableFile(const fs::path& path) {
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    constexpr fs::perms kAnyExec = fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
    return !error && fs::is_regular_file(status) && (status.permissions() & kAnyExec) != fs::perms::none;
}

// Searched here rather than with execvp in the child, which is not async-signal-safe.
std::string FindOnPath(const std::string& name) {
    const char* variable = std::getenv("PATH");
    std::string_view list = variable != nullptr ? variable : "/bin:/usr/bin";
    for (;;) {
        const size_t colon = list.find(':');
        const std::string_view folder = list.substr(0, colon);
        const fs::path candidate = Absolute(fs::path(folder.empty() ? "." : std::string(folder)) / name);
        if (!candidate.empty() && IsExecutableFile(candidate) && access(candidate.c_str(), X_OK) == 0) {
            return candidate.string();
        }
        if (colon == std::string_view::npos)
            return {};
        list.remove_prefix(colon + 1);
    }
}

[[noreturn]] void ReportAndExit(int fd, StartStep step) {
    const StartFailure failure{step, errno};
    while (write(fd, &failure, sizeof failure) < 0 && errno == EINTR) {
    }
    _exit(127);
}

// Ignored signals and a blocked mask would otherwise be inherited across exec by the started program.
void ResetSignals() {
    struct sigaction action {};
    action.sa_handler = SIG_DFL;
    for (int signal = 1; signal < NSIG; ++signal)
        sigaction(signal, &action, nullptr);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
}

[[noreturn]] void RunGrandchild(const ChildView& child) {
    ResetSignals();
    if (child.directory != nullptr && chdir(child.directory) != 0)
        ReportAndExit(child.reportFd, StartStep::kDirectory);
    // Without /dev/null the program keeps the launcher's input, which is still better than not starting it.
    const int input = open("/dev/null", O_RDONLY);
    if (input > STDIN_FILENO) {
        dup2(input, STDIN_FILENO);
        close(input);
    }
    execv(child.program, child.argv);
    ReportAndExit(child.reportFd, StartStep::kExec);
}

// The middle child leaves at once, so the program becomes an orphan that init reaps, in a session of its
// own that a terminal hang-up of the launcher does not reach.
[[noreturn]] void RunMiddleChild(const ChildView& child) {
    setsid();
    const pid_t pid = fork();
    if (pid == 0)
        RunGrandchild(child);
    if (pid < 0)
        ReportAndExit(child.reportFd, StartStep::kFork);
    _exit(0);
}

// True when the middle child ended by itself; it does nothing that can block, so the wait is short.
bool ExitedNormally(pid_t pid) {
    int status = 0;
    while (waitpid(pid, &status, 0) < 0) {
        if (errno != EINTR)
            return false;
    }
    return WIFEXITED(status);
}

int RemainingMilliseconds(std::chrono::steady_clock::time_point deadline) {
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
    return static_cast<int>(std::max<std::chrono::milliseconds::rep>(left.count(), 0));
}

// The pipe closes without data when exec succeeds (close-on-exec). A silent timeout also counts as started:
// the program is running, and nothing has gone wrong that could be reported.
std::optional<StartFailure> ReadFailure(int fd) {
    StartFailure failure{};
    const auto deadline = std::chrono::steady_clock::now() + kReportTimeout;
    for (;;) {
        pollfd request{fd, POLLIN, 0};
        const int ready = poll(&request, 1, RemainingMilliseconds(deadline));
        if (ready < 0 && errno == EINTR)
            continue;
        if (ready <= 0)
            return std::nullopt;
        const ssize_t got = read(fd, &failure, sizeof failure);
        if (got < 0 && errno == EINTR)
            continue;
        if (got == static_cast<ssize_t>(sizeof failure))
            return failure;
        return std::nullopt;
    }
}

std::optional<StartFailure> Launch(LaunchPlan& plan) {
    std::vector<char*> argv;
    for (std::string& argument : plan.arguments)
        argv.push_back(argument.data());
    argv.push_back(nullptr);
    int fds[2];
    if (pipe2(fds, O_CLOEXEC) != 0)
        return StartFailure{StartStep::kFork, errno};
    const ChildView child{plan.program.c_str(), argv.data(),
                          plan.directory.empty() ? nullptr : plan.directory.c_str(), fds[1]};
    const pid_t middle = fork();
    if (middle == 0)
        RunMiddleChild(child);
    const int forkError = errno;
    close(fds[1]);
    std::optional<StartFailure> failure = StartFailure{StartStep::kFork, forkError};
    if (middle > 0) {
        const bool clean = ExitedNormally(middle);
        failure = ReadFailure(fds[0]);
        // A middle child killed before it could fork has started nothing, and the pipe stays silent.
        if (!failure && !clean)
            failure = StartFailure{StartStep::kFork, 0};
    }
    close(fds[0]);
    return failure;
}

int32_t ResultOf(const StartFailure& failure, bool isHandler) {
    if (failure.step == StartStep::kDirectory)
        return kSeErrPathNotFound;
    if (failure.step != StartStep::kExec)
        return kSeErrNoAssociation;
    switch (failure.error) {
        case ENOENT:
            return isHandler ? kSeErrNoAssociation : kSeErrFileNotFound;
        case EACCES:
        case EPERM:
        case ENOEXEC:
            return kSeErrAccessDenied;
        default:
            return kSeErrNoAssociation;
    }
}

int32_t Start(LaunchPlan plan) {
    const std::optional<StartFailure> failure = Launch(plan);
    return failure ? ResultOf(*failure, plan.isHandler) : kShellExecOk;
}

int32_t StartExecutable(const fs::path& program, const std::string& parameters,
                        const std::string& directory) {
    LaunchPlan plan{program.string(), {program.string()}, directory, false};
    for (std::string& argument : SplitWindowsCommandLine(parameters))
        plan.arguments.push_back(std::move(argument));
    return Start(std::move(plan));
}

int32_t OpenWithHandler(const std::string& target, const std::string& directory) {
    const std::string handler = FindOnPath("xdg-open");
    if (handler.empty())
        return kSeErrNoAssociation;
    return Start(LaunchPlan{handler, {"xdg-open", target}, directory, true});
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

int32_t PosixPlatform::ShellExec(int64_t /*owner*/, const std::string& verb, const std::string& file,
                                 const std::string& parameters, const std::string& directory,
                                 int32_t /*showCommand*/) {
    if (!verb.empty() && !EqualsNoCase(verb, "open"))
        return kSeErrNoAssociation;
    if (!directory.empty() && (HasNul(directory) || !IsDirectory(directory)))
        return kSeErrPathNotFound;
    if (IsAddress(file) && !HasNul(file))
        return OpenWithHandler(file, directory);
    const fs::path target = Locate(file, directory);
    if (target.empty())
        return MissingFileResult(file, directory);
    if (IsExecutableFile(target))
        return StartExecutable(target, parameters, directory);
    return OpenWithHandler(target.string(), directory);
}

std::unique_ptr<Platform> CreateNativePlatform() {
    return std::make_unique<PosixPlatform>();
}
