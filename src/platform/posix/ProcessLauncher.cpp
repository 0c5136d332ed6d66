#include "platform/posix/ProcessLauncher.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace fs = std::filesystem;

namespace platform {

namespace {

// A started program has normally reported back within milliseconds; the limit only guards against a
// descendant of another thread's fork holding the report pipe open.
constexpr std::chrono::milliseconds kReportTimeout{5000};

// Everything the child side needs, made ready before fork: after it, only async-signal-safe calls are
// allowed, so no allocation may happen there.
struct ChildView {
    const char* program;
    char* const* argv;
    char* const* envp;
    const char* directory;
    int reportFd;
};

// The launcher's environment with `changes` ("NAME=value") replacing or adding their variables.
std::vector<std::string> MergedEnvironment(const std::vector<std::string>& changes) {
    std::vector<std::string> merged;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string_view variable(*entry);
        const std::string_view name = variable.substr(0, variable.find('=') + 1);
        const bool replaced = std::any_of(changes.begin(), changes.end(), [name](const std::string& change) {
            return change.starts_with(name);
        });
        if (!replaced)
            merged.emplace_back(variable);
    }
    merged.insert(merged.end(), changes.begin(), changes.end());
    return merged;
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

[[noreturn]] void ReportAndExit(int fd, LaunchFailure::Step step) {
    const LaunchFailure failure{step, errno};
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
        ReportAndExit(child.reportFd, LaunchFailure::Step::kDirectory);
    // Without /dev/null the program keeps the launcher's input, which is still better than not starting it.
    const int input = open("/dev/null", O_RDONLY);
    if (input > STDIN_FILENO) {
        dup2(input, STDIN_FILENO);
        close(input);
    }
    execve(child.program, child.argv, child.envp);
    ReportAndExit(child.reportFd, LaunchFailure::Step::kExec);
}

// The middle child leaves at once, so the program becomes an orphan that init reaps, in a session of its
// own that a terminal hang-up of the launcher does not reach.
[[noreturn]] void RunMiddleChild(const ChildView& child) {
    setsid();
    const pid_t pid = fork();
    if (pid == 0)
        RunGrandchild(child);
    if (pid < 0)
        ReportAndExit(child.reportFd, LaunchFailure::Step::kFork);
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
std::optional<LaunchFailure> ReadFailure(int fd) {
    LaunchFailure failure{};
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

bool IsExecutableFile(const fs::path& path) {
    std::error_code error;
    return fs::is_regular_file(path, error) && access(path.c_str(), X_OK) == 0;
}

}  // namespace

std::optional<LaunchFailure> LaunchDetached(const std::string& program, std::vector<std::string> arguments,
                                            const std::string& directory,
                                            const std::vector<std::string>& environment) {
    const std::vector<char*> argv = Pointers(arguments);
    // Only a start that changes the environment needs a copy of it.
    std::vector<std::string> variables =
        environment.empty() ? std::vector<std::string>() : MergedEnvironment(environment);
    const std::vector<char*> envp = Pointers(variables);
    int fds[2];
    if (pipe2(fds, O_CLOEXEC) != 0)
        return LaunchFailure{LaunchFailure::Step::kFork, errno};
    const ChildView child{program.c_str(), argv.data(), environment.empty() ? environ : envp.data(),
                          directory.empty() ? nullptr : directory.c_str(), fds[1]};
    const pid_t middle = fork();
    if (middle == 0)
        RunMiddleChild(child);
    const int forkError = errno;
    close(fds[1]);
    std::optional<LaunchFailure> failure = LaunchFailure{LaunchFailure::Step::kFork, forkError};
    if (middle > 0) {
        const bool clean = ExitedNormally(middle);
        failure = ReadFailure(fds[0]);
        // A middle child killed before it could fork has started nothing, and the pipe stays silent.
        if (!failure && !clean)
            failure = LaunchFailure{LaunchFailure::Step::kFork, 0};
    }
    close(fds[0]);
    return failure;
}

// Searched here rather than with execvp in the child, which is not async-signal-safe.
std::string FindOnPath(const std::string& name) {
    const char* variable = std::getenv("PATH");
    std::string_view list = variable != nullptr ? variable : "/bin:/usr/bin";
    for (;;) {
        const size_t colon = list.find(':');
        const std::string_view folder = list.substr(0, colon);
        std::error_code error;
        const fs::path candidate =
            fs::absolute(fs::path(folder.empty() ? "." : std::string(folder)) / name, error);
        if (!error && IsExecutableFile(candidate))
            return candidate.string();
        if (colon == std::string_view::npos)
            return {};
        list.remove_prefix(colon + 1);
    }
}

}  // namespace platform
