#include "platform/SettingsFolder.h"

#include "platform/NativePath.h"

namespace platform {

std::string ChooseSettingsFolder(const std::string& program, const std::string& user, bool installed,
                                 const std::function<bool()>& writable) {
    if (user.empty() || (!installed && writable()))
        return program;
    return TextOf(PathOf(user) / kUserSettingsFolder);
}

}  // namespace platform
