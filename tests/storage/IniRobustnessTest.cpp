// Bad files and bad moments: nothing crashes or hangs, and no write loses or half-writes a file. The trials
// meet the settings file as users do: copies of the program saving at once, saves killed at any moment,
// another program's edit on a file system with a coarse clock, a copy that hangs holding the lock.
#include <gtest/gtest.h>

#ifndef _WIN32
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <csignal>
#endif
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
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

class IniRobustness : public ::testing::Test {
protected:
    void SetUp() override { iniFile::Store().Clear(); }
    void TearDown() override {
        platform::SetStampResolution(0);
        iniFile::Store().SetLockPatience(IniStore::kDefaultLockPatience);
    }

    std::string Read(const std::string& section, const std::string& key) const {
        return iniFile::Read(file, section, key, "default", 255);
    }

    // The names in the folder, so a test can tell that no temporary file was left behind.
    std::size_t EntriesInFolder() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(dir.Path()), fs::directory_iterator()));
    }

    TempDir dir;
    std::string file = dir.File("Pavonel.ini");
};

// The trials, which start other copies of the program.
using IniTrials = IniRobustness;

// A folder in the file's place, a missing folder or a read-only file: writes have no effect, leave nothing
// behind, say why, and reads keep giving what the file holds.
TEST_F(IniRobustness, WritesThatCannotBeDoneChangeNothing) {
    fs::create_directory(dir.File("folder.ini"));
    for (const auto& [name, fault] : {std::pair("folder.ini", platform::WriteFault::NotAFile),
                                      std::pair("missing/Pavonel.ini", platform::WriteFault::NoFolder)}) {
        EXPECT_EQ(iniFile::Write(dir.File(name), "S", "k", "v"), fault) << name;
        EXPECT_EQ(iniFile::Read(dir.File(name), "S", "k", "default", 255), "default") << name;
    }
    EXPECT_TRUE(fs::is_directory(dir.File("folder.ini")) && !fs::exists(dir.File("missing")));

    dir.Write("Pavonel.ini", "[S]\nk=old\n");
    EXPECT_EQ(Read("S", "k"), "old");
    fs::permissions(file, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    iniFile::Write(file, "S", "k", "new");
    EXPECT_EQ(iniFile::Write(file, "S", "other", "new"), platform::WriteFault::ReadOnlyFile);
    fs::permissions(file, fs::perms::owner_all);
    EXPECT_EQ(dir.Read("Pavonel.ini"), "[S]\nk=old\n");
    EXPECT_EQ(EntriesInFolder(), 2u);
    EXPECT_EQ(Read("S", "k") + "|" + Read("S", "other"), "old|default");
}

TEST_F(IniRobustness, AReadOnlyFolderIsNotWritten) {
    ONLY_ON_LINUX("a Windows folder's read-only attribute does not keep files in it from changing.");
    dir.Write("Pavonel.ini", "[S]\nk=old\n");
    fs::permissions(dir.Path(), fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_EQ(iniFile::Write(file, "S", "k", "new"), platform::WriteFault::ReadOnlyFolder);
    iniFile::Write(dir.File("Other.ini"), "S", "k", "new");
    fs::permissions(dir.Path(), fs::perms::owner_all);
    EXPECT_EQ(dir.Read("Pavonel.ini"), "[S]\nk=old\n");
    EXPECT_EQ(EntriesInFolder(), 1u);
    EXPECT_EQ(Read("S", "k"), "old");
}

// A link is written through, creating the file it names or keeping the permissions of the one there; a loop
// of links is not written.
TEST_F(IniRobustness, SymbolicLinksAreWrittenThroughAndALoopIsLeftAlone) {
    ONLY_ON_LINUX("symbolic links and permission bits; Windows creates links only with extra privileges.");
    fs::create_symlink("real.ini", file);
    iniFile::Write(file, "S", "k", "1");
    EXPECT_EQ(dir.Read("real.ini"), "[S]\r\nk=1\r\n");
    const fs::perms kept = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
    fs::permissions(dir.File("real.ini"), kept);
    iniFile::Write(file, "S", "k", "2");
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(dir.Read("real.ini"), "[S]\r\nk=2\r\n");
    EXPECT_EQ(fs::status(dir.File("real.ini")).permissions(), kept);
    fs::create_symlink("loop2.ini", dir.File("loop1.ini"));
    fs::create_symlink("loop1.ini", dir.File("loop2.ini"));
    EXPECT_EQ(iniFile::Write(dir.File("loop1.ini"), "S", "k", "1"), platform::WriteFault::NotAFile);
    EXPECT_TRUE(fs::is_symlink(dir.File("loop1.ini")) && fs::is_symlink(dir.File("loop2.ini")));
    EXPECT_EQ(iniFile::Read(dir.File("loop1.ini"), "S", "k", "default", 255), "default");
}

#ifndef _WIN32
// A pipe, a socket or a device in the file's place, directly or behind a link: nothing waits for it, reads
// give the defaults and writes are refused, leaving it as it was.
TEST_F(IniRobustness, NothingButARegularFileIsReadOrWritten) {
    ASSERT_EQ(mkfifo(dir.File("fifo.ini").c_str(), 0644), 0);
    const int listener = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string socketPath = dir.File("socket.ini");
    ASSERT_LT(socketPath.size(), sizeof address.sun_path);
    socketPath.copy(address.sun_path, socketPath.size());
    ASSERT_EQ(bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    fs::create_symlink("/dev/zero", dir.File("device.ini"));
    fs::create_symlink("fifo.ini", dir.File("link.ini"));
    for (const char* name : {"fifo.ini", "socket.ini", "device.ini", "link.ini"}) {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_FALSE(platform::ReadFile(dir.File(name))) << name;
        EXPECT_EQ(iniFile::Read(dir.File(name), "S", "k", "default", 255), "default") << name;
        EXPECT_EQ(iniFile::Write(dir.File(name), "S", "k", "v"), platform::WriteFault::NotAFile) << name;
        EXPECT_LT(std::chrono::steady_clock::now() - start, 2s) << name;
    }
    close(listener);
    EXPECT_TRUE(fs::is_fifo(dir.File("fifo.ini")) && fs::is_socket(socketPath));
    EXPECT_TRUE(fs::is_symlink(dir.File("device.ini")) && fs::is_symlink(dir.File("link.ini")));
}

// Lets writes fail once the file would grow beyond `limit` bytes, as a full disk would.
// The signal keeps its default action, which ends a process that does not expect it.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t limit) {
        getrlimit(RLIMIT_FSIZE, &m_old);
        m_oldHandler = std::signal(SIGXFSZ, SIG_DFL);
        rlimit lowered{limit, m_old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &lowered);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_oldHandler);
    }

private:
    rlimit m_old{};
    void (*m_oldHandler)(int);
};
#endif

TEST_F(IniRobustness, WriteFailingHalfWayLeavesTheOldFile) {
#ifdef _WIN32
    ONLY_ON_LINUX("a process's file-size limit stands in for a full disk.");
#else
    std::string old = "[S]\r\nk=old\r\n" + std::string(4000, ';') + "\r\n";
    dir.Write("Pavonel.ini", old);
    EXPECT_EQ(Read("S", "k"), "old");
    {
        FileSizeLimit limit(2048);
        EXPECT_EQ(iniFile::Write(file, "S", "k", "new"), platform::WriteFault::DiskFull);
    }
    EXPECT_EQ(dir.Read("Pavonel.ini"), old);
    EXPECT_EQ(Read("S", "k"), "old");
    EXPECT_EQ(EntriesInFolder(), 2u);  // the file and its lock
#endif
}

// What crashed saves left beside the file goes at the next write; names that only look alike stay.
TEST_F(IniRobustness, AWriteRemovesTheLeftoversOfCrashedSaves) {
    for (const char* name : {".Pavonel.ini.a1B2c3", ".Pavonel.ini.backup1", "Pavonel.ini.a1B2c3"})
        dir.Write(name, "x");
    iniFile::Write(file, "S", "k", "new");
    EXPECT_FALSE(fs::exists(dir.File(".Pavonel.ini.a1B2c3")));
    EXPECT_EQ(EntriesInFolder(), 4u);  // the file, its lock and the two look-alikes
}

// An update is written once, when it ends, also when a failure makes it end.
TEST_F(IniRobustness, UpdateCommitsOnceAtTheEnd) {
    dir.Write("Pavonel.ini", "[S]\r\na=0\r\n");
    try {
        iniFile::Update update(file);
        iniFile::Write(file, "S", "a", "1");
        iniFile::Write(file, "T", "b", "2");
        EXPECT_EQ(dir.Read("Pavonel.ini"), "[S]\r\na=0\r\n");
        EXPECT_EQ(Read("T", "b"), "2");
        throw std::runtime_error("failed half-way through a save");
    } catch (const std::runtime_error&) {
    }
    EXPECT_EQ(dir.Read("Pavonel.ini"), "[S]\r\na=1\r\n[T]\r\nb=2\r\n");
}

TEST_F(IniTrials, TwoCopiesSavingAtOnceLoseNoWrite) {
#ifdef _WIN32
    const int saves = 25;  // every process and save is many times slower under Wine
#else
    const int saves = 150;
#endif
    TrialProcess a(PAVONEL_INI_WRITER, {file, "A", std::to_string(saves)});
    TrialProcess b(PAVONEL_INI_WRITER, {file, "B", std::to_string(saves)});
    ASSERT_EQ(a.Wait() + b.Wait(), 0);
    const std::string last = std::to_string(saves);
    for (const std::string name : {"A", "B"}) {
        int lost = 0;
        for (int save = 1; save <= saves; ++save)
            lost += Read("profile_" + name, "KEY_" + std::to_string(save)) == std::to_string(save) ? 0 : 1;
        EXPECT_EQ(Read("profile_" + name, "COUNT") + "|" + Read("SHARED", name) + "|" + std::to_string(lost),
                  last + "|" + last + "|0");
    }
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

#ifndef _WIN32
// An old file is edited and its old modification time put back (as "touch -r" or an editor keeping dates
// does), all within the second of its last change on a file system with whole seconds: only the change
// time, which no program can set, tells, and it must be trusted no more than the modification time.
TEST_F(IniTrials, AnEditThatPutsTheOldTimeBackIsNeverOverwritten) {
    platform::SetStampResolution(1'000'000'000);
    for (int edit = 1; edit <= 3; ++edit) {
        dir.Write("Pavonel.ini", "[S]\r\nk=0\r\n");
        const timespec old[2] = {{1'000'000'000, 0}, {1'000'000'000, 0}};
        ASSERT_EQ(utimensat(AT_FDCWD, file.c_str(), old, 0), 0);
        EXPECT_EQ(Read("S", "k"), "0");
        std::ofstream(file, std::ios::binary | std::ios::in) << "[S]\r\nk=" << edit << "\r\n";
        ASSERT_EQ(utimensat(AT_FDCWD, file.c_str(), old, 0), 0);
        EXPECT_EQ(Read("S", "k"), std::to_string(edit));
        iniFile::Write(file, "S", "other", "x");
        EXPECT_EQ(dir.Read("Pavonel.ini"), "[S]\r\nk=" + std::to_string(edit) + "\r\nother=x\r\n");
    }
}
#endif

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
