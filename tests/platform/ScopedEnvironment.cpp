#include "platform/ScopedEnvironment.h"

#include <cstdlib>

namespace {

// An empty value removes the variable on Windows, where no variable can hold an empty text.
void Assign(const std::string& name, const std::optional<std::string>& value) {
#ifdef _WIN32
    _putenv_s(name.c_str(), value ? value->c_str() : "");
#else
    value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
#endif
}

}  // namespace

ScopedEnvironment::~ScopedEnvironment() {
    // Backwards, so a variable changed twice ends with the value it had before the first change.
    for (auto entry = m_saved.rbegin(); entry != m_saved.rend(); ++entry)
        Assign(entry->first, entry->second);
}

void ScopedEnvironment::Set(const std::string& name, const std::optional<std::string>& value) {
    const char* old = std::getenv(name.c_str());
    m_saved.emplace_back(name, old != nullptr ? std::optional<std::string>(old) : std::nullopt);
    Assign(name, value);
}
