// From a click on Start to the game's process, with the start confirmation off: the main window writes its
// controls into the active profile, checks them, compares the two command lines and starts the game as a
// detached process. The click returns once that process has executed the game, so its time is the time to
// the game's process. The game is a copy of /bin/true in a folder with the profile's scenario and pak.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "BenchFolder.h"
#include "app/Application.h"
#include "app/PublicObjects.h"
#include "platform/posix/PosixPlatform.h"
#include "ui/Main.h"
#include "ui/QtUserInterface.h"
#include "ui/dialogs/ModalDialog.h"
#include "ui/main/frmMain.h"

namespace fs = std::filesystem;

namespace {

// Starts programs as the launcher does; the program folder is the benchmark's.
class LaunchPlatform : public PosixPlatform {
public:
    explicit LaunchPlatform(std::string folder) : m_folder(std::move(folder)) {}
    std::string ProgramDirectory() override { return m_folder; }

private:
    std::string m_folder;
};

class GameFolder : public TempFolder {
public:
    GameFolder() : TempFolder("pavonel-launch-bench") {
        fs::create_directories(Path() / "Scenarios" / "grand tour");
        std::ofstream(Path() / "pak128.pak").put('p');
        fs::copy_file("/bin/true", Path() / "tarvolin.exe");
    }
};

void BM_StartClickToGameProcess(benchmark::State& state) {
    static int argc = 1;
    static char name[] = "pavonel_launch_bench";
    static char* argv[] = {name, nullptr};
    QApplication application(argc, argv);
    BenchFolder folder(10);
    const GameFolder game;
    folder.PointAt(game.Path());
    LaunchPlatform platform(folder.Path().string());
    QtUserInterface ui;
    InstallPlatform(&platform);
    InstallUserInterface(&ui);
    // A window that would wait for an answer ends the benchmark with what it says.
    std::string shown;
    InstallModalRunner([&shown](QDialog& dialog) {
        const auto* note = dialog.findChild<QPlainTextEdit*>();
        shown = (note != nullptr ? note->toPlainText() : dialog.windowTitle()).toStdString();
        dialog.reject();
    });
    frmMain* window = Main();
    if (window == nullptr) {
        state.SkipWithError("the program did not start");
        return;
    }
    g_cApp->Options().SetShowStartTarvolinDialog(false);
    // The scenario as the list offers it here (the settings file spells it the Windows way).
    window->findChild<QComboBox*>(QStringLiteral("txtScenario"))
        ->setEditText(QStringLiteral("scenarios/grand tour"));
    auto* start = window->findChild<QPushButton*>(QStringLiteral("cmdStart"));
    const std::string gamePath = (game.Path() / "tarvolin.exe").string();
    if (Os().ShellExec(0, "open", gamePath, "", game.Path().string(), kSwShowNormal) != kShellExecOk) {
        state.SkipWithError("the game cannot be started here");
    } else {
        for (auto _ : state) {
            start->click();
            if (!shown.empty()) {
                state.SkipWithError(shown.c_str());
                break;
            }
        }
    }
    InstallModalRunner(nullptr);
    delete window;
    InstallUserInterface(nullptr);
}
BENCHMARK(BM_StartClickToGameProcess)->Unit(benchmark::kMillisecond)->Iterations(100);

}  // namespace

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
