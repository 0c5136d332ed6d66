#include "support/TrialProcess.h"

#ifdef _WIN32
#include <windows.h>

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

int TrialProcess::Wait() {
    const HANDLE process = reinterpret_cast<HANDLE>(m_handle);
    DWORD code = 0;
    const bool ended = m_handle != 0 && WaitForSingleObject(process, INFINITE) == WAIT_OBJECT_0 &&
                       GetExitCodeProcess(process, &code);
    if (m_handle != 0)
        CloseHandle(process);
    m_handle = 0;
    return ended ? static_cast<int>(code) : -1;
}

void TrialProcess::Kill() {
    if (m_handle != 0)
        TerminateProcess(reinterpret_cast<HANDLE>(m_handle), 0xFFFFFFFF);
    Wait();
}

#else
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>

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

int TrialProcess::Wait() {
    int status = 0;
    const bool ended = m_handle != 0 && waitpid(static_cast<pid_t>(m_handle), &status, 0) > 0;
    m_handle = 0;
    return ended && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void TrialProcess::Kill() {
    if (m_handle != 0)
        kill(static_cast<pid_t>(m_handle), SIGKILL);
    Wait();
}

#endif
