// What the main window's controls show of a profile, as the window reads them: the rules of the window work
// on these values, so they need no widget and are tested on every OS.
#pragma once

#include <string>

struct MainWindowValues {
    // A check box's value: 0 unchecked, 1 checked, 2 greyed.
    static constexpr int kChecked = 1;

    std::string tarvolinPath;        // txtTarvolinPath
    int logMessages = 0;             // ckLogMessages
    int freeplay = 0;                // ckFreeplay
    bool standardResolution = true;  // opResolution(0); false when opResolution(1) is selected
    int resolutionIndex = -1;        // lstResolution, -1 without a selection
    std::string width;               // txtRes_Width
    std::string height;              // txtRes_Height
    std::string scenario;            // txtScenario
    std::string graphicPack;         // txtGraphicPack
    int refreshIndex = -1;           // lstRefresh, -1 without a selection
};
