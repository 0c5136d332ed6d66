// The whole Windows program started in-process through Main, on a program folder of its own with the real
// language files, a real settings file and a game folder. The user's part is played with the controls'
// own messages; message boxes and dialogs are answered where they would open.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "profiles/Profile.h"
#include "resource.h"
#include "support/AppFixture.h"
#include "winui/Main.h"
#include "winui/Modal.h"
#include "winui/Win32UserInterface.h"
#include "winui/WinText.h"
#include "winui/main/frmMain.h"

class WindowFixture : public AppFixture {
protected:
    WindowFixture() {
        std::filesystem::create_directories(dir.Path() / "game" / "Scenarios" / "demo");
        game = dir.Write("game/tarvolin.exe", "MZ");
        dir.Write("game/pak128.pak", "");
        WriteIni("[PROFILES]\r\nLASTACTIVEPROFILE=profile_A\r\n[profile_A]\r\nTARVOPATH=" + game +
                 "\r\nFREEPLAY=0\r\n[profile_B]\r\nTARVOPATH=" + game + "\r\nREFRESH=3\r\n");
        InstallUserInterface(&winUi);
        ModalRunners runners;
        runners.dialogs = [this](ModalDialog& dialog) { Answer(dialog); };
        runners.boxes = [this](const std::string& text, unsigned style) { return AnswerBox(text, style); };
        runners.files = [this](const OpenFileOptions& options) {
            choosers.push_back(options.title);
            return chosenFile;
        };
        runners.saves = [this](const OpenFileOptions& options) {
            choosers.push_back(options.title);
            return std::string();
        };
        runners.folders = [this](const std::string& title) {
            choosers.push_back(title);
            return std::string();
        };
        InstallModalRunners(std::move(runners));
        main = Main();
    }
    ~WindowFixture() override {
        delete main;
        InstallModalRunners({});
        InstallUserInterface(&ui);
    }

    // The control `id` of the main window or of one of its pages.
    HWND Control(int id) const { return FindControl(main->Handle(), id); }
    // Runs what was posted to the windows, as their message loop would.
    static void Pump() {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) && message.message != WM_QUIT) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
        }
    }
    std::string Text(int id) const { return WinText::Of(Control(id)); }
    void Click(int id) const { SendMessageA(Control(id), BM_CLICK, 0, 0); }
    // A menu entry chosen, as Windows reports it once the menu has closed; the menus were opened first, as a
    // user opens them to choose.
    void Choose(int id) const {
        HMENU bar = GetMenu(main->Handle());
        for (int i = 0; i < GetMenuItemCount(bar); ++i)
            SendMessageA(main->Handle(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(GetSubMenu(bar, i)), i);
        SendMessageA(main->Handle(), WM_COMMAND, MAKEWPARAM(id, 0), 0);
    }
    // Keys typed into a field, as the keyboard sends them.
    void Type(int id, const std::string& keys) const {
        SetFocus(Control(id));
        for (char key : keys)
            SendMessageA(Control(id), WM_CHAR, static_cast<WPARAM>(static_cast<unsigned char>(key)), 0);
    }
    void SetText(int id, const std::string& text) const { WinText::Set(Control(id), text); }
    // Asks the window to close, answering its questions from `answers`; true when it ended.
    bool Close(std::deque<int> answers) {
        buttons = std::move(answers);
        SendMessageA(main->Handle(), WM_CLOSE, 0, 0);
        if (IsWindow(main->Handle()))
            return false;
        delete main;
        main = nullptr;
        return true;
    }
    Profile& Active() const { return *g_cApp->ActiveProfile(); }

    // Message boxes are answered from `buttons` (OK once it is empty); a report is kept; any other window
    // is left to `window`, and ends unconfirmed when nobody answers it.
    int AnswerBox(const std::string& text, unsigned) {
        boxes.push_back(text);
        if (buttons.empty())
            return IDOK;
        const int answer = buttons.front();
        buttons.pop_front();
        return answer;
    }
    void Answer(ModalDialog& shown) {
        if (shown.Layout() == IDD_frmError)
            reports.push_back(WinText::Item(shown.Handle(), IDC_txtErrorNote));
        else if (window)
            window(shown);
    }

    Win32UserInterface winUi;
    std::string game;
    frmMain* main = nullptr;
    std::deque<int> buttons;
    std::vector<std::string> boxes;
    std::vector<std::string> reports;
    std::function<void(ModalDialog&)> window;
    std::vector<std::string> choosers;  // the titles of the choosers opened
    OpenFileAnswer chosenFile;          // what the file chooser answers: cancelled unless a test says
};
