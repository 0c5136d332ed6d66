// What a player does with whole profiles beyond making new ones: rename, duplicate and delete them, and move
// one between two copies of the program as text, through the clipboard or a file. Each asks and tells
// through the user interface and changes the settings file only where it must.
#pragma once

#include <cstdint>

class Profile;

namespace mManageProfiles {

// Asks for a new name (and the description) in the profile window until no other profile has the name, and
// gives it to `profile` in the collection and the settings file. False when nothing was renamed: cancelled,
// the standard profile, or a file that could not be changed (each said).
bool RenameProfile(Profile& profile);

// Whether `profile` may be renamed or deleted: every one but the standard profile.
bool CanRenameOrDelete(const Profile& profile);

// A new profile with every value of `profile`, under a name the user confirms (proposed: its caption and
// " (2)"), made active and saved as a new profile is; nullptr when cancelled.
Profile* DuplicateProfile(const Profile& profile);

// Deletes `profile` and its section of the settings file after a question that names it (and its unsaved
// changes, when it has some). Never the standard profile. True when it was deleted.
bool DeleteProfile(Profile& profile);

// Puts the profile on the clipboard as the settings file holds it.
void CopyProfile(const Profile& profile);
// A new profile, made active, from a profile on the clipboard; nullptr when there is none (said why).
Profile* PasteProfile();

// The same through a file chosen in the file choosers; `owner` is the calling window.
void ExportProfile(const Profile& profile, int64_t owner);
Profile* ImportProfile(int64_t owner);

}  // namespace mManageProfiles
