// The whole program started in-process through Main, on a program folder of its own with the real language
// files, a real settings file and a game folder; the user's part is played by clicks, keys and answers.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <deque>
#include <filesystem>

#include "platform/NativePath.h"
#include "profiles/Profile.h"
#include "support/StandInGame.h"
#include "ui/Main.h"
#include "ui/controls/ucPath.h"
#include "ui/controls/ucTab.h"
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

    // Asks the window to close, answering its questions from `answers`; true when it ended (it deletes
    // itself, and the program-wide objects go with it).
    bool Close(std::deque<QMessageBox::StandardButton> answers) {
        buttons = std::move(answers);
        if (!main->close())
            return false;
        main = nullptr;
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return true;
    }

    // Runs `act` on the real platform, with the start confirmation switched off.
    void OnRealPlatform(const std::function<void()>& act) {
        InstallPlatform(nullptr);
        g_cApp->Options().SetShowStartTarvolinDialog(false);
        act();
        InstallPlatform(&platform);
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
    void Click(const char* name) const { QTest::mouseClick(Control(name), Qt::LeftButton); }
    // An entry of the menus, after opening the profile menu as a user does before choosing a profile: its
    // items are made as it opens.
    QAction* Menu(const char* name) const {
        auto* profiles = main->findChild<QMenu*>("mnuFile_Profiles");
        profiles->popup(QPoint());
        profiles->hide();
        return main->findChild<QAction*>(name);
    }
    // Chooses the menu entry `name` and lets its command run, which it does once the menu has handed over.
    void Choose(const char* name) const {
        Menu(name)->trigger();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    }
    Profile& Active() const { return *g_cApp->ActiveProfile(); }
    void Type(const char* field, const QString& text) {
        auto* edit = Control<QLineEdit>(field);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }
    // A message of the language file, as a box shows it.
    static QString Message(const char* section, const char* key) {
        return QtText::ToQtLines(Translator().TranslateEx(section, key));
    }

    std::string game;
    frmMain* main = nullptr;
    std::deque<QMessageBox::StandardButton> buttons;
    QStringList boxes;
    QStringList reports;
    std::function<void(QDialog&)> window;
};
