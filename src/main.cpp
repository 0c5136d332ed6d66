// Pavonel, the launcher and settings manager for Tarvolin.
#include "ui/Main.h"

int main(int argc, char** argv) {
    return RunProgram(argc, argv);
}
