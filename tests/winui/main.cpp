// The window tests run on the thread of their windows, with the common controls and OLE as the program
// has them.
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>
#include <objbase.h>

int main(int argc, char** argv) {
    INITCOMMONCONTROLSEX controls{sizeof(INITCOMMONCONTROLSEX), ICC_STANDARD_CLASSES | ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&controls);
    OleInitialize(nullptr);
    testing::InitGoogleTest(&argc, argv);
    const int status = RUN_ALL_TESTS();
    OleUninitialize();
    return status;
}
