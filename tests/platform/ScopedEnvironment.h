// Environment variables changed for one test and put back as they were when it ends, so that a test sees
// only the variables it chose and leaves the next test the environment it found.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

class ScopedEnvironment {
public:
    ScopedEnvironment() = default;
    ~ScopedEnvironment();
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

    // Nothing for a value unsets the variable.
    void Set(const std::string& name, const std::optional<std::string>& value);

private:
    std::vector<std::pair<std::string, std::optional<std::string>>> m_saved;
};
