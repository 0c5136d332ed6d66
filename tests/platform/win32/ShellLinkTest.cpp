// Shell links written and read back through the shell's own link object, in the user's folders and in new
// ones, and one opened the way a double click opens it.
#include <gtest/gtest.h>
#include <windows.h>
// The shell's headers need the definitions of windows.h first.
#include <commctrl.h>
#include <shellapi.h>

#include <filesystem>
#include <fstream>
#include <ostream>

#include "platform/NativePath.h"
#include "platform/win32/Win32Platform.h"
#include "support/StandInGame.h"
#include "support/TempDir.h"

void PrintTo(const ShellLink& link, std::ostream* out) {
    *out << "{" << link.target << " | " << link.arguments << " | " << link.workingDirectory << " | "
         << link.description << " | " << link.iconPath << "," << link.iconIndex << " | " << link.showCommand
         << " | " << link.hotkey << "}";
}

namespace {

namespace fs = std::filesystem;

constexpr int32_t kNewFolder = -1;  // a folder of the test's own that does not exist yet

// A link as the shortcut wizard writes it: started in the target's folder, shown as it was last.
ShellLink LinkTo(const std::string& target, const std::string& arguments) {
    return {target, arguments, platform::FolderOf(target) + "\\", "ShellLink Sample", "", 0, 5, 0};
}

// The show command in the link file's header (bytes 60 to 63). Wine's loader does not read it back (its
// GetShowCmd answers SW_SHOWNORMAL after every load), so the tests look for it in the file.
int32_t StoredShowCommand(const std::string& file) {
    std::ifstream in(platform::PathOf(file), std::ios::binary);
    int32_t show = -1;
    in.seekg(60).read(reinterpret_cast<char*>(&show), sizeof show);
    return show;
}

struct LinkCase {
    const char* name;
    int32_t folder;  // kCsidl... or kNewFolder
    const char* target;
    const char* arguments;
};

void PrintTo(const LinkCase& linkCase, std::ostream* out) {
    *out << linkCase.name;
}

class ShellLinkRoundTripTest : public testing::TestWithParam<LinkCase> {};

TEST_P(ShellLinkRoundTripTest, ReplacesTheOldLinkAndReadsBackEveryField) {
    const TempDir dir;
    Win32Platform platform;
    const int32_t csidl = GetParam().folder;
    const std::string folder =
        csidl == kNewFolder ? dir.File("neu/Verknüpfungen") : platform.SpecialFolder(csidl);
    fs::create_directories(platform::PathOf(folder));
    const std::string file = folder + "\\Pavonel-Test-" + std::to_string(GetCurrentProcessId()) + ".lnk";
    // The target exists, as the wizard's does, so that Resolve finds it where the link says.
    ShellLink link = LinkTo(dir.Write(GetParam().target, "MZ"), GetParam().arguments);
    const bool old = platform.WriteShellLink(file, LinkTo(link.target, "-alt"));
    link.iconPath = link.target;
    link.iconIndex = 2;
    link.hotkey = MAKEWORD('T', HOTKEYF_CONTROL | HOTKEYF_ALT);
    const bool written = platform.WriteShellLink(file, link);
    std::optional<ShellLink> read = platform.ReadShellLink(file);
    const int32_t show = StoredShowCommand(file);
    fs::remove(platform::PathOf(file));
    EXPECT_TRUE(old && written);
    EXPECT_EQ(show, 5);
    if (read)
        read->showCommand = show;
    EXPECT_EQ(read, link);
}

INSTANTIATE_TEST_SUITE_P(Folders, ShellLinkRoundTripTest,
                         testing::Values(LinkCase{"desktop", kCsidlDesktop, "tarvolin.exe", "-log -res 2"},
                                         LinkCase{"startMenuBlanksNoArguments", kCsidlStartMenu,
                                                  "Spiele mit Leerzeichen/Größe/tarvolin.exe", ""},
                                         LinkCase{"newFolderUmlautsQuotes", kNewFolder, "Größe/tarvolin.exe",
                                                  "-scenario \"Meine Karte.sve\" -x Größe \"\""}));

TEST(ShellLinkFileTest, MakesNoFolderAndReadsNothingFromAnotherFile) {
    const TempDir dir;
    Win32Platform platform;
    EXPECT_FALSE(
        platform.WriteShellLink(dir.File("fehlt/a.lnk"), LinkTo(dir.Write("tarvolin.exe", "MZ"), "")));
    EXPECT_FALSE(fs::exists(platform::PathOf(dir.File("fehlt"))));
    EXPECT_EQ(platform.ReadShellLink(dir.Write("kein.lnk", "[InternetShortcut]\r\n")), std::nullopt);
}

TEST(ShellLinkFileTest, OpeningTheLinkStartsTheGameWithItsArgumentsInItsFolder) {
    const TempDir dir;
    const StandInGame game(platform::PathOf(dir.File("Spiele/Größe ü")));
    const std::string file = dir.File("Tarvolin starten.lnk");
    ASSERT_TRUE(
        Win32Platform().WriteShellLink(file, LinkTo(game.Path(), "-scenario \"Meine Karte.sve\" -res 2")));
    EXPECT_GT(reinterpret_cast<INT_PTR>(
                  ShellExecuteA(nullptr, "open", file.c_str(), nullptr, nullptr, SW_SHOWNORMAL)),
              kShellExecSuccessAbove);
    const std::optional<LaunchRecord> record = game.WaitForRecord(std::chrono::seconds(30));
    ASSERT_TRUE(record);
    EXPECT_EQ(record->directory, platform::FolderOf(game.Path()));
    EXPECT_EQ(record->arguments, (std::vector<std::string>{"-scenario", "Meine Karte.sve", "-res", "2"}));
}

}  // namespace
