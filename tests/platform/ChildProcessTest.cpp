#include "platform/ChildProcessTest.h"

#include <sys/prctl.h>
#include <sys/wait.h>

#include <chrono>
#include <cstdlib>
#include <sstream>
#include <thread>

namespace fs = std::filesystem;

namespace {

std::optional<Report> ParseReport(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    if (lines.size() < 3)
        return std::nullopt;
    return Report{lines[0], lines[1], lines[2], {lines.begin() + 3, lines.end()}};
}

}  // namespace

std::string Canonical(const fs::path& path) {
    return fs::canonical(path).string();
}

void ChildProcessTest::SetUp() {
    prctl(PR_GET_CHILD_SUBREAPER, &m_wasSubreaper);
    prctl(PR_SET_CHILD_SUBREAPER, 1);
}

void ChildProcessTest::TearDown() {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    for (pid_t pid = 0; pid >= 0 && std::chrono::steady_clock::now() < deadline;) {
        pid = waitpid(-1, nullptr, WNOHANG);
        if (pid == 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    prctl(PR_SET_CHILD_SUBREAPER, m_wasSubreaper);
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

std::string ChildProcessTest::WriteRecorder(const std::string& name, const std::string& report) {
    return WriteExecutable(name, "#!/bin/sh\nPATH=/usr/bin:/bin\nout='" + m_dir.File(report) + "'\n" + R"({
    pwd -P
    readlink /proc/$$/fd/0
    read -r _ _ _ _ _ sid _ < /proc/$$/stat
    echo "$sid"
    for a in "$@"; do printf '%s\n' "$a"; done
} > "$out.part"
mv "$out.part" "$out"
)");
}

std::optional<Report> ChildProcessTest::WaitForReport(const std::string& report) const {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (std::chrono::steady_clock::now() < deadline) {
        if (fs::exists(m_dir.File(report)))
            return ParseReport(m_dir.Read(report));
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return std::nullopt;
}

std::string ChildProcessTest::PathWithFirst(const std::string& folder) {
    const char* old = std::getenv("PATH");
    return folder + ":" + (old != nullptr ? old : "/usr/bin:/bin");
}
