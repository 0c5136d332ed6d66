#include "ui/dialogs/mFileChooser.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>

#include "ui/dialogs/UiFixture.h"

namespace {

// The chooser's accept is protected; a click on its Open button reaches it the same way.
void Accept(QDialog& chooser) {
    chooser.accept();
}

struct FilterCase {
    const char* name;
    const char* filter;
    QStringList expected;
};

class NameFilters : public ::testing::TestWithParam<FilterCase> {};

TEST_P(NameFilters, BecomeQtNameFilters) {
    EXPECT_EQ(mFileChooser::NameFilters(GetParam().filter), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Filters, NameFilters,
    ::testing::Values(
        FilterCase{"DescriptionWithItsPattern", "Programs (*.exe)|*.exe", {"Programs (*.exe)"}},
        FilterCase{
            "PlainDescriptions", "Programs|*.exe|All files|*.*", {"Programs (*.exe)", "All files (*.*)"}},
        FilterCase{"SeveralPatterns", "Images|*.png;*.bmp", {"Images (*.png *.bmp)"}},
        FilterCase{"Empty", "", {}}, FilterCase{"DescriptionOnly", "Programs", {}},
        FilterCase{"UnpairedDescriptionIsDropped", "Paks|*.pak|Scenarios", {"Paks (*.pak)"}},
        FilterCase{"EmptyDescriptionEndsTheList", "Paks|*.pak||*.x|Other|*.o", {"Paks (*.pak)"}},
        FilterCase{"EmptyPatternEndsTheList", "Paks||Other|*.o", {}},
        FilterCase{"TrailingSeparator", "Paks (*.pak)|*.pak|", {"Paks (*.pak)"}}),
    [](const ::testing::TestParamInfo<FilterCase>& info) { return info.param.name; });

class FileChooserTest : public UiFixture {
protected:
    FileChooserTest() {
        std::filesystem::create_directory(dir.Path() / "game");
        dir.Write("game/tarvolin.exe", "MZ");
        dir.Write("game/pak64.pak", "");
        dir.Write("game/pak128.pak", "");
        std::filesystem::create_directory(dir.Path() / "start");
    }

    // Runs the chooser with `options`, lets `answer` act on the dialog, and keeps what the dialog looked
    // like.
    OpenFileAnswer Choose(const OpenFileOptions& options, const std::function<void(QFileDialog&)>& answer) {
        qtUi.answer = [&](QDialog& dialog) {
            auto& chooser = dynamic_cast<QFileDialog&>(dialog);
            seen.title = chooser.windowTitle();
            seen.mode = chooser.fileMode();
            seen.readOnly = chooser.testOption(QFileDialog::ReadOnly);
            seen.suffix = chooser.defaultSuffix();
            seen.filters = chooser.nameFilters();
            seen.selectedFilter = chooser.selectedNameFilter();
            seen.directory = chooser.directory().absolutePath();
            seen.typedName = chooser.findChild<QLineEdit*>("fileNameEdit")->text();
            answer(chooser);
        };
        return Ui().ChooseFileToOpen(options);
    }

    QString Path(const char* name) const { return QString::fromStdString(dir.File(name)); }

    struct Seen {
        QString title;
        QFileDialog::FileMode mode = QFileDialog::AnyFile;
        bool readOnly = false;
        QString suffix;
        QStringList filters;
        QString selectedFilter;
        QString directory;
        QString typedName;
    } seen;
};

OpenFileOptions GameChooser(const std::string& proposal) {
    OpenFileOptions options;
    options.fileName = proposal;
    options.fileMustExist = true;
    options.hideReadOnly = true;
    options.filter = "Programs (*.exe)|*.exe|All files|*";
    options.filterIndex = 2;
    options.title = "Select Tarvolin";
    options.defaultExtension = ".exe";
    return options;
}

TEST_F(FileChooserTest, ShowsEveryOptionAndAnswersTheChoice) {
    const OpenFileAnswer answer =
        Choose(GameChooser(dir.File("game/tarvolin.exe")), [](QFileDialog& chooser) { Accept(chooser); });
    EXPECT_EQ(seen.title, "Select Tarvolin");
    EXPECT_EQ(seen.mode, QFileDialog::ExistingFile);
    EXPECT_FALSE(seen.readOnly);
    EXPECT_EQ(seen.suffix, "exe");
    EXPECT_EQ(seen.filters, (QStringList{"Programs (*.exe)", "All files (*)"}));
    EXPECT_EQ(seen.selectedFilter, "All files (*)");
    EXPECT_EQ(seen.directory, Path("game"));
    EXPECT_EQ(seen.typedName, "tarvolin.exe");
    EXPECT_EQ(answer.outcome, OpenFileAnswer::Outcome::kChosen);
    EXPECT_EQ(answer.files, std::vector<std::string>{dir.File("game/tarvolin.exe")});
}

TEST_F(FileChooserTest, TypedNameGetsTheDefaultExtension) {
    OpenFileOptions options = GameChooser("");
    options.fileMustExist = false;
    options.initialDirectory = dir.File("game");
    const OpenFileAnswer answer = Choose(options, [](QFileDialog& chooser) {
        chooser.selectFile("newgame");
        Accept(chooser);
    });
    EXPECT_EQ(seen.mode, QFileDialog::AnyFile);
    EXPECT_EQ(seen.directory, Path("game"));
    EXPECT_EQ(answer.files, std::vector<std::string>{dir.File("game/newgame.exe")});
}

TEST_F(FileChooserTest, ProposalWithoutFolderStartsInTheInitialDirectory) {
    OpenFileOptions options = GameChooser("tarvolin.exe");
    options.initialDirectory = dir.File("start");
    Choose(options, [](QFileDialog&) {});
    EXPECT_EQ(seen.directory, Path("start"));
    EXPECT_EQ(seen.typedName, "tarvolin.exe");
}

TEST_F(FileChooserTest, FilterIndexOutOfRangeShowsTheFirstFilter) {
    for (int32_t index : {0, 3, -1}) {
        OpenFileOptions options = GameChooser("");
        options.filterIndex = index;
        Choose(options, [](QFileDialog&) {});
        EXPECT_EQ(seen.selectedFilter, "Programs (*.exe)") << index;
    }
}

TEST_F(FileChooserTest, SeveralExistingFilesCanBeChosen) {
    OpenFileOptions options = GameChooser(dir.File("game/pak64.pak"));
    options.multiSelect = true;
    options.filter = "Paks|*.pak";
    const OpenFileAnswer answer = Choose(options, [](QFileDialog& chooser) {
        chooser.findChild<QLineEdit*>("fileNameEdit")->setText("\"pak64.pak\" \"pak128.pak\"");
        Accept(chooser);
    });
    EXPECT_EQ(seen.mode, QFileDialog::ExistingFiles);
    EXPECT_EQ(answer.files,
              (std::vector<std::string>{dir.File("game/pak64.pak"), dir.File("game/pak128.pak")}));
}

TEST_F(FileChooserTest, ReadOnlyProposalIsReportedBack) {
    OpenFileOptions options = GameChooser(dir.File("game/tarvolin.exe"));
    options.readOnlyChecked = true;
    options.hideReadOnly = false;
    const OpenFileAnswer answer = Choose(options, [](QFileDialog& chooser) { Accept(chooser); });
    EXPECT_TRUE(seen.readOnly);
    EXPECT_TRUE(answer.readOnlyChecked);
}

TEST_F(FileChooserTest, CancelChoosesNothing) {
    const OpenFileAnswer answer =
        Choose(GameChooser(dir.File("game/tarvolin.exe")), [](QFileDialog& chooser) { chooser.reject(); });
    EXPECT_EQ(answer.outcome, OpenFileAnswer::Outcome::kCancelled);
    EXPECT_TRUE(answer.files.empty());
}

TEST_F(FileChooserTest, FolderChooserStartsInTheRootAndAnswersTheFolder) {
    QString shownTitle;
    QString startedIn;
    bool dirsOnly = false;
    qtUi.answer = [&](QDialog& dialog) {
        auto& chooser = dynamic_cast<QFileDialog&>(dialog);
        shownTitle = chooser.windowTitle();
        startedIn = chooser.directory().absolutePath();
        dirsOnly =
            chooser.fileMode() == QFileDialog::Directory && chooser.testOption(QFileDialog::ShowDirsOnly);
        chooser.selectFile(Path("game"));
        Accept(chooser);
    };
    EXPECT_EQ(Ui().ChooseFolder(-1, "Select a Folder", dir.File("start")), dir.File("game"));
    EXPECT_EQ(shownTitle, "Select a Folder");
    EXPECT_EQ(startedIn, Path("start"));
    EXPECT_TRUE(dirsOnly);
    qtUi.answer = [](QDialog& dialog) { dialog.reject(); };
    EXPECT_EQ(Ui().ChooseFolder(-1, "Select a Folder", dir.File("start")), "");
}

TEST_F(FileChooserTest, OwnerIsOneOfOurWindowsOrNone) {
    QWidget window;
    EXPECT_EQ(mFileChooser::OwnerWindow(static_cast<int64_t>(window.winId())), &window);
    EXPECT_EQ(mFileChooser::OwnerWindow(-1), nullptr);
}

}  // namespace
