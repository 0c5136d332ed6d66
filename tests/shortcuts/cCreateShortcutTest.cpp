// Shortcuts composed through the application: the name rules, the folders made on the way, the fields every
// link gets, and failure 20008 whenever no link was written.
#include "shortcuts/cCreateShortcut.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "shortcuts/mGetSpecialfolder.h"
#include "support/AppFixture.h"
#include "support/FailureMatchers.h"
#include "support/Portable.h"

namespace {

class cCreateShortcutTest : public AppFixture {
protected:
    std::optional<Failure> Create(const std::string& folder, const std::string& name,
                                  const std::string& target, const std::string& arguments = "") {
        return FailureOf([&] { g_cApp->CreateShortcut(folder, name, target, arguments); });
    }
    std::string game = Native("/games/Tarvolin/tarvolin.exe");
};

TEST_F(cCreateShortcutTest, NamesGetThePlatformsEndingUnlessTheyHaveIt) {
    const struct {
        std::string ending, name, expected;
    } cases[] = {{".lnk", " Tarvolin ", "Tarvolin.lnk"},
                 {".lnk", "a.LNK", "a.LNK"},
                 {".lnk", "lnk", "lnk.lnk"},
                 {".lnk", ".LNK", ".LNK"},
                 {".desktop", "Tarvolin 800 x 600", "Tarvolin 800 x 600.desktop"},
                 {".desktop", "b.Desktop", "b.Desktop"},
                 {".desktop", "op", "op.desktop"}};
    for (const auto& c : cases) {
        platform.linkEnding = c.ending;
        EXPECT_EQ(cCreateShortcut().GetShortcutFolder(Native("C:/x/"), c.name), Native("C:/x/") + c.expected);
    }
}

// Missing folders are made along the trimmed path; the link starts the target in its own folder, with the
// fixed comment and show command; a target without a folder gets no working directory.
TEST_F(cCreateShortcutTest, WritesEveryFieldIntoFoldersMadeOnTheWay) {
    const std::string folder = dir.File("new/deeper");
    ASSERT_FALSE(Create("  " + folder + "  ", "Tarvolin", game, "-log -res 2"));
    EXPECT_TRUE(std::filesystem::is_directory(dir.Path() / "new" / "deeper"));
    const std::string link = folder + Native("/Tarvolin.lnk");
    ASSERT_EQ(platform.links.count(link), 1u);
    EXPECT_EQ(platform.links[link],
              (ShellLink{game, "-log -res 2", Native("/games/Tarvolin/"), "ShellLink Sample", "", 0, 5, 0}));
    ASSERT_FALSE(Create(folder, "Plain", "tarvolin.exe"));
    EXPECT_EQ(platform.links[folder + Native("/Plain.lnk")].workingDirectory, "");
}

// An existing link is replaced only when the user says so; No writes nothing and fails like every other
// link that was not written: an empty target, a platform that cannot write, a folder that cannot be made.
TEST_F(cCreateShortcutTest, ALinkNotWrittenFailsWith20008) {
    ASSERT_FALSE(Create(dir.Path().string(), "Game", game));
    ui.answers = {vbNo};
    std::optional<Failure> failure = Create(dir.Path().string(), "Game", game, "-freeplay");
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Number(), mError::kObjectError | kShortcutNotWritten);
    EXPECT_EQ(TrailOf(*failure),
              (std::vector<std::string>{"Application.CreateShortcut", "cCreateShortcut.CreateShortcut",
                                        "cCreateShortcut.CreateShortcut2"}));
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_NE(ui.messages[0].prompt.find(dir.File("Game.lnk")), std::string::npos);
    EXPECT_EQ(ui.messages[0].style, vbYesNo | vbQuestion);
    EXPECT_EQ(platform.links[dir.File("Game.lnk")].arguments, "");
    ui.answers = {vbYes};
    EXPECT_FALSE(Create(dir.Path().string(), "Game", game, "-freeplay"));
    EXPECT_EQ(platform.links[dir.File("Game.lnk")].arguments, "-freeplay");

    EXPECT_EQ(Create(dir.Path().string(), "Empty", "")->Number(), mError::kObjectError | kShortcutNotWritten);
    platform.linksFail = true;
    EXPECT_EQ(Create(dir.Path().string(), "Failing", game)->Number(),
              mError::kObjectError | kShortcutNotWritten);
    platform.linksFail = false;
    dir.Write("file", "in the way");
    failure = Create(dir.File("file/sub"), "Game", game);
    ASSERT_TRUE(failure);
    EXPECT_EQ(TrailOf(*failure),
              (std::vector<std::string>{"Application.CreateShortcut", "cCreateShortcut.CreateShortcut"}));
    EXPECT_EQ(platform.links.size(), 1u);
}

TEST_F(cCreateShortcutTest, QuickLaunchIsFoundWithOneSeparatorAndNamedWithTwo) {
    platform.specialFolders[kCsidlAppData] = dir.File("data");
    EXPECT_EQ(mGetSpecialfolder::GetQuickLaunchFolder(),
              dir.File("data") + Native("//Microsoft/Internet Explorer/Quick Launch"));
    EXPECT_FALSE(mGetSpecialfolder::ExistsQuickLaunchFolder());
    std::filesystem::create_directories(dir.Path() / "data" / "Microsoft" / "Internet Explorer" /
                                        "Quick Launch");
    EXPECT_TRUE(mGetSpecialfolder::ExistsQuickLaunchFolder());
    platform.specialFolders.clear();
    EXPECT_EQ(mGetSpecialfolder::GetDesktopFolder(), "");
}

}  // namespace
