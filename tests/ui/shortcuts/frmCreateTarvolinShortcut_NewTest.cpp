// The shortcut wizard driven through its real widgets, page by page; the messages and choosers are the
// recording user interface's, the written links the recording platform's.
#include "ui/shortcuts/frmCreateTarvolinShortcut_New.h"

#include <gtest/gtest.h>

#include <QRadioButton>
#include <filesystem>
#include <memory>

#include "error/mError.h"
#include "profiles/Profile.h"
#include "support/Portable.h"
#include "ui/controls/ucPath.h"
#include "ui/dialogs/UiFixture.h"
#include "ui/shortcuts/ucWizard_Nav.h"

namespace {

class frmCreateTarvolinShortcut_NewTest : public AppFixture {
protected:
    frmCreateTarvolinShortcut_NewTest() {
        game = dir.Write("game/tarvolin.exe", "MZ");
        desktop = dir.File("Desktop");
        std::filesystem::create_directories(desktop);
        platform.specialFolders = {{kCsidlDesktop, desktop},
                                   {kCsidlAppData, dir.File("data")},
                                   {kCsidlStartMenu, dir.File("menu")},
                                   {kCsidlDrives, dir.File("drives")}};
        profile.SetTarvolinPath(game);
        profile.SetFreeplay(true);
        Open();
    }

    // A new wizard, as the menu opens one.
    void Open() {
        owned = std::make_unique<frmCreateTarvolinShortcut_New>();
        owned->InitDialog(profile);
        owned->show();
    }

    template <class T = QWidget>
    T* Control(const char* name) {
        return Find<T>(*owned, name);
    }
    int Page() { return Control<ucWizard_Nav>("ucWizard_Nav")->CurPageNo(); }
    // A click on a check box's or option's box, at its left end.
    void Choose(const char* name) {
        QWidget* box = Control(name);
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(box->height() / 2, box->height() / 2));
    }
    void Next(int times = 1) {
        for (int i = 0; i < times; ++i)
            QTest::mouseClick(Control("cmdNext"), Qt::LeftButton);
    }
    void Back() { QTest::mouseClick(Control("cmdBack"), Qt::LeftButton); }
    QString Caption(const char* button) { return Control<QPushButton>(button)->text().remove('&'); }
    std::string LastMessage() const { return ui.messages.empty() ? "" : ui.messages.back().prompt; }

    std::string game;
    std::string desktop;
    Profile profile;
    std::unique_ptr<frmCreateTarvolinShortcut_New> owned;
};

// Through every page with the proposals: the shortcut lands on the desktop with the command line the
// profile had when the wizard opened; Next on the last page starts over on page 2 with everything kept.
TEST_F(frmCreateTarvolinShortcut_NewTest, WalksThePagesAndCreatesTheShortcut) {
    const std::string commandLine = profile.GetCmdLineParameters();
    profile.SetFreeplay(false);
    EXPECT_EQ(Page(), 1);
    EXPECT_EQ(Control<ucPath>("txtDest")->Text(), QtText::ToQt(game));
    EXPECT_EQ(Control<QLineEdit>("txtLinkName")->text(), "Tarvolin");
    EXPECT_EQ(Caption("cmdBack"), "< Back");
    EXPECT_FALSE(Control("cmdBack")->isEnabled());
    Next();
    EXPECT_TRUE(Control<QRadioButton>("opMode_1")->isChecked());
    Next();
    EXPECT_FALSE(Control<QRadioButton>("opDest_2")->isEnabled());  // no quick-launch folder
    Next();
    EXPECT_EQ(Control<ucPath>("txtDestFolder")->Text(), QtText::ToQt(desktop));
    Next();
    EXPECT_EQ(Page(), 5);
    EXPECT_EQ(Caption("cmdNext"), "Create Shortcut");
    Control<QLineEdit>("txtLinkName")->setText("Race day");
    Next();
    const std::string link = desktop + Native("/Race day.lnk");
    ASSERT_EQ(platform.links.count(link), 1u) << LastMessage();
    EXPECT_EQ(platform.links[link].target + " " + platform.links[link].arguments, game + " " + commandLine);
    EXPECT_EQ(LastMessage(), "The shortcut has been created.");
    EXPECT_EQ(Page(), 6);
    EXPECT_EQ(Caption("cmdCancel"), "Close");
    QTest::keyClick(Control("ckCreateFurtherShortcut"), Qt::Key_Space);
    EXPECT_FALSE(Control("cmdNext")->isEnabled());
    QTest::keyClick(Control("ckCreateFurtherShortcut"), Qt::Key_Space);
    Next();
    EXPECT_EQ(Page(), 2);
    EXPECT_EQ(Caption("cmdNext"), "Next >");
    EXPECT_EQ(Control<QLineEdit>("txtLinkName")->text(), "Race day");
    EXPECT_EQ(Control<ucPath>("txtDest")->Text(), QtText::ToQt(game));
    QTest::mouseClick(Control("cmdCancel"), Qt::LeftButton);
    EXPECT_FALSE(owned->isVisible());
    EXPECT_TRUE(owned->Cancel());
}

// Return presses Next, Alt and a button's letter presses it, and every page starts the keyboard on its
// first field.
TEST_F(frmCreateTarvolinShortcut_NewTest, TheKeyboardWalksTheWizard) {
    QApplication::setActiveWindow(owned.get());
    QTest::keyClick(owned.get(), Qt::Key_Return);
    EXPECT_EQ(Page(), 2);
    EXPECT_TRUE(Control("opMode_0")->hasFocus());
    // A button's letter presses it the way a click does, a moment later.
    QTest::keyClick(owned.get(), Qt::Key_B, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Page() == 1; }, 1000));
    EXPECT_TRUE(Control("txtDest")->isAncestorOf(QApplication::focusWidget()));
    QTest::keyClick(owned.get(), Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Page() == 2; }, 1000));
}

// Leaving a page checks it, backwards too, with the documented message and box style; the page stays.
TEST_F(frmCreateTarvolinShortcut_NewTest, LeavingAPageChecksIt) {
    const struct {
        int page;
        const char* field;
        std::string value;
        std::string message;
        int style;
    } cases[] = {
        {1, "txtDest", "   ", "Please enter the program file that the shortcut should start.", vbOKOnly},
        {1, "txtDest", dir.File("gone.exe"), dir.File("gone.exe"), 10},
        {4, "txtDestFolder", " ", "Please enter the folder in which the shortcut should be created.",
         vbOKOnly},
        {4, "txtDestFolder", dir.File("nowhere"), dir.File("nowhere"), 10},
        {5, "txtLinkName", "  ", "Please enter a name for the shortcut.", vbOKOnly},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.value);
        while (Page() < c.page)
            Next();
        if (auto* path = owned->findChild<ucPath*>(c.field))
            path->SetText(QtText::ToQt(c.value));
        else
            Control<QLineEdit>(c.field)->setText(QtText::ToQt(c.value));
        for (const bool backwards : {false, true}) {
            const std::size_t shown = ui.messages.size();
            backwards ? Back() : Next();
            ASSERT_EQ(ui.messages.size(), shown + (backwards && c.page == 1 ? 0 : 1));  // no Back on page 1
            if (ui.messages.size() > shown) {
                EXPECT_NE(LastMessage().find(c.message), std::string::npos) << LastMessage();
                EXPECT_EQ(ui.messages.back().style, c.style);
            }
            EXPECT_EQ(Page(), c.page);
        }
        owned->InitDialog(profile);
    }
    EXPECT_TRUE(platform.links.empty());
}

// Quick launch shows its folder and locks it; any other choice unlocks the field and fills it anew; the
// other folder starts at the drives and is browsed from there.
TEST_F(frmCreateTarvolinShortcut_NewTest, DestinationsFillTheFolder) {
    std::filesystem::create_directories(dir.Path() / "data" / "Microsoft" / "Internet Explorer" /
                                        "Quick Launch");
    Open();
    Next(2);
    ASSERT_TRUE(Control<QRadioButton>("opDest_2")->isEnabled());
    Choose("opDest_2");
    EXPECT_EQ(Control<ucPath>("txtDestFolder")->Text(),
              QtText::ToQt(dir.File("data") + Native("//Microsoft/Internet Explorer/Quick Launch")));
    EXPECT_FALSE(Control<ucPath>("txtDestFolder")->isEnabled());
    EXPECT_FALSE(Control("cmdSelFolder")->isEnabled());
    Choose("opDest_1");
    EXPECT_EQ(Control<ucPath>("txtDestFolder")->Text(), QtText::ToQt(dir.File("menu")));
    EXPECT_TRUE(Control("cmdSelFolder")->isEnabled());
    Choose("opDest_3");
    EXPECT_EQ(Control<ucPath>("txtDestFolder")->Text(), QtText::ToQt(dir.File("drives")));
    Next();
    ui.folderAnswer = desktop;
    QTest::mouseClick(Control("cmdSelFolder"), Qt::LeftButton);
    EXPECT_EQ(ui.folderRequests.back(), "Select a Folder|" + dir.File("drives"));
    EXPECT_EQ(Control<ucPath>("txtDestFolder")->Text(), QtText::ToQt(desktop));
}

// The plain mode writes no arguments; a new target replaces a typed name; a kept old link fails with the
// report and the page stays.
TEST_F(frmCreateTarvolinShortcut_NewTest, PlainModeNewTargetAndAKeptLink) {
    Control<QLineEdit>("txtLinkName")->setText("Typed");
    const std::string other = dir.Write("other/tarvolin.exe", "MZ");
    Control<ucPath>("txtDest")->SetText(QtText::ToQt(other));
    EXPECT_EQ(Control<QLineEdit>("txtLinkName")->text(), "Tarvolin");
    Next();
    Choose("opMode_0");
    Next(4);
    const std::string link = desktop + Native("/Tarvolin.lnk");
    EXPECT_EQ(platform.links[link].target + "|" + platform.links[link].arguments, other + "|");
    Next(4);
    ASSERT_EQ(Page(), 5);
    ui.answers = {vbNo};
    Next();
    ASSERT_EQ(ui.reports.size(), 1u);
    EXPECT_EQ(ui.reports[0].number, mError::kObjectError | 20008);
    EXPECT_EQ(Page(), 5);
}

}  // namespace
