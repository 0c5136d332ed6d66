#include "profiles/ProfileInput.h"

#include "app/UserInterface.h"
#include "profiles/Profile.h"

namespace ProfileInput {

std::string CaptionKey(int32_t mode) {
    const bool known = mode >= kNewProfileMode && mode <= kImportProfileMode;
    return "DIALOG_CAPTION" + std::to_string(known ? mode : kEditProfileMode);
}

bool NameEditable(int32_t mode) {
    return mode != kEditProfileMode;
}

std::optional<Problem> Check(bool nameEditable, const std::string& name, const std::string& description) {
    if (name.empty())
        return Problem{"MSG_PROFILE_NAME_MISSED", Field::kName};
    if (nameEditable && !Profile::IsStorableCaption(name))
        return Problem{"MSG_PROFILE_NAME_INVALID", Field::kName};
    if (description.empty())
        return Problem{"MSG_PROFILE_DESCRIPTION_MISSED", Field::kDescription};
    return std::nullopt;
}

}  // namespace ProfileInput
