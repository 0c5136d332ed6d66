// The settings file as users meet it: copies of the program saving at once, saves killed at any moment,
// another program's edit on a file system with a coarse clock, a copy that hangs holding the lock.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <thread>

#include "platform/FileLock.h"
#include "platform/FileSystem.h"
#include "platform/SideFiles.h"
#include "storage/IniStore.h"
#include "storage/iniFile.h"
#include "support/IniTrial.h"
#include "support/Portable.h"
#include "support/TempDir.h"
#include "support/TrialProcess.h"

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

class IniTrials : public ::testing::Test {
protected:
    void SetUp() override { iniFile::Store().Clear(); }
    void TearDown() override {
        platform::SetStampResolution(0);
        iniFile::Store().SetLockPatience(IniStore::kDefaultLockPatience);
    }
    std::string Read(const std::string& section, const std::string& key) const {
        return iniFile::Read(file, section, key, "missing", 255);
    }

    TempDir dir;
    std::string file = dir.File("Pavonel.ini");
};

TEST_F(IniTrials, TwoCopiesSavingAtOnceLoseNoWrite) {
#ifdef _WIN32
    const int saves = 25;  // every process and save is many times slower under Wine
#else
    const int saves = 150;
#endif
    TrialProcess a(PAVONEL_INI_WRITER, {file, "A", std::to_string(saves)});
    TrialProcess b(PAVONEL_INI_WRITER, {file, "B", std::to_string(saves)});
    ASSERT_EQ(a.Wait() + b.Wait(), 0);
    int lost = 0;
    for (const std::string name : {"A", "B"}) {
        for (int save = 1; save <= saves; ++save)
            lost += Read("profile_" + name, "KEY_" + std::to_string(save)) == std::to_string(save) ? 0 : 1;
        const std::string last = std::to_string(saves);
        EXPECT_EQ(Read("profile_" + name, "COUNT") + "|" + Read("SHARED", name), last + "|" + last);
    }
    EXPECT_EQ(lost, 0);
}

// A copy saving in a loop is killed at a random moment: the file is exactly one save's state (or not there
// yet), and the next write removes what a killed save left. bench/kill-trials asks for more trials.
TEST_F(IniTrials, SavesKilledAtRandomMomentsLeaveAWholeStateAndNoLeftovers) {
    ONLY_ON_LINUX("a kill at any moment needs signals; the Windows half runs the other trials.");
    const int trials =
        std::getenv("PAVONEL_KILL_TRIALS") ? std::atoi(std::getenv("PAVONEL_KILL_TRIALS")) : 50;
    std::mt19937 random(20261121);
    auto leftovers = [this] {
        int count = 0;
        for (const fs::directory_entry& entry : fs::directory_iterator(dir.Path()))
            count += platform::IsTemporaryName(entry.path().filename().string(), "Pavonel.ini") ? 1 : 0;
        return count;
    };
    int killedInsideASave = 0;
    for (int trial = 0; trial < trials; ++trial) {
        TrialProcess writer(PAVONEL_INI_WRITER, {file});
        // Into the saves: past the writer's start, which takes longer than many saves.
        for (auto start = std::chrono::steady_clock::now(); !fs::exists(file);)
            ASSERT_LT(std::chrono::steady_clock::now() - start, 20s);
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 3'000));
        writer.Kill();
        const std::string bytes = dir.Read("Pavonel.ini");
        const int save = bytes.empty() ? 0 : std::atoi(bytes.c_str() + 12);
        ASSERT_TRUE(save == 0 || bytes == IniTrial::StateBytes(save)) << "trial " << trial;
        killedInsideASave += leftovers() > 0 ? 1 : 0;
        iniFile::Write(file, "END", "trial", std::to_string(trial));
        ASSERT_EQ(leftovers(), 0) << "trial " << trial;
        fs::remove(file);
    }
    RecordProperty("killed_inside_a_save", killedInsideASave);
}

// Another program rewrites the file in place right after the engine's own save, with the same size and,
// on a file system that keeps whole seconds, the same times: the next read sees it, the next write keeps it.
TEST_F(IniTrials, AnEditInTheSameSecondAsTheOwnSaveIsNeverOverwritten) {
    platform::SetStampResolution(1'000'000'000);
    for (const bool readFirst : {true, false}) {
        const auto now = std::chrono::system_clock::now().time_since_epoch();
        std::this_thread::sleep_for(1s - (now - std::chrono::floor<std::chrono::seconds>(now)) + 10ms);
        iniFile::Write(file, "S", "k", "1");
        const fs::file_time_type saved = fs::last_write_time(file);
        std::ofstream(file, std::ios::binary | std::ios::in) << "[S]\r\nk=2\r\n";
        fs::last_write_time(file, saved);
        if (readFirst) {
            EXPECT_EQ(Read("S", "k"), "2");
        }
        iniFile::Write(file, "S", "other", "x");
        EXPECT_EQ(dir.Read("Pavonel.ini"), "[S]\r\nk=2\r\nother=x\r\n") << "read first: " << readFirst;
        fs::remove(file);
    }
}

// A copy that hangs holding the lock: the write gives up after the patience, as on an unwritable file, and
// does not pretend it was made; once the lock is free, writing works again.
TEST_F(IniTrials, AWriteThatCannotGetTheLockActsAsOnAnUnwritableFile) {
    dir.Write("Pavonel.ini", "[S]\r\nk=old\r\n");
    iniFile::Store().SetLockPatience(200ms);
    {
        const std::optional<platform::FileLock> frozen = platform::FileLock::Acquire(file, 0ms);
        const auto start = std::chrono::steady_clock::now();
        iniFile::Write(file, "S", "k", "new");
        const auto waited = std::chrono::steady_clock::now() - start;
        EXPECT_TRUE(frozen && waited >= 200ms && waited < 2s);
        EXPECT_EQ(Read("S", "k") + dir.Read("Pavonel.ini"), "old[S]\r\nk=old\r\n");
    }
    iniFile::Write(file, "S", "k", "new");
    EXPECT_EQ(Read("S", "k"), "new");
}

}  // namespace
