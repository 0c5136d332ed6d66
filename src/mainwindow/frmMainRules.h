// The main window's rules that need no widget: its own composition of the game's command line (the second,
// independent one that the self-check compares with the profile's), the checks and corrections of its input,
// the preview's resolutions, and the paths it derives from the game's path. Failures carry the window's own
// trail names ("frmMain.CheckData").
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "mainwindow/MainWindowValues.h"

namespace frmMainRules {

// The tabs' captions in tab order, and the menu bar's titles, whose letters the pages leave to the menus:
// keys of the main window's section.
inline constexpr const char* kTabKeys[] = {"TAB_GAMESETTINGS", "TAB_SCENARIO", "TAB_DISPLAY", "TAB_REFRESH",
                                           "TAB_EXTRA"};
inline constexpr const char* kMenuKeys[] = {"MNU_FILE", "MNU_PROFILES", "MNU_EDIT", "MNU_EXTRA", "MNU_HELP"};

// The smallest user-defined resolution the game accepts.
inline constexpr int16_t kMinimumWidth = 640;
inline constexpr int16_t kMinimumHeight = 400;

// The number of the failures the checks raise (with the translated text as description) and of the
// self-check's.
inline constexpr int32_t kInputCheckFailure = 20006;
inline constexpr int32_t kCommandLineMismatch = 20001;

// The command line as the controls show it, in the format of the profile's own.
std::string GetCmdLineParameters(const MainWindowValues& values);

// Raises 20006 with the text of the first failing check: a scenario folder or graphic pak that is not in
// the game folder, a game folder that does not exist, a width or height that is no number.
void CheckData(const MainWindowValues& values);

// Raises 20001 with the texts of both command lines when they differ.
void CompareCommandLines(const std::string& window, const std::string& profile);

// What CorrectInput puts into the resolution fields: in the user-defined mode a numeric height or width
// below its minimum becomes the minimum; anything else stays (a non-number is reported by CheckData).
struct ResolutionCorrection {
    std::optional<std::string> height;
    std::optional<std::string> width;
};
ResolutionCorrection CorrectInput(const MainWindowValues& values);

// True for the keys a resolution field takes: the digits and backspace.
bool IsResolutionKey(int keyAscii);
// True for a character that types into a resolution field, which chooses the user-defined mode: any
// printable character and backspace. Tab, Enter, the other control characters and Delete type nothing.
bool TypesIntoResolutionField(int character);

// What the preview shows for a standard resolution's ID; nothing for no standard resolution.
struct PreviewResolution {
    int16_t width;
    int16_t height;
    bool fillArea;  // the last entry: the game's own window
};
std::optional<PreviewResolution> PreviewFor(int resolution);

// The folder of the game's program file with a trailing separator ("" for a path without one).
std::string GameFolder(const std::string& tarvolinPath);
// The game's log file in that folder.
std::string LogFilePath(const std::string& tarvolinPath);

// The text put on the clipboard: line breaks and other control characters become blanks, then runs of
// blanks shrink to one and the ends are trimmed.
std::string CleanText(const std::string& text);

// "Pavonel 1.2.3 with <game version>".
std::string VersionLine(const std::string& withText, const std::string& gameVersion);

}  // namespace frmMainRules
