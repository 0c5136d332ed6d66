// A program that a test starts as a process of its own; one still running when the object goes is killed.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class TrialProcess {
public:
    TrialProcess(const std::string& program, const std::vector<std::string>& arguments);
    ~TrialProcess() { Kill(); }
    TrialProcess(const TrialProcess&) = delete;
    TrialProcess& operator=(const TrialProcess&) = delete;

    // Waits for the process to end; its exit status, or -1 when it did not start or was killed.
    int Wait();

    // Ends the process at once (SIGKILL, TerminateProcess), wherever it is, and waits for it.
    void Kill();

private:
    intptr_t m_handle = 0;  // the process id on POSIX, the process HANDLE on Windows; 0 once reaped
};
