// What the profile dialog checks before it takes a name and a description: the first problem, the text
// that tells the user (a key of the dialog's section) and the field to correct.
#pragma once

#include <optional>
#include <string>

namespace ProfileInput {

enum class Field { kName, kDescription };

struct Problem {
    const char* key;
    Field field;
};

// A name that is shown locked (an existing profile's) was stored before: only a new one can be refused.
std::optional<Problem> Check(bool newProfile, const std::string& name, const std::string& description);

}  // namespace ProfileInput
