// Start-up and shutdown of the program, and the small shared choosers and texts around the game's files.
#pragma once

#include <string>

namespace mMain {

// Releases the translation engine, then the application object with everything it owns. Saves nothing.
void ClosePublicObjects();

// Lets the user choose the game's program file. Proposes `current` when it is an existing file, else
// "tarvolin.exe"; a cancelled chooser returns the proposal, so callers check the result before using it.
std::string AskForTarvoPath(const std::string& current);

// The same for the text editor; the proposal for a missing `current` is the system's text editor in its
// Windows directory ("write.exe" on Windows; an installed editor on Linux, see Platform::TextEditorName).
std::string AskForEditorPath(const std::string& current);

// "product name product version" of the game's program file, or "Tarvolin" when it has none.
std::string GetTarvolinFile_VersionInfo(const std::string& path);

}  // namespace mMain
