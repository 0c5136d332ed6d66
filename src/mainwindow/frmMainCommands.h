// What the main window's commands do beyond gathering and showing the pages' values: the same steps in
// both faces, so a face only wires its buttons and menus to them. Failures carry the window's trail names.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "mainwindow/MainWindowValues.h"
#include "platform/FileSystem.h"

class Profile;

namespace frmMainCommands {

// A profile without a game asks for one when it is shown; a chooser that is cancelled or hands back no
// file leaves the profile as it was and says that no game is set.
void AskForMissingGame(Profile& profile);

// What RefreshProfileData does once the input is corrected: checks the values, writes them into `profile`
// and compares the window's command line with the profile's.
void WriteBack(const MainWindowValues& values, Profile& profile);

// The game chosen in place of `current`, or nothing when the chooser was cancelled or gave no file.
std::optional<std::string> ChooseGamePath(const std::string& current);

// Opens the game's log file in the editor, asking for an editor first when none is set; says so when the
// game has written no log.
void OpenLogFile(int64_t owner);

// Opens the game's folder, or says that it is not there.
void OpenGameFolder(int64_t owner);

// The commands on whole profiles but rename (see mManageProfiles). They act on the active profile with the
// window's input written into it by `refresh`; `owner` is the window. Each returns the profile the window
// is to show afresh (a new one after a duplicate, paste or import, the one in the place of a deleted one),
// or nullptr when the window stays as it is.
enum class ProfileCommand { Duplicate, Delete, Copy, Paste, Export, Import };
Profile* RunProfileCommand(ProfileCommand command, const std::function<void()>& refresh, int64_t owner);

// The close question. `refresh` writes the window into the active profile, `save` saves like the Save
// command. True when the window may close: after saving, after No, never after Cancel or a save that did
// not reach the file. A failure is reported, then the user decides whether to quit anyway.
bool QueryUnload(const std::function<void()>& refresh, const std::function<platform::WriteFault()>& save);

// The window's end: saves the program's settings, hands `tellUnsaved` why changed options could not be
// saved, saves which profile is active and closes the program-wide objects.
void Unload(const std::function<void(platform::WriteFault)>& tellUnsaved);

}  // namespace frmMainCommands
