// The shortcut wizard opened from the Extras menu and walked with its real controls to real shell links in
// the test's own desktop folder, read back through the core's shell-link reader.
#include <windows.h>

#include <windowsx.h>

#include <filesystem>
#include <memory>

#include "WindowFixture.h"
#include "platform/NativePath.h"
#include "shortcuts/cShellLink.h"
#include "winui/shortcuts/frmCreateTarvolinShortcut_New.h"

namespace {

// The recording platform with its special folders in the test's folder, whose links are the Windows
// platform's real ones.
class LinkPlatform : public FakePlatform {
public:
    using FakePlatform::FakePlatform;
    bool WriteShellLink(const std::string& file, const ShellLink& link) override {
        return m_native->WriteShellLink(file, link);
    }
    std::optional<ShellLink> ReadShellLink(const std::string& file) override {
        return m_native->ReadShellLink(file);
    }

private:
    std::unique_ptr<Platform> m_native = CreateNativePlatform();
};

struct LinkFields {
    std::string target, directory, arguments, description;
};

class frmCreateTarvolinShortcut_NewTest : public WindowFixture {
protected:
    frmCreateTarvolinShortcut_NewTest() : links(platform::TextOf(dir.Path())) {
        desktop = dir.File("Desktop");
        std::filesystem::create_directories(dir.Path() / "Desktop");
        links.specialFolders = {{kCsidlDesktop, desktop}, {kCsidlAppData, dir.File("data")}};
        InstallPlatform(&links);
    }
    ~frmCreateTarvolinShortcut_NewTest() override { InstallPlatform(&platform); }

    // Opens the wizard from the menu and plays it with `play`; true when it was shown.
    bool Open(const std::function<void(frmCreateTarvolinShortcut_New&)>& play) {
        bool shown = false;
        window = [&](ModalDialog& dialog) {
            wizard = dynamic_cast<frmCreateTarvolinShortcut_New*>(&dialog);
            ASSERT_NE(wizard, nullptr);
            shown = true;
            play(*wizard);
        };
        Choose(IDM_mnuExtra_CreateShortcut);
        return shown;
    }
    HWND In(int id) const { return FindControl(wizard->Handle(), id); }
    void Press(int id, int times = 1) const {
        for (int i = 0; i < times; ++i)
            SendMessageA(In(id), BM_CLICK, 0, 0);
    }
    std::string Field(int id) const { return WinText::Of(In(id)); }
    void Key(WPARAM key) const {
        MSG message{GetFocus(), WM_KEYDOWN, key, 0, 0, {}};
        IsDialogMessageA(wizard->Handle(), &message);
    }
    LinkFields ReadLink(const std::string& name) const {
        LinkFields link;
        std::string icon;
        int32_t hotkey = 0, iconIndex = 0, show = 0;
        EXPECT_TRUE(cShellLink().GetShellLinkInfo(desktop + "\\" + name, link.target, link.directory,
                                                  link.arguments, link.description, hotkey, icon, iconIndex,
                                                  show))
            << name;
        return link;
    }

    LinkPlatform links;
    std::string desktop;
    frmCreateTarvolinShortcut_New* wizard = nullptr;
};

// The main window's input reaches the profile's shortcut; the plain one carries no arguments. Next on the
// last page starts over on page 2 with the fields kept.
TEST_F(frmCreateTarvolinShortcut_NewTest, WalksThePagesToWrittenLinks) {
    Click(IDC_ckFreeplay);
    EXPECT_TRUE(Open([&](frmCreateTarvolinShortcut_New&) {
        EXPECT_EQ(Field(IDC_txtDest), game);
        EXPECT_EQ(Field(IDC_txtLinkName), "Tarvolin");
        EXPECT_FALSE(IsWindowEnabled(In(IDC_cmdBack)));
        Press(IDC_cmdNext, 2);
        EXPECT_FALSE(IsWindowEnabled(In(IDC_opDest_0 + 2)));  // no quick-launch folder
        Press(IDC_cmdNext);
        EXPECT_EQ(Field(IDC_txtDestFolder), desktop);
        Press(IDC_cmdNext);
        EXPECT_EQ(WinText::Of(In(IDC_cmdNext)), "Create Shortcut");
        WinText::Set(In(IDC_txtLinkName), "Race day");
        Press(IDC_cmdNext);
        EXPECT_EQ(wizard->CurPageNo(), 6);
        EXPECT_EQ(boxes.back(), "The shortcut has been created.");
        EXPECT_EQ(WinText::Of(In(IDC_cmdCancel)), "Close");
        Press(IDC_cmdNext);
        EXPECT_EQ(wizard->CurPageNo(), 2);
        EXPECT_EQ(Field(IDC_txtLinkName), "Race day");
        Press(IDC_opMode_0);
        Press(IDC_cmdNext, 3);
        WinText::Set(In(IDC_txtLinkName), "Plain");
        Press(IDC_cmdNext);
        ShowWindow(wizard->Handle(), SW_SHOWNA);
        Press(IDC_cmdCancel);
        EXPECT_FALSE(IsWindowVisible(wizard->Handle()));
    }));
    const LinkFields profile = ReadLink("Race day.lnk");
    EXPECT_EQ(profile.target, game);
    EXPECT_EQ(profile.arguments, Active().GetCmdLineParameters());
    EXPECT_NE(profile.arguments.find("-freeplay"), std::string::npos) << profile.arguments;
    EXPECT_EQ(profile.directory, game.substr(0, game.rfind('\\') + 1));
    EXPECT_EQ(profile.description, "ShellLink Sample");
    const LinkFields plain = ReadLink("Plain.lnk");
    EXPECT_EQ(plain.target + "|" + plain.arguments, game + "|");
    EXPECT_TRUE(reports.empty());
}

// A link that cannot be written (a folder stands in its place) ends in the report of failure 20008; the
// page stays, and another name then succeeds. An empty name is refused first.
TEST_F(frmCreateTarvolinShortcut_NewTest, ALinkThatCannotBeWrittenIsReportedAndTheWizardGoesOn) {
    std::filesystem::create_directories(dir.Path() / "Desktop" / "Tarvolin.lnk");
    EXPECT_TRUE(Open([&](frmCreateTarvolinShortcut_New&) {
        Press(IDC_cmdNext, 4);
        WinText::Set(In(IDC_txtLinkName), " ");
        Press(IDC_cmdNext);
        EXPECT_EQ(boxes.back(), "Please enter a name for the shortcut.");
        WinText::Set(In(IDC_txtLinkName), "Tarvolin");
        Press(IDC_cmdNext);
        ASSERT_EQ(reports.size(), 1u);
        EXPECT_NE(reports[0].find("20008"), std::string::npos) << reports[0];
        EXPECT_NE(reports[0].find("frmCreateTarvolinShortcut_New.CreateShortcut"), std::string::npos);
        EXPECT_EQ(wizard->CurPageNo(), 5);
        WinText::Set(In(IDC_txtLinkName), "Tarvolin 2");
        Press(IDC_cmdNext);
        EXPECT_EQ(wizard->CurPageNo(), 6);
    }));
    EXPECT_EQ(ReadLink("Tarvolin 2.lnk").target, game);
}

// Enter presses Next, each page starts on its first field (an option group on its chosen option), every field
// follows its label (with its Alt+letter) in the tab order, and Escape ends the wizard.
TEST_F(frmCreateTarvolinShortcut_NewTest, TheKeyboardWalksTheWizard) {
    EXPECT_TRUE(Open([&](frmCreateTarvolinShortcut_New&) {
        EXPECT_EQ(GetFocus(), In(IDC_txtDest));
        Key(VK_RETURN);
        EXPECT_EQ(wizard->CurPageNo(), 2);
        EXPECT_EQ(GetFocus(), In(IDC_opMode_0 + 1));  // the chosen option of the group
        for (const auto& [label, field] :
             {std::pair{IDC_lblShortcutTo, IDC_txtDest}, std::pair{IDC_lblSettingsInfo, IDC_txtSettings},
              std::pair{IDC_lblShortcutFolder, IDC_txtDestFolder},
              std::pair{IDC_lblShortcutName, IDC_txtLinkName}}) {
            EXPECT_EQ(GetWindow(In(field), GW_HWNDPREV), In(label)) << label;
            EXPECT_NE(Field(label).find('&'), std::string::npos) << Field(label);
        }
        ShowWindow(wizard->Handle(), SW_SHOWNA);
        Key(VK_ESCAPE);
        EXPECT_FALSE(IsWindowVisible(wizard->Handle()));
    }));
    EXPECT_TRUE(reports.empty());
}

}  // namespace
