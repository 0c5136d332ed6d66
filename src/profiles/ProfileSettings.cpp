#include "profiles/ProfileSettings.h"

namespace ProfileSettings {
namespace {

template <class T>
void PutNewProfileValue(Values& values, const ProfileSetting<T>& setting) {
    values[setting.index].template emplace<T>(setting.newProfile);
}

}  // namespace

Values NewProfileValues() {
    Values values;
    for (const Any& setting : kAll)
        std::visit([&values](const auto* declared) { PutNewProfileValue(values, *declared); }, setting);
    return values;
}

}  // namespace ProfileSettings
