// Starting a program the way a desktop shell does: detached from the launcher, in a session of its own, with
// /dev/null as its input and the launcher's ignored signals and signal mask reset. No shell is involved, so
// arguments arrive exactly as given.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace platform {

// The step at which a start failed, and the errno it failed with.
struct LaunchFailure {
    enum class Step : int32_t { kFork = 1, kDirectory = 2, kExec = 3 };
    Step step;
    int32_t error;
};

// Starts `program` (a path, not searched on PATH) with `arguments` as its argv (the first is the name the
// program sees as its own) in `directory` ("" keeps the current one), with the launcher's environment and
// the "NAME=value" entries of `environment` set over it. Returns once the program runs, or how it failed;
// the program itself is never waited for.
std::optional<LaunchFailure> LaunchDetached(const std::string& program, std::vector<std::string> arguments,
                                            const std::string& directory,
                                            const std::vector<std::string>& environment = {});

// The absolute path of the executable `name` in the first folder of $PATH that holds one (an empty entry is
// the current folder, an unset PATH means /bin:/usr/bin); "" when there is none.
std::string FindOnPath(const std::string& name);

}  // namespace platform
