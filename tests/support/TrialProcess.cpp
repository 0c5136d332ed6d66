#include "support/TrialProcess.h"

#include <thread>

#ifdef _WIN32
#include <windows.h>
#else
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#endif

#ifdef _WIN32

TrialProcess::TrialProcess(const std::string& program, const std::vector<std::string>& arguments) {
    std::string commandLine = "\"" + program + "\"";
    for (const std::string& argument : arguments)
        commandLine += " \"" + argument + "\"";
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                       &process)) {
        CloseHandle(process.hThread);
        m_handle = reinterpret_cast<intptr_t>(process.hProcess);
    }
}

std::optional<int> TrialProcess::Wait(std::chrono::milliseconds timeout) {
    const HANDLE process = reinterpret_cast<HANDLE>(m_handle);
    DWORD code = 0;
    if (m_handle == 0 || WaitForSingleObject(process, static_cast<DWORD>(timeout.count())) != WAIT_OBJECT_0 ||
        !GetExitCodeProcess(process, &code))
        return std::nullopt;
    CloseHandle(process);
    m_handle = 0;
    return static_cast<int>(code);
}

void TrialProcess::Kill() {
    if (m_handle != 0)
        TerminateProcess(reinterpret_cast<HANDLE>(m_handle), 137);
    Wait(std::chrono::seconds(30));
}

#else

extern char** environ;

TrialProcess::TrialProcess(const std::string& program, const std::vector<std::string>& arguments) {
    std::vector<std::string> texts{program};
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (std::string& text : texts)
        argv.push_back(text.data());
    argv.push_back(nullptr);
    pid_t pid = 0;
    if (posix_spawn(&pid, program.c_str(), nullptr, nullptr, argv.data(), environ) == 0)
        m_handle = pid;
}

std::optional<int> TrialProcess::Wait(std::chrono::milliseconds timeout) {
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    int status = 0;
    while (m_handle != 0) {
        const pid_t ended = waitpid(static_cast<pid_t>(m_handle), &status, WNOHANG);
        if (ended != 0) {
            m_handle = 0;
            return ended < 0 ? -1 : WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
        }
        if (std::chrono::steady_clock::now() >= deadline)
            break;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return std::nullopt;
}

void TrialProcess::Kill() {
    if (m_handle != 0)
        kill(static_cast<pid_t>(m_handle), SIGKILL);
    Wait(std::chrono::seconds(30));
}

#endif

TrialProcess::~TrialProcess() {
    Kill();
}
