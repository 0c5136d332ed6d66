// What the main window's controls show of a profile, as the window reads them: the rules of the window work
// on these values, so they need no widget and are tested on every OS. The values are the program's (a
// resolution ID, a check box's value), not a control's encoding; each face's pages convert once.
#pragma once

#include <string>

class Profile;

struct MainWindowValues {
    // A check box's value: 0 unchecked, 1 checked, 2 greyed.
    static constexpr int kChecked = 1;

    std::string tarvolinPath;        // txtTarvolinPath
    int logMessages = 0;             // ckLogMessages
    int freeplay = 0;                // ckFreeplay
    bool standardResolution = true;  // opResolution(0); false when opResolution(1) is selected
    int resolution = 0;              // lstResolution: the standard resolution's ID, 0 without a selection
    std::string width;               // txtRes_Width, as typed
    std::string height;              // txtRes_Height, as typed
    std::string scenario;            // txtScenario
    std::string graphicPack;         // txtGraphicPack
    int refresh = 0;                 // lstRefresh: the refresh choice's ID, 0 without a selection
};

namespace frmMainRules {

// What the controls show of `profile`: check boxes checked or not, the resolution sizes as decimal text.
MainWindowValues ValuesOf(const Profile& profile);

// Writes `values` into `profile` in the window's order, through the profile's setters, which decide
// whether it changed. A width or height that is no 16-bit number raises Overflow, and the values after it
// are not written; the caller's trail names the failure.
void WriteInto(const MainWindowValues& values, Profile& profile);

}  // namespace frmMainRules
