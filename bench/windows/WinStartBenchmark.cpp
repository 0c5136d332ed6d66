// pavonel_win_start_bench [ROUNDS]
// Under Wine: the cold start of pavonel.exe until its window has painted and waits for input, with 10 and
// with 1,000 profiles, against the bare window of five tabs (pavonel_bare_window.exe), in turns; then the
// time from a click on the start button to the game's process, with the confirmation off. Prints medians,
// the ratios to the bare window, and the size of pavonel.exe. Each program runs from a folder of its own.
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "resource.h"

namespace fs = std::filesystem;

namespace {

double Now() {
    LARGE_INTEGER counter, frequency;
    QueryPerformanceCounter(&counter);
    QueryPerformanceFrequency(&frequency);
    return 1000.0 * static_cast<double>(counter.QuadPart) / static_cast<double>(frequency.QuadPart);
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values.empty() ? 0.0 : values[values.size() / 2];
}

fs::path Bin() {
    char module[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, module, MAX_PATH);
    return fs::path(module).parent_path();
}

// A program folder: `program` beside the language files, a game (the stand-in), and a settings file with
// the standard profile and `profiles` more, the start confirmation off.
fs::path Folder(const std::string& name, const std::string& program, int profiles) {
    const fs::path folder =
        fs::temp_directory_path() / ("pavonel-bench-" + std::to_string(GetCurrentProcessId()) + "-" + name);
    fs::create_directories(folder / "game");
    fs::copy_file(Bin() / program, folder / program, fs::copy_options::overwrite_existing);
    fs::copy(Bin() / "config", folder / "config",
             fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    fs::copy_file(Bin() / "pavonel_standin_game.exe", folder / "game" / "tarvolin.exe",
                  fs::copy_options::overwrite_existing);
    const std::string game = (folder / "game" / "tarvolin.exe").string();
    std::ofstream ini(folder / "Pavonel.ini", std::ios::binary);
    ini << "[PROFILES]\r\nLASTACTIVEPROFILE=PROFILE_DEFAULT\r\n[OPTIONS]\r\nSTARTTARVOLINDIALOG=0\r\n"
        << "[PROFILE_DEFAULT]\r\nTARVOPATH=" << game << "\r\nDESCRIPTION=Standard\r\n";
    for (int i = 0; i < profiles; ++i)
        ini << "[profile_Trip " << i << "]\r\nTARVOPATH=" << game << "\r\nREFRESH=2\r\nDESCRIPTION=Trip " << i
            << "\r\n";
    return folder;
}

// Removes a benchmark folder. A game started from it may still be closing, so this tries for a while.
void Remove(const fs::path& folder) {
    std::error_code error;
    for (int attempt = 0; attempt < 50 && fs::remove_all(folder, error) == static_cast<std::uintmax_t>(-1);
         ++attempt)
        Sleep(100);
    if (error)
        std::fprintf(stderr, "could not remove %s: %s\n", folder.string().c_str(), error.message().c_str());
}

struct Started {
    PROCESS_INFORMATION process{};
    double milliseconds = 0;
};

// Starts `program` in `folder` and waits until its window has painted and it waits for input.
Started Start(const fs::path& folder, const std::string& program) {
    Started started;
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    std::string command = "\"" + (folder / program).string() + "\"";
    const double begin = Now();
    if (!CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, folder.string().c_str(),
                        &startup, &started.process))
        return started;
    WaitForInputIdle(started.process.hProcess, 30000);
    started.milliseconds = Now() - begin;
    return started;
}

void End(Started& started) {
    TerminateProcess(started.process.hProcess, 0);
    WaitForSingleObject(started.process.hProcess, 10000);
    CloseHandle(started.process.hProcess);
    CloseHandle(started.process.hThread);
}

// The visible top-level window of process `id`.
HWND WindowOf(DWORD id) {
    std::pair<DWORD, HWND> search{id, nullptr};
    EnumWindows(
        [](HWND window, LPARAM data) -> BOOL {
            auto* found = reinterpret_cast<std::pair<DWORD, HWND>*>(data);
            DWORD owner = 0;
            GetWindowThreadProcessId(window, &owner);
            if (owner != found->first || !IsWindowVisible(window))
                return TRUE;
            found->second = window;
            return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.second;
}

// A click on the start button, measured until the handler returns: the game's process exists by then.
double StartButtonToGame(int rounds) {
    const fs::path folder = Folder("start", "pavonel.exe", 0);
    Started program = Start(folder, "pavonel.exe");
    const HWND window = WindowOf(program.process.dwProcessId);
    std::vector<double> times;
    for (int i = 0; window != nullptr && i < rounds; ++i) {
        const double begin = Now();
        SendMessageA(window, WM_COMMAND, MAKEWPARAM(IDC_cmdStart, BN_CLICKED),
                     reinterpret_cast<LPARAM>(GetDlgItem(window, IDC_cmdStart)));
        times.push_back(Now() - begin);
        Sleep(200);
    }
    End(program);
    Remove(folder);
    return Median(times);
}

}  // namespace

int main(int argc, char** argv) {
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 31;
    struct Row {
        const char* label;
        std::string program;
        fs::path folder;
        std::vector<double> times;
    };
    std::vector<Row> rows = {
        {"bare window", "pavonel_bare_window.exe", Folder("bare", "pavonel_bare_window.exe", 0), {}},
        {"10 profiles", "pavonel.exe", Folder("10", "pavonel.exe", 10), {}},
        {"1,000 profiles", "pavonel.exe", Folder("1000", "pavonel.exe", 1000), {}}};
    for (Row& row : rows) {  // once each, so that no row pays for the first start of the runtime
        Started warm = Start(row.folder, row.program);
        End(warm);
    }
    for (int round = 0; round < rounds; ++round) {
        for (Row& row : rows) {
            Started started = Start(row.folder, row.program);
            row.times.push_back(started.milliseconds);
            End(started);
        }
    }
    const double bare = Median(rows[0].times);
    for (Row& row : rows) {
        std::printf("%-16s %8.1f ms  %5.2fx\n", row.label, Median(row.times), Median(row.times) / bare);
        Remove(row.folder);
    }
    std::printf("%-16s %8.1f ms\n", "start to game", StartButtonToGame(rounds));
    std::printf("%-16s %8ju bytes\n", "pavonel.exe",
                static_cast<std::uintmax_t>(fs::file_size(Bin() / "pavonel.exe")));
    return 0;
}
