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

    void Set(const std::string& name, const std::string& value);
    void Unset(const std::string& name);

private:
    void Remember(const std::string& name);

    std::vector<std::pair<std::string, std::optional<std::string>>> m_saved;
};
