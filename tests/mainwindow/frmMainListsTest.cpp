// What the main window's lists and built menus are filled with, from real folders.
#include "mainwindow/frmMainLists.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "support/AppFixture.h"
#include "support/Portable.h"

namespace {

using frmMainLists::MenuItem;

std::vector<std::string> Sorted(std::vector<std::string> names) {
    std::sort(names.begin(), names.end());
    return names;
}

class frmMainListsTest : public AppFixture {};

// Folders of the scenario folder are scenarios and files there are not; files ending in ".pak" in any
// case are graphic paks and a folder of that name is not.
TEST_F(frmMainListsTest, GameFolderListsHoldScenarioFoldersAndPakFiles) {
    const std::string game = dir.Write("game/tarvolin.exe", "MZ");
    for (const char* folder : {"game/Scenarios/demo", "game/Scenarios/Big Map", "game/folder.pak"})
        std::filesystem::create_directories(dir.Path() / folder);
    for (const char* file : {"game/Scenarios/readme.txt", "game/a.pak", "game/B.PAK", "game/c.pak.txt"})
        dir.Write(file, "");
    EXPECT_EQ(Sorted(frmMainLists::ScenarioEntries(game)),
              (std::vector<std::string>{Native("scenarios/Big Map"), Native("scenarios/demo")}));
    EXPECT_EQ(Sorted(frmMainLists::DatenPakEntries(game)), (std::vector<std::string>{"B.PAK", "a.pak"}));
    EXPECT_TRUE(frmMainLists::ScenarioEntries(dir.File("nowhere/tarvolin.exe")).empty());
    // The scenario folder is found in any case, as the checks find its entries.
    std::filesystem::create_directories(dir.Path() / "other" / "scenarios" / "demo");
    EXPECT_EQ(frmMainLists::ScenarioEntries(dir.File("other/tarvolin.exe")),
              std::vector<std::string>{Native("scenarios/demo")});
    EXPECT_TRUE(frmMainLists::DatenPakEntries("").empty());
#ifndef _WIN32
    // A link counts as what it leads to; one that leads nowhere is no scenario.
    std::filesystem::create_directory_symlink(dir.Path() / "game" / "Scenarios" / "demo",
                                              dir.Path() / "other" / "scenarios" / "linked");
    std::filesystem::create_symlink(dir.Path() / "gone", dir.Path() / "other" / "scenarios" / "dangling");
    EXPECT_EQ(Sorted(frmMainLists::ScenarioEntries(dir.File("other/tarvolin.exe"))),
              (std::vector<std::string>{"scenarios/demo", "scenarios/linked"}));
#endif
}

TEST_F(frmMainListsTest, ProfileMenuFollowsTheCollectionAndMarksTheActiveProfile) {
    WriteIni("[profile_B]\r\n[PROFILE_DEFAULT]\r\n[profile_A]\r\n");
    g_cApp->Profiles().LoadData();
    const std::vector<MenuItem> items =
        frmMainLists::ProfileMenuItems(g_cApp->Profiles(), &g_cApp->Profiles().Item("profile_default"));
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[0].caption + items[1].caption + items[2].caption, "BDEFAULTA");
    EXPECT_EQ(items[1].tag, "PROFILE_DEFAULT");
    EXPECT_TRUE(!items[0].checked && items[1].checked && !items[2].checked);
}

// Every file of the language folder is offered; a name too short for an abbreviation is reported.
TEST_F(frmMainListsTest, LanguageMenuListsTheLanguageFiles) {
    std::filesystem::create_directories(dir.Path() / "config" / "LNG_XX.ini");
    dir.Write("config/a.ini", "");
    std::vector<MenuItem> items = frmMainLists::LanguageMenuItems(*g_cApp, "DE");
    std::sort(items.begin(), items.end(), [](const MenuItem& a, const MenuItem& b) { return a.tag < b.tag; });
    ASSERT_EQ(items.size(), 3u);
    EXPECT_EQ(items[0].tag, "");
    EXPECT_EQ(items[1].caption + "|" + items[1].tag, "Deutsch|DE");
    EXPECT_EQ(items[2].caption + "|" + items[2].tag, "English|EN");
    EXPECT_TRUE(items[1].checked && !items[2].checked);
    ASSERT_EQ(ui.reports.size(), 1u);
    EXPECT_EQ(ui.reports[0].number, 20007 | static_cast<int32_t>(0x80040000u));
}

TEST_F(frmMainListsTest, OptionalMenuEntries) {
    EXPECT_TRUE(frmMainLists::IsLocalFaqHidden(*g_cApp, "EN"));
    EXPECT_TRUE(frmMainLists::IsLocalFaqHidden(*g_cApp, "DE"));
    dir.Write("doc/FAQ_DE.txt", "?");
    EXPECT_FALSE(frmMainLists::IsLocalFaqHidden(*g_cApp, "DE"));
    EXPECT_FALSE(frmMainLists::HasLanguageEditor(*g_cApp));
    dir.Write("tools/LanguageEditor.exe", "MZ");
    EXPECT_TRUE(frmMainLists::HasLanguageEditor(*g_cApp));
}

}  // namespace
