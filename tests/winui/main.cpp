// The window tests run on the thread of their windows, with the common controls and OLE as the program
// has them.
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>
#include <objbase.h>

#include "winui/Main.h"

int main(int argc, char** argv) {
    InitWindowThread();
    testing::InitGoogleTest(&argc, argv);
    const int status = RUN_ALL_TESTS();
    OleUninitialize();
    return status;
}
