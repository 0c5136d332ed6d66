#include "app/mPath.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/TempDir.h"

namespace {

struct PathCase {
    PathFlavour flavour;
    std::string path;
    std::string added;
    std::string removed;
    std::string directory;
};

class PathFlavours : public ::testing::TestWithParam<PathCase> {};

TEST_P(PathFlavours, TrailingSeparatorAndDirectoryPart) {
    const PathCase& c = GetParam();
    EXPECT_EQ(mPath::AddOrRemoveBackslash(c.path, true, c.flavour), c.added);
    EXPECT_EQ(mPath::AddOrRemoveBackslash(c.path, false, c.flavour), c.removed);
    EXPECT_EQ(mPath::GetDirectoryPart(c.path, c.flavour), c.directory);
}

constexpr PathFlavour W = PathFlavour::Windows;
constexpr PathFlavour P = PathFlavour::Posix;

INSTANTIATE_TEST_SUITE_P(
    BothFlavours, PathFlavours,
    ::testing::Values(
        PathCase{W, "C:\\Games\\Tarvolin", "C:\\Games\\Tarvolin\\", "C:\\Games\\Tarvolin", "C:\\Games\\"},
        PathCase{W, "C:\\", "C:\\", "C:", "C:\\"},
        PathCase{W, "C:\\Games\\tarvolin.exe", "C:\\Games\\tarvolin.exe\\", "C:\\Games\\tarvolin.exe",
                 "C:\\Games\\"},
        PathCase{W, "tarvolin.exe", "tarvolin.exe\\", "tarvolin.exe", ""},
        PathCase{W, "C:/Games/x", "C:/Games/x\\", "C:/Games/x", ""}, PathCase{W, "   ", "   ", "   ", ""},
        PathCase{W, "", "", "", ""}, PathCase{W, " a ", " a \\", " a ", ""},
        PathCase{P, "/opt/tarvolin", "/opt/tarvolin/", "/opt/tarvolin", "/opt/"},
        PathCase{P, "/", "/", "", "/"},
        PathCase{P, "/opt/tarvolin/tarvolin.exe", "/opt/tarvolin/tarvolin.exe/", "/opt/tarvolin/tarvolin.exe",
                 "/opt/tarvolin/"},
        PathCase{P, "C:\\Games\\x", "C:\\Games\\x/", "C:\\Games\\x", ""},
        PathCase{P, "tarvolin.exe", "tarvolin.exe/", "tarvolin.exe", ""}, PathCase{P, "  ", "  ", "  ", ""}));

TEST(PathExistence, FilesAndFoldersAreTellApart) {
    TempDir dir;
    std::string file = dir.Write("tarvolin.exe", "MZ");
    std::string hidden = dir.Write(".hidden", "");
    std::string folder = dir.Path().string();
    EXPECT_TRUE(mPath::FileExists(file));
    EXPECT_TRUE(mPath::FileExists(hidden));
    EXPECT_FALSE(mPath::FileExists(folder));
    EXPECT_FALSE(mPath::FileExists(dir.File("missing.exe")));
    EXPECT_FALSE(mPath::FileExists(""));
    EXPECT_FALSE(mPath::FileExists(file + "/"));
    EXPECT_TRUE(mPath::FolderExists(folder));
    EXPECT_TRUE(mPath::FolderExists(folder + "/"));
    EXPECT_FALSE(mPath::FolderExists(file));
    EXPECT_FALSE(mPath::FolderExists(""));
}

// A name is found in any case, as on Windows: the game folder's "Scenarios" is its "scenarios" too.
TEST(PathExistence, NamesAreFoundInAnyCase) {
    TempDir dir;
    std::filesystem::create_directories(dir.Path() / "Game" / "Scenarios" / "Demo");
    dir.Write("Game/Tarvolin.EXE", "MZ");
    EXPECT_TRUE(mPath::FolderExists(dir.File("game/scenarios/demo")));
    EXPECT_TRUE(mPath::FileExists(dir.File("GAME/tarvolin.exe")));
    EXPECT_FALSE(mPath::FileExists(dir.File("game/scenarios")));
    EXPECT_FALSE(mPath::FolderExists(dir.File("game/scenarios/other")));
}

}  // namespace
