#include "platform/ScopedEnvironment.h"

#include <cstdlib>

ScopedEnvironment::~ScopedEnvironment() {
    // Backwards, so a variable changed twice ends with the value it had before the first change.
    for (auto entry = m_saved.rbegin(); entry != m_saved.rend(); ++entry) {
        if (entry->second)
            setenv(entry->first.c_str(), entry->second->c_str(), 1);
        else
            unsetenv(entry->first.c_str());
    }
}

void ScopedEnvironment::Set(const std::string& name, const std::string& value) {
    Remember(name);
    setenv(name.c_str(), value.c_str(), 1);
}

void ScopedEnvironment::Unset(const std::string& name) {
    Remember(name);
    unsetenv(name.c_str());
}

void ScopedEnvironment::Remember(const std::string& name) {
    const char* value = std::getenv(name.c_str());
    m_saved.emplace_back(name, value != nullptr ? std::optional<std::string>(value) : std::nullopt);
}
