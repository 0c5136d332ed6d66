// Looks for a named mutex the way an installer checks for a running launcher. Exit status 0 when
// OpenMutexA finds it, 1 when it does not, 2 when it is called without exactly one name.
#include <windows.h>

int main(int argc, char** argv) {
    if (argc != 2)
        return 2;
    const HANDLE mutex = OpenMutexA(SYNCHRONIZE, FALSE, argv[1]);
    if (mutex == nullptr)
        return 1;
    CloseHandle(mutex);
    return 0;
}
