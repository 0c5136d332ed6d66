// pavonel_win_update_bench [ROUNDS]
// Under Wine, in-process: how long the update window takes to open (made, translated, shown and painted),
// and how long the window's thread is busy at most while a check runs against a server that trickles its
// reply one byte every 100 ms until the check's 10-s limit ends it. Every message dispatched while the check
// runs is timed; the handling of the check's end (which opens the failure's report) is printed apart.
// The program runs from this executable's folder, which holds the language files; its Pavonel.ini there is
// replaced by the benchmark's own.
#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

#include "app/PublicObjects.h"
#include "app/mMain.h"
#include "resource.h"
#include "support/TestHttpServer.h"
#include "update/UpdateFile.h"
#include "winui/Main.h"
#include "winui/Modal.h"
#include "winui/Win32UserInterface.h"
#include "winui/dialogs/frmUpdate.h"
#include "winui/main/frmMain.h"

namespace {

using namespace std::chrono_literals;

double Now() {
    LARGE_INTEGER counter, frequency;
    QueryPerformanceCounter(&counter);
    QueryPerformanceFrequency(&frequency);
    return 1000.0 * static_cast<double>(counter.QuadPart) / static_cast<double>(frequency.QuadPart);
}

std::string Folder() {
    char module[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, module, MAX_PATH);
    std::string folder(module);
    return folder.substr(0, folder.rfind('\\') + 1);
}

struct Busy {
    double longest = 0;  // ms, one message while the check ran
    double end = 0;      // ms, the message that ended it
    double total = 0;    // ms, from the click to the end
};

// Runs the window's messages while `dialog` checks, timing each.
Busy Trickle(frmUpdate& dialog) {
    Busy busy;
    const double start = Now();
    SendDlgItemMessageA(dialog.Handle(), IDC_cmdSearchUpdates, BM_CLICK, 0, 0);
    while (dialog.Searching() && Now() - start < 20000) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 50, QS_ALLINPUT);
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
            const double before = Now();
            const bool searching = dialog.Searching();
            TranslateMessage(&message);
            DispatchMessageA(&message);
            const double took = Now() - before;
            if (searching && !dialog.Searching())
                busy.end = took;
            else if (searching)
                busy.longest = std::max(busy.longest, took);
        }
    }
    busy.total = Now() - start;
    return busy;
}

}  // namespace

int main(int argc, char** argv) {
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 31;
    InitWindowThread();
    Win32UserInterface ui;
    InstallUserInterface(&ui);
    TestHttpServer server;
    server.Serve("/down/pavonel/updates/" + update::FileName(),
                 {.kind = TestHttpServer::Kind::Trickle, .interval = 100ms});
    update::InstallSite(update::Site{"http", "127.0.0.1", server.Port()});

    std::vector<double> opening;
    double openedAt = 0;
    Busy busy;
    ModalRunners runners;
    runners.dialogs = [&](ModalDialog& dialog) {
        if (auto* update = dynamic_cast<frmUpdate*>(&dialog)) {
            ShowWindow(update->Handle(), SW_SHOW);
            UpdateWindow(update->Handle());
            opening.push_back(Now() - openedAt);
            if (static_cast<int>(opening.size()) == rounds)
                busy = Trickle(*update);
        }
        dialog.Dismiss();
    };
    runners.boxes = [](const std::string&, unsigned) { return IDOK; };
    InstallModalRunners(runners);
    // The stand-in game beside this program is the game, so the program starts without asking for one.
    std::ofstream(Folder() + "Pavonel.ini", std::ios::binary)
        << "[PROFILES]\r\nLASTACTIVEPROFILE=PROFILE_DEFAULT\r\n[PROFILE_DEFAULT]\r\nTARVOPATH=" << Folder()
        << "pavonel_standin_game.exe\r\n[OPTIONS]\r\nLANGUAGE=EN\r\n";
    frmMain* main = Main();
    if (main == nullptr)
        return 1;
    for (int round = 0; round < rounds; ++round) {
        openedAt = Now();
        SendMessageA(main->Handle(), WM_COMMAND, IDM_mnuExtra_Update, 0);
    }
    InstallModalRunners({});
    delete main;
    mMain::ClosePublicObjects();
    update::InstallSite(std::nullopt);

    if (opening.empty()) {
        std::fputs("the update window did not open\n", stderr);
        return 1;
    }
    std::sort(opening.begin(), opening.end());
    std::printf("update window opens       %7.1f ms median, %7.1f ms at 90 %%, %7.1f ms longest of %d\n",
                opening[opening.size() / 2], opening[opening.size() * 9 / 10], opening.back(), rounds);
    std::printf("trickling check ends      %7.1f ms after the click\n", busy.total);
    std::printf("longest busy while it ran %7.1f ms\n", busy.longest);
    std::printf("handling of its end       %7.1f ms (opens the failure's report)\n", busy.end);
    return 0;
}
