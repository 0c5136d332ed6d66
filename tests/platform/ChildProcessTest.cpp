#include "platform/ChildProcessTest.h"

#include <sys/prctl.h>
#include <sys/wait.h>

#include <chrono>
#include <system_error>
#include <thread>

namespace fs = std::filesystem;

void ChildProcessTest::SetUp() {
    prctl(PR_GET_CHILD_SUBREAPER, &m_wasSubreaper);
    prctl(PR_SET_CHILD_SUBREAPER, 1);
    m_savedCurrent = fs::current_path();
    fs::current_path(m_dir.Path());
    // Wine only where a test puts it on PATH, also on a machine that has Debian's own.
    m_platform.SetWineCandidates({"wine", "wine64"});
    m_platform.SetTrustMarking(false);
}

void ChildProcessTest::TearDown() {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    for (pid_t pid = 0; pid >= 0 && std::chrono::steady_clock::now() < deadline;) {
        pid = waitpid(-1, nullptr, WNOHANG);
        if (pid == 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    prctl(PR_SET_CHILD_SUBREAPER, m_wasSubreaper);
    std::error_code ignored;
    fs::current_path(m_savedCurrent, ignored);
}

int32_t ChildProcessTest::Open(const std::string& file, const std::string& parameters,
                               const std::string& directory, const std::string& verb) {
    return m_platform.ShellExec(0, verb, file, parameters, directory, kSwShowNormal);
}

std::string ChildProcessTest::MakeFolder(const std::string& name) {
    fs::create_directories(m_dir.File(name));
    return m_dir.File(name);
}

std::string ChildProcessTest::WriteExecutable(const std::string& name, const std::string& bytes) {
    fs::create_directories(fs::path(m_dir.File(name)).parent_path());
    const std::string path = m_dir.Write(name, bytes);
    fs::permissions(path, fs::perms::owner_all, fs::perm_options::add);
    return path;
}
