// Bad files and bad moments: nothing crashes or hangs, and no write loses or half-writes a file.
#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/resource.h>

#include <csignal>
#endif
#include <filesystem>
#include <random>
#include <string>

#include "storage/IniStore.h"
#include "storage/iniFile.h"
#include "support/Portable.h"
#include "support/TempDir.h"

namespace fs = std::filesystem;

namespace {

class IniRobustness : public ::testing::Test {
protected:
    void SetUp() override { iniFile::Store().Clear(); }

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

TEST_F(IniRobustness, GarbageManySectionsAndAHugeLineAreReadAndKeptByteForByte) {
    std::mt19937 random(20261121);
    std::string content(1 << 20, '\0');
    for (char& c : content)
        c = static_cast<char>(random());
    for (int i = 0; content.size() < 20'000'000; ++i)
        content += "\r\n[profile_" + std::to_string(i) +
                   "]\r\nRES_WIDTH=800\r\nDESCRIPTION=" + std::string(400, 'd');
    content += "\r\n[Last]\r\nlong=" + std::string(1 << 20, 'x') + "\r\nshort=1\r\n";
    dir.Write("Pavonel.ini", content);
    EXPECT_EQ(Read("Last", "long"), std::string(254, 'x'));
    EXPECT_EQ(Read("profile_77", "RES_WIDTH"), "800");
    {
        iniFile::Update update(file);
        iniFile::Write(file, "Last", "short", "2");
        iniFile::Write(file, "New", "k", "v");
    }
    content[content.size() - 3] = '2';
    EXPECT_EQ(dir.Read("Pavonel.ini"), content + "[New]\r\nk=v\r\n");
}

// A folder in the file's place, a missing folder or a read-only file: writes have no effect, leave nothing
// behind, and reads keep giving what the file holds.
TEST_F(IniRobustness, WritesThatCannotBeDoneChangeNothing) {
    fs::create_directory(dir.File("folder.ini"));
    iniFile::Write(dir.File("folder.ini"), "S", "k", "v");
    EXPECT_TRUE(fs::is_directory(dir.File("folder.ini")));
    EXPECT_EQ(iniFile::Read(dir.File("folder.ini"), "S", "k", "default", 255), "default");
    iniFile::Write(dir.File("missing/Pavonel.ini"), "S", "k", "v");
    EXPECT_FALSE(fs::exists(dir.File("missing")));
    EXPECT_EQ(iniFile::Read(dir.File("missing/Pavonel.ini"), "S", "k", "default", 255), "default");

    dir.Write("Pavonel.ini", "[S]\nk=old\n");
    EXPECT_EQ(Read("S", "k"), "old");
    fs::permissions(file, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    iniFile::Write(file, "S", "k", "new");
    iniFile::Write(file, "S", "other", "new");
    fs::permissions(file, fs::perms::owner_all);
    EXPECT_EQ(dir.Read("Pavonel.ini"), "[S]\nk=old\n");
    EXPECT_EQ(EntriesInFolder(), 2u);
    EXPECT_EQ(Read("S", "k") + "|" + Read("S", "other"), "old|default");
}

TEST_F(IniRobustness, AReadOnlyFolderIsNotWritten) {
    ONLY_ON_LINUX("a Windows folder's read-only attribute does not keep files in it from changing.");
    dir.Write("Pavonel.ini", "[S]\nk=old\n");
    fs::permissions(dir.Path(), fs::perms::owner_read | fs::perms::owner_exec);
    iniFile::Write(file, "S", "k", "new");
    iniFile::Write(dir.File("Other.ini"), "S", "k", "new");
    fs::permissions(dir.Path(), fs::perms::owner_all);
    EXPECT_EQ(dir.Read("Pavonel.ini"), "[S]\nk=old\n");
    EXPECT_EQ(EntriesInFolder(), 1u);
    EXPECT_EQ(Read("S", "k"), "old");
}

TEST_F(IniRobustness, AnotherProgramsEditIsSeenAtTheNextRead) {
    dir.Write("Pavonel.ini", "[S]\nk=1\n");
    EXPECT_EQ(Read("S", "k"), "1");
    dir.Write("Pavonel.ini", "[S]\nk=2\n");  // same size, same inode, within the file system's time tick
    EXPECT_EQ(Read("S", "k"), "2");
    dir.Write("replacement", "[S]\nk=three\n");
    fs::rename(dir.File("replacement"), file);
    EXPECT_EQ(Read("S", "k"), "three");
    fs::remove(file);
    EXPECT_EQ(Read("S", "k"), "default");
}

// A link to a file not there yet is written through, creating the file; a loop of links is not written.
TEST_F(IniRobustness, ADanglingLinkIsWrittenThroughAndALoopIsLeftAlone) {
    ONLY_ON_LINUX("symbolic links; Windows creates links only with extra privileges.");
    fs::create_symlink("real.ini", file);
    iniFile::Write(file, "S", "k", "1");
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(dir.Read("real.ini"), "[S]\r\nk=1\r\n");
    fs::create_symlink("loop2.ini", dir.File("loop1.ini"));
    fs::create_symlink("loop1.ini", dir.File("loop2.ini"));
    iniFile::Write(dir.File("loop1.ini"), "S", "k", "1");
    EXPECT_TRUE(fs::is_symlink(dir.File("loop1.ini")) && fs::is_symlink(dir.File("loop2.ini")));
    EXPECT_EQ(iniFile::Read(dir.File("loop1.ini"), "S", "k", "default", 255), "default");
}

TEST_F(IniRobustness, WriteFollowsSymbolicLinkAndKeepsPermissions) {
    ONLY_ON_LINUX("symbolic links and permission bits; Windows creates links only with extra privileges.");
    dir.Write("real.ini", "[S]\nk=1\n");
    fs::permissions(dir.File("real.ini"), fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink(dir.File("real.ini"), file);
    iniFile::Write(file, "S", "k", "2");
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_EQ(dir.Read("real.ini"), "[S]\nk=2\r\n");
    EXPECT_EQ(fs::status(dir.File("real.ini")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

#ifndef _WIN32
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
        iniFile::Write(file, "S", "k", "new");
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

}  // namespace
