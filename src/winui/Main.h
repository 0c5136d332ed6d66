// The Windows program's start and end. Main creates the named mutex and the two program-wide objects, loads
// the options and profiles, and shows the main window; the program then lives in the window's message
// loop. Tests start the whole program in-process through the same Main.
#pragma once

class frmMain;

// Returns the shown main window, or nullptr when no profile could be made active (after the user was told
// why) or when the start failed and was reported. Needs the installed user interface.
frmMain* Main();

// Runs the message loop of `window` until it is closed, then lets it go; the Windows keys of dialogs
// (Tab, the arrows, Alt+letters, Enter, Escape) work in every window of the program.
int RunMessageLoop(frmMain* window);

// Registers the common controls the windows use (list views, links) and joins OLE's apartment for the
// choosers and drag and drop; once per thread that shows windows.
void InitWindowThread();

// What the executable does: the common controls, the user interface, Main and the message loop. Returns the
// process's exit status: 0 after a normal end.
int RunProgram(int argc, char** argv);
