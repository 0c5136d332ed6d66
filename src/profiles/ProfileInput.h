// What the profile dialog checks before it takes a name and a description: the first problem, the text
// that tells the user (a key of the dialog's section) and the field to correct.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace ProfileInput {

// The profile window's caption for `mode` (an EditProfileMode), a key of its section: "DIALOG_CAPTION" and
// the mode; a mode it does not know takes the caption of editing.
std::string CaptionKey(int32_t mode);
// The name can be edited in every mode but editing, where it is the profile's own.
bool NameEditable(int32_t mode);

enum class Field { kName, kDescription };

struct Problem {
    const char* key;
    Field field;
};

// A name is needed and, when it can be edited, one that can be stored (a locked name is the profile's own
// and was stored before); a description is needed.
std::optional<Problem> Check(bool nameEditable, const std::string& name, const std::string& description);

}  // namespace ProfileInput
