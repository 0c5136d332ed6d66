// pavonel_win_screenshots OUTPUT_DIR [SUFFIX]
// Starts the Windows program in-process from its own folder (which holds the language files, a settings
// file and a demo game, see scripts/screenshots), shows each window in English and in German and saves
// what the screen shows of it as OUTPUT_DIR\<name>_<language><SUFFIX>.png. Runs under Wine on a display.
#include <windows.h>

#include <objidl.h>

#include <algorithm>
namespace Gdiplus {
using std::max;
using std::min;
}  // namespace Gdiplus
#include <commctrl.h>
#include <gdiplus.h>
#include <objbase.h>

#include <cstdio>
#include <fstream>
#include <functional>
#include <string>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/mMain.h"
#include "profiles/Profile.h"
#include "resource.h"
#include "support/TestHttpServer.h"
#include "update/UpdateFile.h"
#include "winui/Main.h"
#include "winui/Modal.h"
#include "winui/Win32UserInterface.h"
#include "winui/WinText.h"
#include "winui/dialogs/frmEditProfile.h"
#include "winui/dialogs/frmInfo.h"
#include "winui/dialogs/frmProfiles.h"
#include "winui/dialogs/frmUpdate.h"
#include "winui/main/frmMain.h"
#include "winui/shortcuts/frmCreateTarvolinShortcut_New.h"

namespace {

std::string g_output;
std::string g_name;  // "_EN" and the suffix: what follows a picture's name
int g_saved = 0;

void Pump(DWORD milliseconds) {
    const DWORD end = GetTickCount() + milliseconds;
    while (GetTickCount() < end) {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
        Sleep(10);
    }
}

CLSID PngEncoder() {
    UINT count = 0, size = 0;
    Gdiplus::GetImageEncodersSize(&count, &size);
    std::string buffer(size, '\0');
    auto* encoders = reinterpret_cast<Gdiplus::ImageCodecInfo*>(buffer.data());
    Gdiplus::GetImageEncoders(count, size, encoders);
    for (UINT i = 0; i < count; ++i)
        if (std::wstring(encoders[i].MimeType) == L"image/png")
            return encoders[i].Clsid;
    return {};
}

// Shows `window` on top, lets it paint, and saves what the screen shows of it.
void Grab(HWND window, const std::string& name) {
    SetWindowPos(window, HWND_TOP, 16, 16, 0, 0, SWP_NOSIZE | SWP_SHOWWINDOW);
    RedrawWindow(window, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
    Pump(400);
    RECT box{};
    GetWindowRect(window, &box);
    const int width = box.right - box.left;
    const int height = box.bottom - box.top;
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP picture = CreateCompatibleBitmap(screen, width, height);
    HGDIOBJ old = SelectObject(memory, picture);
    BitBlt(memory, 0, 0, width, height, screen, box.left, box.top, SRCCOPY);
    SelectObject(memory, old);
    const CLSID png = PngEncoder();
    const std::wstring file = WinText::Wide(g_output + "\\" + name + g_name + ".png");
    Gdiplus::Bitmap image(picture, nullptr);
    if (image.Save(file.c_str(), &png, nullptr) == Gdiplus::Ok)
        ++g_saved;
    else
        std::fprintf(stderr, "cannot write %s\n", WinText::Narrow(file).c_str());
    DeleteObject(picture);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
}

// The settings file of the scenes: two profiles on the demo game beside this program, in `language`.
void WriteSettings(const std::string& folder, const std::string& language) {
    std::ofstream(folder + "Pavonel.ini", std::ios::binary)
        << "[PROFILES]\r\nLASTACTIVEPROFILE=PROFILE_DEFAULT\r\n[PROFILE_DEFAULT]\r\nTARVOPATH=" << folder
        << "game\\tarvolin.exe\r\nGRAPICPAK=pak128.pak\r\nDESCRIPTION=Demo: a stand-in game\r\n"
        << "[profile_Alpine]\r\nTARVOPATH=" << folder
        << "game\\tarvolin.exe\r\nSCENARIO=scenarios\\Alpine Loop\r\nDESCRIPTION=Mountain lines\r\n"
        << "[OPTIONS]\r\nLANGUAGE=" << language << "\r\n";
}

// Every modal window a scene opens is grabbed and closed, unconfirmed.
void GrabModal(ModalDialog& dialog, const char* name) {
    Grab(dialog.Handle(), name);
    dialog.Dismiss();
}

// The update window while a check runs (against a server that never answers) and after one found an update.
void GrabUpdate(frmUpdate& dialog) {
    TestHttpServer server;
    update::InstallSite(update::Site{"http", "127.0.0.1", server.Port()});
    const std::string file = "/down/pavonel/updates/" + update::FileName();
    const auto check = [&](const TestHttpServer::Route& reply) {
        server.Serve(file, reply);
        SendDlgItemMessageA(dialog.Handle(), IDC_cmdSearchUpdates, BM_CLICK, 0, 0);
        for (int waited = 0; dialog.Searching() && waited < 5000; waited += 50)
            Pump(50);
    };
    server.Serve(file, TestHttpServer::Behaving(TestHttpServer::Kind::Silent));
    SendDlgItemMessageA(dialog.Handle(), IDC_cmdSearchUpdates, BM_CLICK, 0, 0);
    Grab(dialog.Handle(), "frmUpdate_Searching");
    SendDlgItemMessageA(dialog.Handle(), IDC_cmdSearchUpdates, BM_CLICK, 0, 0);
    check(
        TestHttpServer::Ok("true\n/download/pavonel-0.2.0.html\nVersion 0.2.0 starts twice as fast.\r\n"
                           "It knows the game's new scenarios.\r\n"));
    Grab(dialog.Handle(), "frmUpdate_Found");
    update::InstallSite(std::nullopt);
    dialog.Dismiss();
}

void RenderLanguage(const std::string& folder, const std::string& language) {
    WriteSettings(folder, language);
    frmMain* main = Main();
    if (main == nullptr)
        return;
    for (int page = 0; page < frmMain::kTabCount; ++page) {
        main->ucTab1_Click(page);
        Grab(main->Handle(), "frmMain_" + std::to_string(page));
    }
    const std::pair<int, const char*> windows[] = {{IDD_frmError, "frmError"},
                                                   {IDD_frmStartingTarvolin, "frmStartingTarvolin"},
                                                   {IDD_frmEditProfile, "frmEditProfile"},
                                                   {IDD_frmLoadProfile, "frmLoadProfile"},
                                                   {IDD_frmSave, "frmSave"},
                                                   {IDD_frmProfiles, "frmProfiles"},
                                                   {IDD_frmOptions, "frmOptions"}};
    ModalRunners runners;
    runners.dialogs = [&windows](ModalDialog& dialog) {
        if (auto* about = dynamic_cast<frmInfo*>(&dialog)) {
            for (int page : {0, 2}) {
                about->ucTab1_Click(page);
                Grab(about->Handle(), "frmInfo_" + std::to_string(page));
            }
            about->Dismiss();
        }
        if (auto* wizard = dynamic_cast<frmCreateTarvolinShortcut_New*>(&dialog)) {
            for (int16_t page = 1; page <= ShortcutWizard::kPages; ++page) {
                wizard->ShowPage(page);
                Grab(wizard->Handle(), "frmCreateTarvolinShortcut_New_" + std::to_string(page));
            }
            wizard->Dismiss();
        }
        if (auto* update = dynamic_cast<frmUpdate*>(&dialog))
            GrabUpdate(*update);
        for (const auto& [layout, name] : windows)
            if (dialog.Layout() == layout)
                GrabModal(dialog, name);
    };
    runners.boxes = [](const std::string&, unsigned) { return IDOK; };
    InstallModalRunners(runners);
    Profile& active = *App().ActiveProfile();
    Ui().ShowStartTarvolinDialog(active);
    frmEditProfile edit;
    edit.InitDialog(kNewProfileMode, active);
    edit.ShowModal(main->Handle());
    Ui().ShowLoadProfileDialog();
    frmProfiles profiles;
    profiles.InitDialog();
    profiles.ShowModal(main->Handle());
    SendMessageA(main->Handle(), WM_COMMAND, IDM_mnuExtra_Options, 0);
    SendMessageA(main->Handle(), WM_COMMAND, IDM_mnuHelp_About, 0);
    SendMessageA(main->Handle(), WM_COMMAND, IDM_mnuExtra_CreateShortcut, 0);
    SendMessageA(main->Handle(), WM_COMMAND, IDM_mnuExtra_Update, 0);
    active.SetFreeplay(!active.Freeplay());
    Ui().ShowSaveDialog();
    // A width that is no number: the report of the failed save.
    WinText::Set(FindControl(main->Handle(), IDC_txtRes_Width), "");
    SendMessageA(main->Handle(), WM_COMMAND, IDM_mnuFile_Save, 0);
    InstallModalRunners({});
    delete main;
    mMain::ClosePublicObjects();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("usage: pavonel_win_screenshots OUTPUT_DIR [SUFFIX]\n", stderr);
        return 2;
    }
    g_output = argv[1];
    CreateDirectoryA(g_output.c_str(), nullptr);
    InitWindowThread();
    ULONG_PTR token = 0;
    Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    Win32UserInterface ui;
    InstallUserInterface(&ui);
    char module[MAX_PATH] = {};
    GetModuleFileNameA(nullptr, module, MAX_PATH);
    std::string folder(module);
    folder.resize(folder.rfind('\\') + 1);
    const std::string suffix = argc > 2 ? argv[2] : "";
    for (const char* language : {"EN", "DE"}) {
        g_name = std::string("_") + language + suffix;
        RenderLanguage(folder, language);
    }
    InstallUserInterface(nullptr);
    std::printf("%d pictures in %s\n", g_saved, g_output.c_str());
    return g_saved > 0 ? 0 : 1;
}
