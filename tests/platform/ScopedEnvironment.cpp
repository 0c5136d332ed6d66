#include "platform/ScopedEnvironment.h"

#include <cstdlib>

ScopedEnvironment::~ScopedEnvironment() {
    // Backwards, so a variable changed twice ends with the value it had before the first change.
    for (auto entry = m_saved.rbegin(); entry != m_saved.rend(); ++entry)
        entry->second ? setenv(entry->first.c_str(), entry->second->c_str(), 1)
                      : unsetenv(entry->first.c_str());
}

void ScopedEnvironment::Set(const std::string& name, const std::optional<std::string>& value) {
    const char* old = std::getenv(name.c_str());
    m_saved.emplace_back(name, old != nullptr ? std::optional<std::string>(old) : std::nullopt);
    value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
}
