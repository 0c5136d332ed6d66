#include "app/mCommonDialog.h"

#include <gtest/gtest.h>

#include "error/mError.h"
#include "support/AppFixture.h"
#include "support/FailureMatchers.h"
#include "support/Portable.h"

namespace {

class mCommonDialogTest : public AppFixture {
protected:
    void Answer(OpenFileAnswer::Outcome outcome, std::vector<std::string> files = {}, int32_t code = 0) {
        ui.fileAnswers.push_back(OpenFileAnswer{outcome, std::move(files), false, code});
    }

    OpenFileOptions options = Proposal();
    std::string title = "untouched";

private:
    static OpenFileOptions Proposal() {
        OpenFileOptions proposal;
        proposal.fileName = "/games/tarvolin.exe";
        proposal.filter = "Programs (*.exe)|*.exe";
        proposal.defaultExtension = ".exe";
        return proposal;
    }
};

// The chooser gets every option; the chosen file becomes the name and the title, and the read-only box's
// state comes back.
TEST_F(mCommonDialogTest, ChosenFileBecomesNameAndTitle) {
    options.title = "Select Tarvolin";
    const std::string chosen = Native("/opt/tarvolin/bin/tarvolin.exe");
    ui.fileAnswers.push_back(OpenFileAnswer{OpenFileAnswer::Outcome::kChosen, {chosen}, true, 0});
    EXPECT_EQ(mCommonDialog::ShowOpen(options, title, true), chosen);
    ASSERT_EQ(ui.fileRequests.size(), 1u);
    EXPECT_EQ(ui.fileRequests[0].fileName + "|" + ui.fileRequests[0].filter + "|" + ui.fileRequests[0].title,
              "/games/tarvolin.exe|Programs (*.exe)|*.exe|Select Tarvolin");
    EXPECT_EQ(options.fileName, chosen);
    EXPECT_EQ(title, "tarvolin.exe");
    EXPECT_TRUE(options.readOnlyChecked);
}

TEST_F(mCommonDialogTest, SeveralFilesBecomeFolderAndNulSeparatedNames) {
    options.multiSelect = true;
    Answer(OpenFileAnswer::Outcome::kChosen, {Native("/paks/pak64.pak"), Native("/paks/pak128.pak")});
    const std::string expected = Native(std::string("/paks\0pak64.pak\0pak128.pak", 26));
    EXPECT_EQ(mCommonDialog::ShowOpen(options, title, false), expected);
    EXPECT_EQ(title, "pak64.pak");
    EXPECT_TRUE(ui.fileRequests.at(0).multiSelect);
}

// A cancel keeps the proposed name, and is a failure only when the caller says so.
TEST_F(mCommonDialogTest, CancelKeepsTheNameOrRaises) {
    Answer(OpenFileAnswer::Outcome::kCancelled);
    EXPECT_EQ(mCommonDialog::ShowOpen(options, title, false), "/games/tarvolin.exe");
    EXPECT_EQ(title, "untouched");
    Answer(OpenFileAnswer::Outcome::kCancelled);
    std::optional<Failure> failure = FailureOf([&] { mCommonDialog::ShowOpen(options, title, true); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Description(), "The action has been canceled");
    EXPECT_EQ(failure->Number(), mError::kObjectError | mCommonDialog::kCancelError);
    EXPECT_EQ(TrailOf(*failure), std::vector<std::string>{"mCommonDialog.ShowOpen"});
    EXPECT_EQ(options.fileName, "/games/tarvolin.exe");
}

TEST_F(mCommonDialogTest, ChooserFailureNamesItsCode) {
    Answer(OpenFileAnswer::Outcome::kFailed, {}, 12290);
    std::optional<Failure> failure = FailureOf([&] { mCommonDialog::ShowOpen(options, title, false); });
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->Description(), "An error happened (ID: 12290)");
    EXPECT_EQ(failure->Number(), mError::kObjectError | mCommonDialog::kDialogFailure);
}

TEST_F(mCommonDialogTest, FolderChooserPassesItsArgumentsAndAnswer) {
    EXPECT_EQ(mCommonDialog::BrowseForFolder(-1, "Select a Folder", ""), "");
    ui.folderAnswer = "/home/user/Desktop";
    EXPECT_EQ(mCommonDialog::BrowseForFolder(-1, "Pick", "/home/user"), "/home/user/Desktop");
    EXPECT_EQ(ui.folderRequests, (std::vector<std::string>{"Select a Folder|", "Pick|/home/user"}));
}

}  // namespace
