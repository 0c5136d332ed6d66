// A program that a test starts as a process of its own and ends or waits for; one still running when the
// object goes is killed, so no test leaves a process behind.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

class TrialProcess {
public:
    TrialProcess(const std::string& program, const std::vector<std::string>& arguments);
    ~TrialProcess();
    TrialProcess(const TrialProcess&) = delete;
    TrialProcess& operator=(const TrialProcess&) = delete;

    bool Started() const { return m_handle != 0; }

    // The exit status once the process ended within `timeout`; nothing when it did not (or never started).
    std::optional<int> Wait(std::chrono::milliseconds timeout);

    // Ends the process at once (SIGKILL, TerminateProcess), wherever it is, and waits for it.
    void Kill();

private:
    intptr_t m_handle = 0;  // the process id on POSIX, the process HANDLE on Windows; 0 once reaped
};
