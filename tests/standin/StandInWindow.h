// What the stand-in game shows a person: the working directory and the arguments it received.
#pragma once

#include <string>

// Shows the window until it is closed; returns the exit status of its event loop.
int ShowStandInWindow(int argc, char** argv, const std::string& directory);
