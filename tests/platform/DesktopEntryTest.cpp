// Desktop entries in a shell link's place, checked by the desktop's own tools: every written entry passes
// desktop-file-validate and reads back as written, and GLib starts the game from it exactly as the
// launcher's own Start does.
#include "platform/posix/DesktopEntry.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "platform/ChildProcessTest.h"
#include "platform/WindowsCommandLine.h"
#include "support/StandInGame.h"

namespace fs = std::filesystem;

namespace {

// A command's exit status and what it printed.
std::pair<int, std::string> RunCommand(const std::string& command) {
    std::string output;
    FILE* pipe = popen((command + " 2>&1").c_str(), "r");
    if (pipe == nullptr)
        return {-1, "cannot run " + command};
    char buffer[512];
    while (fgets(buffer, sizeof buffer, pipe) != nullptr)
        output += buffer;
    return {pclose(pipe), output};
}

std::string Quoted(const std::string& path) {
    std::string text = "'";
    for (const char c : path)
        text += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return text + "'";
}

class DesktopEntryTest : public ChildProcessTest {
protected:
    ShellLink Link(const std::string& target, const std::string& arguments) const {
        return {target, arguments, fs::path(target).parent_path().string() + "/", "ShellLink Sample", "", 0,
                5,      0};
    }
};

TEST_F(DesktopEntryTest, EveryArgumentSurvivesTheQuotingAndTheEntryValidates) {
    const std::string longFolder = "long/" + std::string(254 - m_dir.File("long//tarvolin.exe").size(), 'L');
    const std::pair<std::string, std::string> cases[] = {
        {"Spiele/Tarvolin", "-scenario \"scenarios/grand tour\" -log"},
        {"quotes", R"(say "\"hi\"" it's 'single')"},
        {"shell", "100% $HOME `date` a;b a=b a|b <in> ~ * ? # (x)"},
        {"back\\slash", R"(C:\Games\ "C:\Program Files\\" end\)"},
        {"Größe Überführung 旅", "Straße \"\" -empty-before"},
        {longFolder, "-freeplay"},
    };
    fs::create_directory(m_dir.File("links"));
    for (const auto& [folder, arguments] : cases) {
        SCOPED_TRACE(folder);
        const std::string target = m_dir.File(folder + "/tarvolin.exe");
        const std::string name = "links/" + fs::path(folder).filename().string() + ".desktop";
        const std::string file = m_dir.File(name);
        const ShellLink link = Link(target, arguments);
        ASSERT_TRUE(m_platform.WriteShellLink(file, link));

        const auto [status, output] = RunCommand("desktop-file-validate " + Quoted(file));
        EXPECT_EQ(status, 0) << output << m_dir.Read(name);
        EXPECT_EQ(fs::status(file).permissions(), static_cast<fs::perms>(0755));
        const std::optional<ShellLink> read = m_platform.ReadShellLink(file);
        ASSERT_TRUE(read);
        EXPECT_EQ(std::tie(read->target, read->workingDirectory, read->description),
                  std::tie(target, link.workingDirectory, link.description));
        EXPECT_EQ(SplitWindowsCommandLine(read->arguments), SplitWindowsCommandLine(arguments));
    }
}

// A Windows program is started through Wine, as the launcher starts it; the entry still names the program.
TEST_F(DesktopEntryTest, AWindowsProgramStartsThroughWine) {
    const std::string wine = WriteExecutable("bin/wine", "#!/bin/sh\n");
    m_environment.Set("PATH", m_dir.File("bin"));
    const std::string game = m_dir.Write("game/tarvolin.exe", "MZ");
    const std::string file = m_dir.File("Game.desktop");
    ASSERT_TRUE(m_platform.WriteShellLink(file, Link(game, "-log")));
    EXPECT_EQ(platform::ParseDesktopEntry(m_dir.Read("Game.desktop"))->exec,
              (std::vector<std::string>{wine, game, "-log"}));
    EXPECT_EQ(m_platform.ReadShellLink(file)->target, game);
    EXPECT_FALSE(m_platform.ReadShellLink(m_dir.File("missing.desktop")));
    EXPECT_FALSE(m_platform.ReadShellLink(m_dir.Write("other.desktop", "[Other Group]\nExec=x\n")));
    // A value's leading blank is escaped, since a reader drops blanks around a value.
    const platform::DesktopEntry blank{" Tarvolin", " started", {game}, " folder"};
    EXPECT_EQ(platform::ParseDesktopEntry(platform::DesktopEntryText(blank)), blank);
}

// A game in a Wine prefix of its own starts in it from its entry too, the prefix's path quoted whatever it
// holds; the entry still names the game.
TEST_F(DesktopEntryTest, AGameInAWinePrefixStartsInItFromItsEntry) {
    InstallRecordingWine();
    const std::string prefix = m_dir.File("a \"b\" 100% $HOME");
    m_dir.Write("a \"b\" 100% $HOME/system.reg", "");
    const std::string game = m_dir.Write("a \"b\" 100% $HOME/drive_c/Tarvolin/tarvolin.exe", "MZ");
    const std::string file = m_dir.File("Game.desktop");
    ASSERT_TRUE(m_platform.WriteShellLink(file, Link(game, "-log")));
    const auto [valid, complaints] = RunCommand("desktop-file-validate " + Quoted(file));
    EXPECT_EQ(valid, 0) << complaints << m_dir.Read("Game.desktop");
    EXPECT_EQ(m_platform.ReadShellLink(file)->target, game);
    const auto [status, output] = RunCommand("gio launch " + Quoted(file));
    ASSERT_EQ(status, 0) << output;
    EXPECT_EQ(TakeWineRecord(),
              prefix + "\n" + fs::path(game).parent_path().string() + "\n" + game + "\n-log\n");
}

// GLib's own launch of the entry gives the stand-in what the launcher's Start gives it.
TEST_F(DesktopEntryTest, GioStartsTheGameAsTheLauncherDoes) {
    const StandInGame game(m_dir.Path() / "Spiele" / "Tarvolin Größe");
    const std::string arguments = "-log -scenario \"scenarios/grand tour\" 50%";
    const ShellLink link = Link(game.Path(), arguments);
    ASSERT_EQ(Open(game.Path(), arguments, link.workingDirectory), kShellExecOk);
    const std::optional<LaunchRecord> launched = game.WaitForRecord();
    ASSERT_TRUE(launched);
    game.ForgetRecord();

    const std::string file = m_dir.File("Tarvolin.desktop");
    ASSERT_TRUE(m_platform.WriteShellLink(file, link));
    const auto [status, output] = RunCommand("gio launch " + Quoted(file));
    ASSERT_EQ(status, 0) << output;
    EXPECT_EQ(game.WaitForRecord(), launched);
}

}  // namespace
