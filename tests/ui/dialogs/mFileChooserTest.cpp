#include "ui/dialogs/mFileChooser.h"

#include <gtest/gtest.h>

#include <QFileDialog>

#include "ui/dialogs/UiFixture.h"

namespace {

// A description that already ends in its patterns keeps its text; an empty description or pattern ends the
// list, and a description without a pattern is dropped.
TEST(mFileChooser, FiltersBecomeQtNameFilters) {
    const std::pair<const char*, QStringList> cases[] = {
        {"Programs (*.exe)|*.exe|", {"Programs (*.exe)"}},
        {"Programs|*.exe|All files|*.*", {"Programs (*.exe)", "All files (*.*)"}},
        {"Images|*.png;*.bmp|Scenarios", {"Images (*.png *.bmp)"}},
        {"Paks|*.pak||*.x|Other|*.o", {"Paks (*.pak)"}},
        {"Paks||Other|*.o", {}}};
    for (const auto& [filter, expected] : cases)
        EXPECT_EQ(mFileChooser::NameFilters(filter), expected) << filter;
}

// A folder with the game and two paks, and the game chooser's options. The chooser's accept is protected,
// so answers call it through QDialog, as its Open button does.
class FileChooserTest : public UiFixture {
protected:
    FileChooserTest() {
        std::filesystem::create_directories(dir.Path() / "game");
        std::filesystem::create_directories(dir.Path() / "start");
        for (const char* file : {"game/tarvolin.exe", "game/pak64.pak", "game/pak128.pak"})
            dir.Write(file, "MZ");
        options.fileName = dir.File("game/tarvolin.exe");
        options.fileMustExist = true;
        options.filter = "Programs (*.exe)|*.exe|All files|*";
        options.filterIndex = 2;
        options.title = "Select Tarvolin";
        options.defaultExtension = ".exe";
    }

    // Configures `chooser` from the options, lets `act` answer it, and hands back what it answered.
    OpenFileAnswer Answer(const std::function<void(QDialog&)>& act) {
        mFileChooser::Configure(chooser, options);
        act(chooser);
        return mFileChooser::AnswerOf(chooser, options);
    }

    QString Path(const char* name) const { return QString::fromStdString(dir.File(name)); }

    OpenFileOptions options;
    QFileDialog chooser;
};

// A proposal with a folder starts there, whatever the initial directory.
TEST_F(FileChooserTest, ShowsEveryOptionAndAnswersTheChoice) {
    answer = [&](QDialog& dialog) {
        auto& shown = dynamic_cast<QFileDialog&>(dialog);
        EXPECT_EQ(shown.windowTitle(), "Select Tarvolin");
        EXPECT_EQ(shown.fileMode(), QFileDialog::ExistingFile);
        EXPECT_EQ(shown.defaultSuffix(), "exe");
        EXPECT_EQ(shown.nameFilters(), (QStringList{"Programs (*.exe)", "All files (*)"}));
        EXPECT_EQ(shown.selectedNameFilter(), "All files (*)");
        ASSERT_EQ(shown.directory().absolutePath(), Path("game"));  // else the chooser refuses the name
        ASSERT_EQ(shown.findChild<QLineEdit*>("fileNameEdit")->text(), "tarvolin.exe");
        dialog.accept();
    };
    options.initialDirectory = dir.File("start");
    const OpenFileAnswer answer = Ui().ChooseFileToOpen(options);
    EXPECT_EQ(modalWindows, 1);
    EXPECT_EQ(answer.outcome, OpenFileAnswer::Outcome::kChosen);
    EXPECT_EQ(answer.files, std::vector<std::string>{dir.File("game/tarvolin.exe")});
}

// A filter index beyond the list shows the first filter.
TEST_F(FileChooserTest, ANewNameIsTypedInTheInitialDirectoryAndGetsTheDefaultExtension) {
    options.fileName = "newgame";
    options.fileMustExist = false;
    options.initialDirectory = dir.File("start");
    options.filterIndex = 3;
    const OpenFileAnswer answer = Answer([](QDialog& shown) { shown.accept(); });
    EXPECT_EQ(chooser.fileMode(), QFileDialog::AnyFile);
    EXPECT_EQ(chooser.selectedNameFilter(), "Programs (*.exe)");
    EXPECT_EQ(answer.files, std::vector<std::string>{dir.File("start/newgame.exe")});
}

TEST_F(FileChooserTest, SeveralExistingFilesCanBeChosen) {
    options.fileName = dir.File("game/pak64.pak");
    options.multiSelect = true;
    const OpenFileAnswer answer = Answer([](QDialog& shown) {
        shown.findChild<QLineEdit*>("fileNameEdit")->setText("\"pak64.pak\" \"pak128.pak\"");
        shown.accept();
    });
    EXPECT_EQ(chooser.fileMode(), QFileDialog::ExistingFiles);
    EXPECT_EQ(answer.files,
              (std::vector<std::string>{dir.File("game/pak64.pak"), dir.File("game/pak128.pak")}));
}

// Qt's chooser has no read-only box: the proposal is reported back unchanged, on a cancel too.
TEST_F(FileChooserTest, CancelChoosesNothingAndAReadOnlyProposalIsReportedBack) {
    options.readOnlyChecked = true;
    const OpenFileAnswer answer = Answer([](QDialog& shown) { shown.reject(); });
    EXPECT_TRUE(chooser.testOption(QFileDialog::ReadOnly));
    EXPECT_EQ(answer.outcome, OpenFileAnswer::Outcome::kCancelled);
    EXPECT_TRUE(answer.files.empty());
    EXPECT_TRUE(answer.readOnlyChecked);
}

TEST_F(FileChooserTest, FolderChooserStartsInTheRootAndAnswersTheFolder) {
    answer = [&](QDialog& dialog) {
        auto& shown = dynamic_cast<QFileDialog&>(dialog);
        EXPECT_EQ(shown.windowTitle(), "Select a Folder");
        EXPECT_EQ(shown.directory().absolutePath(), Path("start"));
        EXPECT_TRUE(shown.fileMode() == QFileDialog::Directory &&
                    shown.testOption(QFileDialog::ShowDirsOnly));
        shown.selectFile(Path("game"));
        dialog.accept();
    };
    EXPECT_EQ(Ui().ChooseFolder(-1, "Select a Folder", dir.File("start")), dir.File("game"));
    answer = [](QDialog& dialog) { dialog.reject(); };
    EXPECT_EQ(Ui().ChooseFolder(-1, "Select a Folder", dir.File("start")), "");
    EXPECT_EQ(modalWindows, 2);
}

TEST_F(FileChooserTest, OwnerIsOneOfOurWindowsOrNone) {
    QWidget window;
    EXPECT_EQ(mFileChooser::OwnerWindow(static_cast<int64_t>(window.winId())), &window);
    EXPECT_EQ(mFileChooser::OwnerWindow(-1), nullptr);
}

}  // namespace
