// The program's start and end. Main creates the running marker and the two program-wide objects, loads the
// options and profiles, and shows the main window; the program then lives in the window's event handlers.
// Tests and tools start the whole program in-process through the same Main.
#pragma once

class frmMain;

// Returns the shown main window (it deletes itself when it closes), or nullptr when no profile could be made
// active, after the user was told why, or when the start failed and was reported. Needs the QApplication and
// the installed user interface and platform.
frmMain* Main();

// What the executable does: the QApplication, Qt's own texts in the chosen language, the user interface,
// Main and the event loop. Returns the process's exit status: 0 after a normal end.
int RunProgram(int argc, char** argv);
