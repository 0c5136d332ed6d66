// What the main window makes of bad input: broken language files, a game that is gone, the longest path
// a setting holds, a resolution beyond any screen. Each ends in the documented message or report, never in
// a crash or a lost edit.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <filesystem>

#include "platform/NativePath.h"
#include "support/StandInGame.h"
#include "ui/controls/ucPath.h"
#include "ui/main/MainWindowFixture.h"

namespace {

class frmMainBadInput : public MainWindowFixture {
protected:
    std::string ProfileSettings() const {
        return "[PROFILES]\r\nLASTACTIVEPROFILE=profile_A\r\n[profile_A]\r\nTARVOPATH=" + game + "\r\n";
    }
};

TEST_F(frmMainBadInput, ALanguageFileThatIsMissingEmptyOrGarbageLeavesTheEnglishTexts) {
    const QString english = Control<QPushButton>("cmdStart")->text();
    const std::pair<const char*, std::string> files[] = {
        {"missing", ""}, {"empty", ""}, {"garbage", std::string("\xff\xfe\0[=\x01\x02;]]\n\r=x", 15)}};
    for (const auto& [what, bytes] : files) {
        std::filesystem::remove(dir.Path() / "config" / "LNG_FR.ini");
        if (std::string(what) != "missing")
            dir.Write("config/LNG_FR.ini", bytes);
        Restart("[OPTIONS]\r\nLANGUAGE=FR\r\n" + ProfileSettings());
        ASSERT_NE(main, nullptr) << what;
        EXPECT_EQ(Control<QPushButton>("cmdStart")->text(), english) << what;
    }
    EXPECT_TRUE(reports.isEmpty()) << reports.join("\n").toStdString();
}

// With the real platform: a deleted game is named in a message, a deleted game folder is refused by the
// checks; nothing is started and the profile keeps its path.
TEST_F(frmMainBadInput, AGameThatIsGoneIsReportedWithItsPath) {
    InstallPlatform(nullptr);
    g_cApp->Options().SetShowStartTarvolinDialog(false);
    std::filesystem::remove(game);
    QTest::mouseClick(Control("cmdStart"), Qt::LeftButton);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_TRUE(boxes[0].contains(QtText::ToQt(game))) << boxes[0].toStdString();
    std::filesystem::remove_all(dir.Path() / "game");
    QTest::mouseClick(Control("cmdStart"), Qt::LeftButton);
    InstallPlatform(&platform);
    ASSERT_EQ(reports.size(), 1);
    EXPECT_TRUE(reports[0].contains("(20006)")) << reports[0].toStdString();
    EXPECT_EQ(Active().TarvolinPath(), game);
}

// A setting is read through a buffer of 255 characters: a game path of 254 is kept whole across a restart
// and started.
TEST_F(frmMainBadInput, TheLongestPathASettingHoldsIsKeptAndStarted) {
    const std::string base = platform::TextOf(dir.Path() / "g");
    const std::size_t fill = 254 - (base + "/" + "/tarvolin.exe").size();
    const std::filesystem::path folder =
        dir.Path() / ("g" + std::string(fill / 2, 'a')) / std::string(fill - fill / 2, 'b');
    const StandInGame stand(folder);
    ASSERT_EQ(stand.Path().size(), 254u);
    Control<ucPath>("txtTarvolinPath")->SetText(QtText::ToQt(stand.Path()));
    window = [](QDialog& shown) { Find(shown, "Command1")->click(); };
    buttons = {QMessageBox::Yes};
    ASSERT_TRUE(main->close());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    main = Main();
    ASSERT_NE(main, nullptr);
    EXPECT_EQ(Active().TarvolinPath(), stand.Path());
    InstallPlatform(nullptr);
    g_cApp->Options().SetShowStartTarvolinDialog(false);
    QTest::mouseClick(Control("cmdStart"), Qt::LeftButton);
    const auto record = stand.WaitForRecord();
    InstallPlatform(&platform);
    ASSERT_TRUE(record);
    EXPECT_EQ(record->directory, platform::TextOf(folder));
}

// 40000 is no 16-bit number: Start reports the overflow and the field keeps what was typed.
TEST_F(frmMainBadInput, AResolutionBeyondAnyScreenIsReportedAndKept) {
    main->ucTab1_Click(2);
    Type("txtRes_Width", "40000");
    EXPECT_TRUE(Control<QRadioButton>("opResolution_1")->isChecked());
    QTest::mouseClick(Control("cmdStart"), Qt::LeftButton);
    ASSERT_EQ(reports.size(), 1);
    EXPECT_TRUE(reports[0].contains("Overflow\n\nErr.-Number: 6 (6)")) << reports[0].toStdString();
    EXPECT_TRUE(reports[0].contains("frmMain.cmdStart_Click\nfrmMain.RefreshProfileData\n"));
    EXPECT_EQ(Control<QLineEdit>("txtRes_Width")->text(), "40000");
    EXPECT_TRUE(platform.calls.empty());
}

}  // namespace
