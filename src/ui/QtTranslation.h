// Qt's own texts (the file chooser's buttons, the context menus of text fields) in the program's language,
// from the translations that Debian's qt6-translations-l10n installs. A language Qt has no texts for, or a
// machine without them, shows Qt's English.
#pragma once

#include <string>

namespace QtTranslation {

// Replaces Qt's texts with those of `language` (an abbreviation such as "DE"); true when they were found.
bool Follow(const std::string& language);

}  // namespace QtTranslation
