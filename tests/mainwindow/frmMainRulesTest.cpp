// The main window's rules over the values of its controls, on every OS.
#include "mainwindow/frmMainRules.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "app/PublicObjects.h"
#include "error/mError.h"
#include "support/AppFixture.h"
#include "support/FailureMatchers.h"
#include "support/Portable.h"
#include "translate/cTranslate.h"

namespace {

// A greyed check box is not a checked one; the fields' texts go in as typed.
TEST(frmMainCommandLine, ReadsTheControlsAsTheyAre) {
    MainWindowValues values;
    values.logMessages = 2;
    values.standardResolution = false;
    values.width = "0800";
    values.height = "600";
    EXPECT_EQ(frmMainRules::GetCmdLineParameters(values), "-screensize 0800x600");
    const auto failure = FailureOf([] { frmMainRules::CompareCommandLines("-res 1", "-res 2"); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Number(), 20001 | mError::kObjectError);
    EXPECT_EQ(failure->Description(),
              "Commandline parameters should be: -res 1\r\nCommandline parameters are: -res 2\r\n\r\n"
              "Please contact the author. Thanks.");
    EXPECT_FALSE(FailureOf([] { frmMainRules::CompareCommandLines("-log", "-log"); }));
}

class frmMainCheckData : public AppFixture {
protected:
    frmMainCheckData() {
        std::filesystem::create_directories(dir.Path() / "game" / "scenarios" / "demo");
        values.tarvolinPath = dir.Write("game/tarvolin.exe", "MZ");
        dir.Write("game/pak128.pak", "");
        values.width = "800";
        values.height = "600";
    }

    // The text of the message the check refused with, or "" when it let the values pass.
    std::string Refusal() const {
        const auto failure = FailureOf([&] { frmMainRules::CheckData(values); });
        if (!failure)
            return "";
        EXPECT_EQ(failure->Number(), 20006 | mError::kObjectError);
        EXPECT_EQ(TrailOf(*failure).front(), "frmMain.CheckData");
        return failure->Description();
    }

    static std::string Text(const char* key) { return Translator().TranslateEx("ERROR_MESSAGES", key); }

    MainWindowValues values;
};

TEST_F(frmMainCheckData, ReportsTheFirstFailureOnly) {
    values.scenario = Native("scenarios/demo");
    values.graphicPack = "pak128.pak";
    EXPECT_EQ(Refusal(), "");
    values.height = "";
    EXPECT_EQ(Refusal(), Text("ERR_InvalidUserDefinedResolution"));
    values.height = "600";
    values.width = "6x";
    EXPECT_EQ(Refusal(), Text("ERR_InvalidUserDefinedResolution"));
    values.graphicPack = "pak64.pak";
    EXPECT_EQ(Refusal(), Text("ERR_PathNotFound"));
    values.graphicPack = "";
    values.width = "800";
    values.scenario = "scenarios";
    EXPECT_EQ(Refusal(), "");
    values.scenario = Native("scenarios/gone");
    EXPECT_EQ(Refusal(), Text("ERR_PathNotFound"));
    // A game path without a folder has no game folder, which is reported with the file's message.
    values.scenario = "";
    values.tarvolinPath = "tarvolin.exe";
    EXPECT_EQ(Refusal(), Text("ERR_FileNotFound"));
}

// Only the user-defined mode is corrected, only numbers below the minimum, each field on its own.
TEST(frmMainCorrectInput, RaisesSmallNumbersToTheMinimum) {
    MainWindowValues values;
    values.standardResolution = false;
    values.width = "600";
    values.height = "399.9";
    auto corrected = frmMainRules::CorrectInput(values);
    EXPECT_EQ(corrected.width, "640");
    EXPECT_EQ(corrected.height, "400");
    values.width = "640";
    values.height = "";
    corrected = frmMainRules::CorrectInput(values);
    EXPECT_FALSE(corrected.width || corrected.height);
    values.height = "-5";
    EXPECT_EQ(frmMainRules::CorrectInput(values).height, "400");
    values.standardResolution = true;
    values.width = "600";
    corrected = frmMainRules::CorrectInput(values);
    EXPECT_FALSE(corrected.width || corrected.height);
}

TEST(frmMainRulesTest, SmallRules) {
    EXPECT_TRUE(frmMainRules::IsResolutionKey('5') && frmMainRules::IsResolutionKey(8));
    EXPECT_FALSE(frmMainRules::IsResolutionKey('a') || frmMainRules::IsResolutionKey('-'));
    EXPECT_TRUE(frmMainRules::TypesIntoResolutionField('a') && frmMainRules::TypesIntoResolutionField(8));
    EXPECT_FALSE(frmMainRules::TypesIntoResolutionField('\t') ||
                 frmMainRules::TypesIntoResolutionField(0x7F));
    EXPECT_FALSE(frmMainRules::PreviewFor(0) || frmMainRules::PreviewFor(6));
    const auto window = frmMainRules::PreviewFor(5);
    ASSERT_TRUE(window);
    EXPECT_TRUE(window->width == 0 && window->height == 0 && window->fillArea);
    EXPECT_EQ(frmMainRules::PreviewFor(3)->width, 1024);
    EXPECT_EQ(frmMainRules::LogFilePath(Native("/games/t d/tarvolin.exe")), Native("/games/t d/tarvo.log"));
    EXPECT_EQ(frmMainRules::LogFilePath("tarvolin.exe"), "tarvo.log");
    EXPECT_EQ(frmMainRules::CleanText("  /g/tarvolin.exe\r\n-log \t -res 2 \x7F"),
              "/g/tarvolin.exe -log -res 2");
}

}  // namespace
