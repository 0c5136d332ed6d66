// The file-open and folder choosers as the rest of the program uses them. The windows themselves come
// from the installed UserInterface; this module turns their answer into the file name, title and failures
// that the callers expect.
#pragma once

#include <cstdint>
#include <string>

#include "app/UserInterface.h"

namespace mCommonDialog {

// Raised (in the object-error range, through mError::RaiseError) when the user cancels a chooser whose
// cancel counts as a failure: the number a cancelled common dialog has always reported.
inline constexpr int32_t kCancelError = 32755;
// Raised when the chooser itself fails; the description carries the chooser's own error number.
inline constexpr int32_t kDialogFailure = 32756;

// Shows the file-open chooser. `options.fileName` proposes a name and receives the chosen one; it stays
// as it was when nothing is chosen. `fileTitle` receives the chosen file's name without its folder. With
// several files chosen, the file name is the folder, a NUL, and the names separated by NULs, and the title
// is the first name. Returns the final file name.
std::string ShowOpen(OpenFileOptions& options, std::string& fileTitle, bool cancelIsFailure);

// Shows the folder chooser starting in `rootFolder` (the desktop when empty); the chosen folder, or ""
// when nothing was chosen.
std::string BrowseForFolder(int64_t owner, const std::string& title, const std::string& rootFolder);

}  // namespace mCommonDialog
