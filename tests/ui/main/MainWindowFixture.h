// The whole program started in-process through Main, on a program folder of its own with the real language
// files, a real settings file and a game folder; the user's part is played by clicks, keys and answers.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTest>
#include <deque>
#include <filesystem>

#include "profiles/Profile.h"
#include "ui/Main.h"
#include "ui/dialogs/UiFixture.h"
#include "ui/main/frmMain.h"

class MainWindowFixture : public UiFixture {
protected:
    MainWindowFixture() {
        std::filesystem::create_directories(dir.Path() / "game" / "Scenarios" / "demo");
        game = dir.Write("game/tarvolin.exe", "MZ");
        dir.Write("game/pak128.pak", "");
        WriteIni("[PROFILES]\r\nLASTACTIVEPROFILE=profile_A\r\n[profile_A]\r\nTARVOPATH=" + game +
                 "\r\nFREEPLAY=0\r\n[profile_B]\r\nTARVOPATH=" + game + "\r\nREFRESH=3\r\n");
        answer = [this](QDialog& shown) { Answer(shown); };
        main = Main();
    }
    ~MainWindowFixture() override { delete main; }

    // Ends the window and starts the program anew on `settings`.
    void Restart(const std::string& settings) {
        delete main;
        WriteIni(settings);
        main = Main();
    }

    // Message boxes are answered from `buttons` (their default once it is empty); a report is kept; any other
    // window is left to `window`.
    void Answer(QDialog& shown) {
        if (auto* box = qobject_cast<QMessageBox*>(&shown)) {
            boxes << box->text();
            if (!buttons.empty())
                box->button(buttons.front())->click();
            if (!buttons.empty())
                buttons.pop_front();
        } else if (shown.objectName() == "frmError") {
            reports << Find<QPlainTextEdit>(shown, "txtErrorNote")->toPlainText();
        } else if (window) {
            window(shown);
        }
    }

    template <class T = QWidget>
    T* Control(const char* name) const {
        return Find<T>(*main, name);
    }
    // An entry of the menus, after opening the profile menu as a user does before choosing a profile: its
    // items are made as it opens.
    QAction* Menu(const char* name) const {
        auto* profiles = main->findChild<QMenu*>("mnuFile_Profiles");
        profiles->popup(QPoint());
        profiles->hide();
        return main->findChild<QAction*>(name);
    }
    Profile& Active() const { return *g_cApp->ActiveProfile(); }
    void Type(const char* field, const QString& text) {
        auto* edit = Control<QLineEdit>(field);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }

    std::string game;
    frmMain* main = nullptr;
    std::deque<QMessageBox::StandardButton> buttons;
    QStringList boxes;
    QStringList reports;
    std::function<void(QDialog&)> window;
};
