#include "platform/posix/RunningMarker.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

namespace platform {

namespace {

bool IsUsableName(const std::string& name) {
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos &&
           name.find('\0') == std::string::npos;
}

std::string RuntimeDirectory() {
    const char* value = std::getenv("XDG_RUNTIME_DIR");
    struct stat status {};
    if (value == nullptr || value[0] != '/' || stat(value, &status) != 0 || !S_ISDIR(status.st_mode))
        return {};
    return value;
}

}  // namespace

std::string RunningMarkerPath(const std::string& name) {
    if (!IsUsableName(name))
        return {};
    const std::string runtime = RuntimeDirectory();
    if (!runtime.empty())
        return runtime + (runtime.back() == '/' ? "" : "/") + name + ".lock";
    return "/tmp/" + name + "-" + std::to_string(getuid()) + ".lock";
}

bool HoldRunningMarker(const std::string& name) {
    const std::string path = RunningMarkerPath(name);
    if (path.empty())
        return false;
    // Readable by everyone, so a tester running as another user can open it too; O_NOFOLLOW keeps a link
    // planted in /tmp from redirecting the file.
    const int fd = open(path.c_str(), O_RDONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NOCTTY, 0644);
    if (fd < 0)
        return false;
    // Never waits: while an installer's test holds the lock for a moment, this copy simply goes unmarked.
    if (flock(fd, LOCK_SH | LOCK_NB) == 0)
        return true;
    close(fd);
    return false;
}

}  // namespace platform
