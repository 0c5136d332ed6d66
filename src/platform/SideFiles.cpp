#include "platform/SideFiles.h"

namespace platform {

std::string TemporaryPrefix(std::string_view fileName) {
    return "." + std::string(fileName) + ".";
}

bool IsTemporaryName(std::string_view candidate, std::string_view fileName) {
    const std::string prefix = TemporaryPrefix(fileName);
    if (candidate.size() != prefix.size() + kTemporarySuffixLength || !candidate.starts_with(prefix))
        return false;
    for (char c : candidate.substr(prefix.size())) {
        const bool alphanumeric = (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
        if (!alphanumeric)
            return false;
    }
    return true;
}

std::string LockFileName(std::string_view fileName) {
    return TemporaryPrefix(fileName) + "lock";
}

}  // namespace platform
