// Environment variables changed for one test and put back as they were when it ends, so that a test sees
// only the variables it chose and leaves the next test the environment it found.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class ScopedEnvironment {
public:
    ScopedEnvironment() = default;
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;
    ~ScopedEnvironment() {
        // Backwards, so a variable changed twice ends with the value it had before the first change.
        for (auto entry = m_saved.rbegin(); entry != m_saved.rend(); ++entry)
            Assign(entry->first, entry->second);
    }

    // Nothing for a value unsets the variable.
    void Set(const std::string& name, const std::optional<std::string>& value) {
        const char* old = std::getenv(name.c_str());
        m_saved.emplace_back(name, old != nullptr ? std::optional<std::string>(old) : std::nullopt);
        Assign(name, value);
    }

private:
    // An empty value removes the variable on Windows, where no variable can hold an empty text.
    static void Assign(const std::string& name, const std::optional<std::string>& value) {
#ifdef _WIN32
        _putenv_s(name.c_str(), value ? value->c_str() : "");
#else
        value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
#endif
    }

    std::vector<std::pair<std::string, std::optional<std::string>>> m_saved;
};
