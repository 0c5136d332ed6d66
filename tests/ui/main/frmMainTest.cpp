// The main window's documented behaviour, driven through the real widgets, and what it makes of bad input:
// each ends in the documented message or report, never in a crash or a lost edit.
#include "ui/main/frmMain.h"

#include <gtest/gtest.h>

#include <QClipboard>

#include "support/Portable.h"
#include "ui/main/MainWindowFixture.h"
#include "ui/main/ucResolutionPreview.h"

namespace {

using frmMainTest = MainWindowFixture;

TEST_F(frmMainTest, StartsWithTheRememberedProfileAndSwitchesPages) {
    ASSERT_NE(main, nullptr);
    EXPECT_TRUE(main->isVisible());
    EXPECT_EQ(platform.mutexes, std::vector<std::string>{"Pavonel_MTX"});
    EXPECT_EQ(Active().ProfileName(), "profile_A");
    EXPECT_EQ(Control<QComboBox>("txtScenario")->itemText(0), QtText::ToQt(Native("scenarios/demo")));
    EXPECT_EQ(Control<QComboBox>("txtGraphicPack")->itemText(0), "pak128.pak");
    EXPECT_EQ(Control<QLabel>("lblVersion")->text(), "Pavonel 0.1.0 with Tarvolin");
    EXPECT_TRUE(Menu("mnuProfile_List_0")->isChecked() && !Menu("mnuProfile_List_1")->isChecked());
    Control<QListWidget>("lstResolution")->setCurrentRow(1);  // 800 x 600, chosen before its page shows
    Click("ucTab1_2");
    for (int page = 1; page <= frmMain::kTabCount; ++page)
        EXPECT_EQ(Control(QStringLiteral("picPage_%1").arg(page).toLatin1())->isVisible(), page == 3) << page;
    EXPECT_TRUE(Control<ucTab>("ucTab1_2")->IsActive());
    EXPECT_FALSE(Control<ucTab>("ucTab1_0")->IsActive());
    // The preview shows the sample picture for the chosen resolution once its page is open.
    EXPECT_FALSE(Control<QLabel>("Image1")->pixmap().isNull());
    EXPECT_EQ(Control<ucResolutionPreview>("UserControl11")->ImageRect().size(), QSize(102, 77));
}

// Only digits get into a resolution field, and typing there chooses the user-defined mode; leaving it
// raises a too small value, the width taking the focus back and the height not.
TEST_F(frmMainTest, ResolutionFieldsTakeDigitsAndCorrectSmallValues) {
    main->ucTab1_Click(2);
    Type("txtRes_Width", "a");
    EXPECT_EQ(Control<QLineEdit>("txtRes_Width")->text(), "640");
    Type("txtRes_Width", "6a00");
    EXPECT_TRUE(Control<QRadioButton>("opResolution_1")->isChecked());
    EXPECT_EQ(Control<QLineEdit>("txtRes_Width")->text(), "600");
    Type("txtRes_Height", "300");
    main->ucTab1_Click(0);
    QTest::keyClick(Control("txtRes_Height"), Qt::Key_Return);
    EXPECT_EQ(Control<QLineEdit>("txtRes_Height")->text(), "400");
    EXPECT_EQ(Control<QLineEdit>("txtRes_Width")->text(), "640");
    EXPECT_TRUE(Control("picPage_3")->isVisible());
    EXPECT_EQ(boxes.size(), 2);
    EXPECT_EQ(main->focusWidget(), Control("txtRes_Width"));
    EXPECT_EQ(Control<QLineEdit>("txtCommandLine")->text(), "-log -screensize 640x400 -refresh 1");
    Type("txtRes_Height", "300");
    Control("lstRefresh")->setFocus();
    QTest::keyClick(Control("txtRes_Height"), Qt::Key_Return);
    EXPECT_EQ(Control<QLineEdit>("txtRes_Height")->text(), "400");
    EXPECT_EQ(main->focusWidget(), Control("lstRefresh"));
}

// A failed check ends the start with a report and writes nothing into the profile; so do a command line
// that the window composes differently from the profile and a width that is no 16-bit number, which the
// field keeps as typed.
TEST_F(frmMainTest, StartRefusesWhatTheChecksRefuse) {
    Control<QComboBox>("txtScenario")->setEditText("scenarios/gone");
    Click("cmdStart");
    EXPECT_EQ(Active().ScenarioPath(), "");
    Control<QComboBox>("txtScenario")->setEditText("");
    Control<QRadioButton>("opResolution_1")->setChecked(true);
    Control<QLineEdit>("txtRes_Width")->setText("0800");
    Click("cmdStart");
    main->ucTab1_Click(2);
    Type("txtRes_Width", "40000");
    Click("cmdStart");
    EXPECT_EQ(Control<QLineEdit>("txtRes_Width")->text(), "40000");
    EXPECT_TRUE(platform.calls.empty());
    ASSERT_EQ(reports.size(), 3);
    const QString trail = "frmMain.cmdStart_Click\nfrmMain.RefreshProfileData\n";
    EXPECT_TRUE(reports[0].contains("Err.-Number: -2147201498 (20006)")) << reports[0].toStdString();
    EXPECT_TRUE(reports[0].contains(trail + "frmMain.CheckData"));
    EXPECT_TRUE(reports[1].contains("Commandline parameters should be: -log -screensize 0800x480"));
    EXPECT_TRUE(reports[2].contains("Overflow\n\nErr.-Number: 6 (6)")) << reports[2].toStdString();
    EXPECT_TRUE(reports[2].contains(trail));
    Control<QLineEdit>("txtRes_Width")->setText("800");
    window = [](QDialog& confirmation) { Find(confirmation, "cmdOk")->click(); };
    Click("cmdStart");
    ASSERT_EQ(platform.calls.size(), 1u);
    EXPECT_EQ(platform.calls[0].file, game);
    EXPECT_EQ(platform.calls[0].parameters, "-log -screensize 800x480 -refresh 1");
    EXPECT_EQ(platform.calls[0].directory, dir.File("game/"));
}

// With the real platform: a deleted game is named in a message, a deleted game folder is refused by the
// checks; nothing is started and the profile keeps its path.
TEST_F(frmMainTest, AGameThatIsGoneIsReportedWithItsPath) {
    OnRealPlatform([&] {
        std::filesystem::remove(game);
        Click("cmdStart");
        std::filesystem::remove_all(dir.Path() / "game");
        Click("cmdStart");
    });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_TRUE(boxes[0].contains(QtText::ToQt(game))) << boxes[0].toStdString();
    ASSERT_EQ(reports.size(), 1);
    EXPECT_TRUE(reports[0].contains("(20006)")) << reports[0].toStdString();
    EXPECT_EQ(Active().TarvolinPath(), game);
}

// Cancel keeps the window and the edits; Yes saves the profiles chosen in the save window. A game path of
// 254 characters (a setting is read through a buffer of 255) comes back whole at the next start, and Start
// gives the real stand-in game its command line in the game's own folder.
TEST_F(frmMainTest, ClosingAsksWhetherToSaveAndTheNextStartLaunchesWhatWasSaved) {
    const std::string base = platform::TextOf(dir.Path() / "Spiele" / "Tarvolin Größe");
    const std::filesystem::path folder =
        base + "/" + std::string(254 - (base + "//tarvolin.exe").size(), 'a');
    const StandInGame stand(folder);
    ASSERT_EQ(stand.Path().size(), 254u);
    Control<ucPath>("txtTarvolinPath")->SetText(QtText::ToQt(stand.Path()));
    Control<QCheckBox>("ckFreeplay")->setChecked(true);
    EXPECT_FALSE(Close({QMessageBox::Cancel}));
    EXPECT_TRUE(Control<QCheckBox>("ckFreeplay")->isChecked());
    window = [](QDialog& shown) { Find(shown, "Command1")->click(); };
    ASSERT_TRUE(Close({QMessageBox::Yes}));
    EXPECT_EQ(g_cApp, nullptr);
    const std::string saved = ReadIni();
    EXPECT_NE(saved.find("[profile_A]\r\nTARVOPATH=" + stand.Path() + "\r\nFREEPLAY=1\r\n"),
              std::string::npos)
        << saved;
    EXPECT_NE(saved.find("FILEVERSION=1.1"), std::string::npos);
    main = Main();
    ASSERT_NE(main, nullptr);
    EXPECT_EQ(Active().TarvolinPath(), stand.Path());
    std::optional<LaunchRecord> record;
    OnRealPlatform([&] {
        Click("cmdStart");
        record = stand.WaitForRecord();
    });
    ASSERT_TRUE(record);
    EXPECT_EQ(*record,
              (LaunchRecord{platform::TextOf(folder), {"-log", "-res", "1", "-freeplay", "-refresh", "1"}}));
}

TEST_F(frmMainTest, ProfileMenuSwitchesAndKeepsTheEdits) {
    Control<QCheckBox>("ckFreeplay")->setChecked(true);
    Choose("mnuProfile_List_1");
    EXPECT_EQ(Active().ProfileName(), "profile_B");
    EXPECT_TRUE(g_cApp->Profiles().Item("profile_A").Freeplay());
    EXPECT_TRUE(Menu("mnuProfile_List_1")->isChecked() && !Menu("mnuProfile_List_0")->isChecked());
    EXPECT_EQ(Control<QListWidget>("lstRefresh")->currentRow(), 2);

    // The new profile has no game yet: the chooser that offers one is cancelled, and the user is told.
    window = [](QDialog& shown) {
        if (shown.objectName() != "frmEditProfile")
            return;
        Find<QLineEdit>(shown, "txtName")->setText("Race");
        Find<QLineEdit>(shown, "txtDescription")->setText("fast");
        Find(shown, "cmdOk")->click();
    };
    Choose("mnuProfile_New");
    EXPECT_EQ(Active().ProfileName(), "profile_Race");
    EXPECT_EQ(Active().TarvolinPath(), "");
    EXPECT_EQ(boxes, QStringList{Message("ERROR_MESSAGES", "ERR_TarvolinFolderNotDefined")});
    EXPECT_EQ(Menu("mnuProfile_List_2")->text(), "Race");
}

TEST_F(frmMainTest, LanguageSwitchRetranslatesAtOnce) {
    QAction* german = nullptr;
    for (QAction* item : main->findChildren<QAction*>()) {
        if (item->objectName().startsWith("mnuOptions_Lang_Item") && item->data().toString() == "DE")
            german = item;
    }
    ASSERT_NE(german, nullptr);
    german->trigger();
    EXPECT_TRUE(german->isChecked());
    EXPECT_EQ(Control<QPushButton>("cmdStart")->text().remove('&'), "Tarvolin starten");
    EXPECT_EQ(Control<ucTab>("ucTab1_0")->Caption(), "Spiel");
    EXPECT_EQ(Control<QListWidget>("lstResolution")->item(4)->text(), "Im Fenster");
    EXPECT_EQ(Control<QLabel>("lblVersion")->text(), "Pavonel 0.1.0 mit Tarvolin");
    EXPECT_EQ(g_cApp->Options().Language(), "DE");
}

// A language file that is missing, empty or garbage leaves the English texts.
TEST_F(frmMainTest, ABrokenLanguageFileLeavesTheEnglishTexts) {
    const QString english = Control<QPushButton>("cmdStart")->text();
    const std::optional<std::string> files[] = {std::nullopt, "",
                                                std::string("\xff\xfe\0[=\x01\x02;]]\n\r=x", 15)};
    for (const std::optional<std::string>& bytes : files) {
        SCOPED_TRACE(bytes ? std::to_string(bytes->size()) + " bytes" : "no file");
        std::filesystem::remove(dir.Path() / "config" / "LNG_FR.ini");
        if (bytes)
            dir.Write("config/LNG_FR.ini", *bytes);
        Restart(
            "[OPTIONS]\r\nLANGUAGE=FR\r\n[PROFILES]\r\nLASTACTIVEPROFILE=profile_A\r\n[profile_A]"
            "\r\nTARVOPATH=" +
            game + "\r\n");
        ASSERT_NE(main, nullptr);
        EXPECT_EQ(Control<QPushButton>("cmdStart")->text(), english);
    }
    EXPECT_TRUE(reports.isEmpty()) << reports.join("\n").toStdString();
}

TEST_F(frmMainTest, CommandsReachTheClipboardAndTheShell) {
    Choose("mnuEditCopy_CmdLine");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QtText::ToQt(game) + "-log -res 1 -refresh 1");
    Click("cmdOpenTarvoDir");
    ASSERT_EQ(platform.calls.size(), 1u);
    EXPECT_EQ(platform.calls[0].file, dir.File("game/"));
    g_cApp->Options().SetEditorPath("/usr/bin/editor");
    Click("cmdLogfile");
    EXPECT_EQ(boxes, QStringList{Message("ERROR_MESSAGES", "ERR_TarvolinLogfileNotFound")});
    dir.Write("game/tarvo.log", "log");
    Click("cmdLogfile2");
    ASSERT_EQ(platform.calls.size(), 2u);
    EXPECT_EQ(platform.calls[1].file + " " + platform.calls[1].parameters,
              "/usr/bin/editor " + dir.File("game/tarvo.log"));
    // The shortcut wizard opens on the active profile with the page's input written into it first.
    Control<QCheckBox>("ckFreeplay")->setChecked(true);
    QString shown;
    window = [&shown](QDialog& dialog) {
        const auto* target = dialog.findChild<ucPath*>("txtDest");
        shown += dialog.objectName() + (target ? ": " + target->Text() : "") + "\n";
    };
    Choose("mnuExtra_CreateShortcut");
    EXPECT_TRUE(Active().Freeplay());
    Choose("mnuExtra_Update");
    EXPECT_EQ(shown, "frmCreateTarvolinShortcut_New: " + QtText::ToQt(game) + "\nfrmUpdate\n");
}

// No closes without saving the profiles, but with the program's settings.
TEST_F(frmMainTest, ClosingWithNoSavesNoProfile) {
    Control<QCheckBox>("ckFreeplay")->setChecked(true);
    ASSERT_TRUE(Close({QMessageBox::No}));
    const std::string saved = ReadIni();
    EXPECT_NE(saved.find("[profile_A]\r\nTARVOPATH=" + game + "\r\nFREEPLAY=0\r\n"), std::string::npos)
        << saved;
    EXPECT_NE(saved.find("FILEVERSION=1.1"), std::string::npos);
}

// A menu command that still waits to run when the window closes is dropped: by then the program-wide
// objects it would use are gone.
TEST_F(frmMainTest, ACommandStillWaitingWhenTheWindowClosesIsDropped) {
    QStringList opened;
    window = [&opened](QDialog& shown) { opened << shown.objectName(); };
    Menu("mnuExtra_Options")->trigger();
    buttons = {QMessageBox::No};
    ASSERT_TRUE(main->close());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    EXPECT_TRUE(opened.isEmpty()) << opened.join(u' ').toStdString();
    EXPECT_TRUE(reports.isEmpty());
    main = nullptr;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// A save that cannot reach the file says so, naming the file and why, once per attempt: Yes keeps the window
// open with the profile still changed, so the question comes again; No then closes, telling that the
// changed options were not kept either.
TEST_F(frmMainTest, ASaveThatCannotReachTheFileSaysSoAndAsksAgain) {
    const std::string before = ReadIni();
    const std::filesystem::path ini = g_cApp->IniPath();
    const QString unsaved = QtText::ToQtLines(
        Translator().TranslateEx("ERROR_MESSAGES", "ERR_SettingsNotSaved", g_cApp->IniPath(),
                                 Translator().TranslateEx("ERROR_MESSAGES", "ERR_SaveReadOnlyFile")));
    const QStringList asked{Message("MAIN_DIALOG", "MSG_SaveChangesQuestion"), unsaved};
    std::filesystem::permissions(ini, std::filesystem::perms::owner_read);
    Control<QCheckBox>("ckFreeplay")->setChecked(true);
    window = [](QDialog& shown) { Find(shown, "Command1")->click(); };
    EXPECT_FALSE(Close({QMessageBox::Yes}));
    EXPECT_EQ(boxes, asked);
    EXPECT_TRUE(Active().DataChanged());
    boxes.clear();
    g_cApp->Options().SetEditorPath("/usr/bin/gedit");
    EXPECT_TRUE(Close({QMessageBox::No}));
    EXPECT_EQ(boxes, asked);
    std::filesystem::permissions(ini, std::filesystem::perms::owner_all);
    EXPECT_EQ(ReadIni(), before);
}

// A failure while closing is reported first; then the user decides whether to quit anyway.
TEST_F(frmMainTest, AFailureWhileClosingLeavesTheChoiceToTheUser) {
    Control<QComboBox>("txtScenario")->setEditText("scenarios/gone");
    EXPECT_FALSE(Close({QMessageBox::No}));
    ASSERT_EQ(reports.size(), 1);
    EXPECT_TRUE(reports[0].contains("Err.-Source: \nfrmMain.Form_QueryUnload\nfrmMain.RefreshProfileData"));
    EXPECT_EQ(boxes, QStringList{Message("MAIN_DIALOG", "MSG_QuitPavonelQuestion")});
    EXPECT_TRUE(Close({QMessageBox::Yes}));
    EXPECT_EQ(g_cApp, nullptr);
}

// Without a profile to work with, the program ends before any window: the user is told once.
TEST_F(frmMainTest, WithoutAProfileNoWindowOpens) {
    Restart("[PROFILES]\r\nLASTACTIVEPROFILE=profile_Gone\r\n[profile_A]\r\n");
    EXPECT_EQ(main, nullptr);
    EXPECT_EQ(boxes, QStringList{"You have to load a profile, if you want to use this application."});
    EXPECT_EQ(g_cApp, nullptr);
}

}  // namespace
