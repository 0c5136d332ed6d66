// The platform files of the other OS are neither built nor run here; these entries say where they are tested,
// so every run shows what it left out.
#include <gtest/gtest.h>

namespace {

#ifdef _WIN32
TEST(OtherSystemTest, TheLinuxPlatformFilesAreTestedByTheLinuxBuild) {
    GTEST_SKIP() << "Process start, xdg-open, the XDG folders and the lock-file marker exist only on Linux.";
}
#else
TEST(OtherSystemTest, TheWindowsPlatformFilesAreTestedByTheWindowsBuildUnderWine) {
    GTEST_SKIP() << "ShellExecuteA, CreateMutexA and the shell's special folders exist only on Windows; "
                    "scripts/test runs them under Wine.";
}
#endif

}  // namespace
