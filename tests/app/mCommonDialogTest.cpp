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
        OpenFileAnswer answer;
        answer.outcome = outcome;
        answer.files = std::move(files);
        answer.errorCode = code;
        ui.fileAnswers.push_back(answer);
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

TEST_F(mCommonDialogTest, HandsEveryOptionToTheChooser) {
    options.multiSelect = true;
    options.title = "Select Tarvolin";
    mCommonDialog::ShowOpen(options, title, false);
    ASSERT_EQ(ui.fileRequests.size(), 1u);
    EXPECT_EQ(ui.fileRequests[0].fileName, "/games/tarvolin.exe");
    EXPECT_EQ(ui.fileRequests[0].filter, "Programs (*.exe)|*.exe");
    EXPECT_EQ(ui.fileRequests[0].title, "Select Tarvolin");
    EXPECT_TRUE(ui.fileRequests[0].multiSelect);
}

TEST_F(mCommonDialogTest, ChosenFileBecomesNameAndTitle) {
    const std::string chosen = Native("/opt/tarvolin/bin/tarvolin.exe");
    Answer(OpenFileAnswer::Outcome::kChosen, {chosen});
    EXPECT_EQ(mCommonDialog::ShowOpen(options, title, true), chosen);
    EXPECT_EQ(options.fileName, chosen);
    EXPECT_EQ(title, "tarvolin.exe");
}

TEST_F(mCommonDialogTest, SeveralFilesBecomeFolderAndNulSeparatedNames) {
    options.multiSelect = true;
    Answer(OpenFileAnswer::Outcome::kChosen, {Native("/paks/pak64.pak"), Native("/paks/pak128.pak")});
    const std::string expected = Native(std::string("/paks\0pak64.pak\0pak128.pak", 26));
    EXPECT_EQ(mCommonDialog::ShowOpen(options, title, false), expected);
    EXPECT_EQ(title, "pak64.pak");
}

TEST_F(mCommonDialogTest, ReadOnlyBoxStateComesBack) {
    OpenFileAnswer answer{OpenFileAnswer::Outcome::kChosen, {"/a/b.txt"}, true, 0};
    ui.fileAnswers.push_back(answer);
    mCommonDialog::ShowOpen(options, title, false);
    EXPECT_TRUE(options.readOnlyChecked);
}

TEST_F(mCommonDialogTest, CancelKeepsTheProposedNameWhenItIsNoFailure) {
    Answer(OpenFileAnswer::Outcome::kCancelled);
    EXPECT_EQ(mCommonDialog::ShowOpen(options, title, false), "/games/tarvolin.exe");
    EXPECT_EQ(options.fileName, "/games/tarvolin.exe");
    EXPECT_EQ(title, "untouched");
}

TEST_F(mCommonDialogTest, CancelRaisesWhenItIsAFailure) {
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
