// A cold start of the program, from the process's start to the main window's first paint, and its peak
// memory, side by side with a bare Qt window of five tabbed pages built the same way; both on the offscreen
// platform, each start a process of its own. Also: a start with a game folder of 10,000 graphic paks and
// 1,000 scenarios, and all of them side by side in turns.
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "BenchFolder.h"
#include "ui/Main.h"
#include "ui/QtUserInterface.h"
#include "ui/main/frmMain.h"

namespace fs = std::filesystem;

namespace {

std::string g_self;

// Ends the child at its window's first paint, reporting its peak memory in KiB on the standard output.
class FirstPaint : public QObject {
protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            rusage usage{};
            getrusage(RUSAGE_SELF, &usage);
            std::printf("%ld\n", usage.ru_maxrss);
            std::fflush(stdout);
            _exit(0);
        }
        return false;
    }
};

QWidget* BarePage() {
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(new QLabel(QStringLiteral("Tarvolin program file (tarvolin.exe):")));
    layout->addWidget(new QLineEdit(QStringLiteral("/games/Tarvolin/tarvolin.exe")));
    layout->addWidget(new QCheckBox(QStringLiteral("Write log file")));
    auto* list = new QListWidget;
    list->addItems({QStringLiteral("640 x 480"), QStringLiteral("800 x 600"), QStringLiteral("1024 x 768")});
    layout->addWidget(list);
    return page;
}

int RunChild(const std::string& mode, const std::string& folder) {
    static int argc = 1;
    static char* argv[] = {g_self.data(), nullptr};
    QApplication application(argc, argv);
    FirstPaint firstPaint;
    if (mode == "bare") {
        auto* window = new QMainWindow;
        for (const char* menu : {"&File", "&Profiles", "&Edit", "E&xtras", "&Help"})
            window->menuBar()->addMenu(QString::fromLatin1(menu))->addAction(QStringLiteral("Item"));
        auto* tabs = new QTabWidget;
        for (int i = 0; i < frmMain::kTabCount; ++i)
            tabs->addTab(BarePage(), QStringLiteral("Page %1").arg(i));
        window->setCentralWidget(tabs);
        window->installEventFilter(&firstPaint);
        window->show();
    } else {
        static const std::unique_ptr<Platform> platform = BenchFolder::PlatformAt(folder);
        static QtUserInterface ui;
        InstallPlatform(platform.get());
        InstallUserInterface(&ui);
        frmMain* window = Main();
        if (window == nullptr)
            return 1;
        window->installEventFilter(&firstPaint);
    }
    return application.exec();
}

// Starts `mode` in a process of its own; the time to its first paint in seconds and its peak memory in
// MiB, or a negative time when it failed.
std::pair<double, double> Start(const std::string& mode, const std::string& folder) {
    int out[2];
    if (pipe(out) != 0)
        return {-1, 0};
    const auto begin = std::chrono::steady_clock::now();
    const pid_t pid = fork();
    if (pid == 0) {
        dup2(out[1], STDOUT_FILENO);
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        execl(g_self.c_str(), g_self.c_str(), "--child", mode.c_str(), folder.c_str(), nullptr);
        _exit(127);
    }
    close(out[1]);
    char buffer[64] = {};
    const ssize_t got = read(out[0], buffer, sizeof buffer - 1);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    close(out[0]);
    int status = 0;
    waitpid(pid, &status, 0);
    return {got > 0 ? seconds : -1, std::atof(buffer) / 1024.0};
}

void Measure(benchmark::State& state, const std::string& mode, const std::string& folder) {
    double memory = 0;
    for (auto _ : state) {
        const auto [seconds, mebibytes] = Start(mode, folder);
        if (seconds < 0) {
            state.SkipWithError("the window did not paint");
            return;
        }
        state.SetIterationTime(seconds);
        memory = std::max(memory, mebibytes);
    }
    state.counters["peak_MiB"] = memory;
}

void BM_BareWindow(benchmark::State& state) {
    Measure(state, "bare", "");
}
BENCHMARK(BM_BareWindow)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);

void BM_Pavonel(benchmark::State& state) {
    static BenchFolder ten(10);
    static BenchFolder thousand(1000);
    Measure(state, "main", (state.range(0) == 10 ? ten : thousand).Path().string());
}
BENCHMARK(BM_Pavonel)->Arg(10)->Arg(1000)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(20);

// A game folder of 10,000 graphic paks and 1,000 scenario folders, removed when the benchmarks end.
class BigGameFolder : public TempFolder {
public:
    BigGameFolder() : TempFolder("pavonel-bench-game") {
        for (int i = 0; i < 1000; ++i)
            fs::create_directories(Path() / "Scenarios" / ("scenario " + std::to_string(i)));
        for (int i = 0; i < 10000; ++i)
            std::ofstream(Path() / ("pak" + std::to_string(i) + ".pak")).put('p');
        std::ofstream(Path() / "tarvolin.exe") << "MZ";
    }
};

// A program folder of 10 profiles whose games are in that folder.
const std::string& BigGameProgramFolder() {
    static BenchFolder folder(10);
    static const BigGameFolder game;
    [[maybe_unused]] static const bool pointed = (folder.PointAt(game.Path()), true);
    static const std::string path = folder.Path().string();
    return path;
}

void BM_PavonelBigGameFolder(benchmark::State& state) {
    Measure(state, "main", BigGameProgramFolder());
}
BENCHMARK(BM_PavonelBigGameFolder)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// The four starts in turns, so that a machine that speeds up or slows down during the run moves all of
// them alike: each row's median time over the bare window's, and its peak memory above the bare window's.
void BM_SideBySide(benchmark::State& state) {
    static BenchFolder ten(10);
    static BenchFolder thousand(1000);
    const std::pair<const char*, std::string> rows[] = {{"bare", ""},
                                                        {"10", ten.Path().string()},
                                                        {"1000", thousand.Path().string()},
                                                        {"big", BigGameProgramFolder()}};
    std::vector<std::vector<double>> times(std::size(rows));
    std::vector<double> memory(std::size(rows), 0.0);
    for (auto _ : state) {
        for (std::size_t row = 0; row < std::size(rows); ++row) {
            const auto [seconds, mebibytes] = Start(row == 0 ? "bare" : "main", rows[row].second);
            if (seconds < 0) {
                state.SkipWithError("a window did not paint");
                return;
            }
            times[row].push_back(seconds);
            memory[row] = std::max(memory[row], mebibytes);
        }
        state.SetIterationTime(times[0].back());
    }
    state.counters["bare_ms"] = Median(times[0]) * 1000;
    for (std::size_t row = 1; row < std::size(rows); ++row) {
        state.counters[std::string("x_") + rows[row].first] = Median(times[row]) / Median(times[0]);
        state.counters[std::string("MiB+_") + rows[row].first] = memory[row] - memory[0];
    }
}
BENCHMARK(BM_SideBySide)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(30);

}  // namespace

int main(int argc, char** argv) {
    g_self = fs::canonical("/proc/self/exe").string();
    if (argc == 4 && std::strcmp(argv[1], "--child") == 0)
        return RunChild(argv[2], argv[3]);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
