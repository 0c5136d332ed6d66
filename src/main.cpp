// Pavonel, the launcher and settings manager for Tarvolin. Each OS has its face; both start the same way.
#ifdef _WIN32
#include "winui/Main.h"
#else
#include "ui/Main.h"
#endif

int main(int argc, char** argv) {
    return RunProgram(argc, argv);
}
