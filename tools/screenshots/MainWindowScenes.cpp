// The main window on each of its pages, showing a profile whose game folder has scenarios and graphic paks,
// the shortcut wizard on each of its pages, both again in a dark theme, and the about box.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QPalette>

#include "Scenes.h"
#include "ScreenshotSession.h"
#include "app/Application.h"
#include "app/PublicObjects.h"
#include "profiles/Profile.h"
#include "ui/QtText.h"
#include "ui/dialogs/frmInfo.h"
#include "ui/main/frmMain.h"
#include "ui/shortcuts/frmCreateTarvolinShortcut_New.h"
#include "ui/shortcuts/ucWizard_Nav.h"

namespace Scenes {
namespace {

// A game folder as a player has it: the program, two scenarios, two graphic paks. It is always the same
// folder, so that the pictures change only when the windows do; it goes when the pictures are taken.
class GameFolder {
public:
    GameFolder() : m_folder(QDir::temp().filePath(QStringLiteral("Tarvolin"))) {
        for (const char* scenario : {"Scenarios/Mountain Pass", "Scenarios/River Delta"})
            m_folder.mkpath(QString::fromLatin1(scenario));
        for (const char* file : {"tarvolin.exe", "pak64.pak", "pak128.pak"}) {
            QFile created(m_folder.filePath(QString::fromLatin1(file)));
            created.open(QIODevice::WriteOnly);
        }
    }
    ~GameFolder() { m_folder.removeRecursively(); }
    QString Game() const { return m_folder.filePath(QStringLiteral("tarvolin.exe")); }

private:
    QDir m_folder;
};

// The wizard proposes the desktop of a player whose home is always the same.
void RenderShortcutWizard(ScreenshotSession& session, const Profile& profile) {
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", "/home/player");
    const QByteArray config = qgetenv("XDG_CONFIG_HOME");
    qunsetenv("XDG_CONFIG_HOME");
    frmCreateTarvolinShortcut_New wizard;
    wizard.InitDialog(profile);
    qputenv("HOME", home);
    if (!config.isEmpty())
        qputenv("XDG_CONFIG_HOME", config);
    for (int page = 1; page <= frmCreateTarvolinShortcut_New::kPages; ++page) {
        wizard.findChild<ucWizard_Nav*>()->ShowPage(static_cast<int16_t>(page));
        session.Save(wizard, QStringLiteral("frmCreateTarvolinShortcut_New_%1").arg(page));
    }
}

// The palette a dark desktop theme gives the program (GTK's Adwaita dark, through Qt's GTK theme).
QPalette AdwaitaDark() {
    QPalette dark(QColor(0x35, 0x35, 0x35));
    const std::pair<QPalette::ColorRole, QRgb> roles[] = {{QPalette::Window, 0x353535},
                                                          {QPalette::WindowText, 0xEEEEEC},
                                                          {QPalette::Base, 0x2D2D2D},
                                                          {QPalette::AlternateBase, 0x323232},
                                                          {QPalette::Text, 0xEEEEEC},
                                                          {QPalette::Button, 0x3A3A3A},
                                                          {QPalette::ButtonText, 0xEEEEEC},
                                                          {QPalette::Highlight, 0x15539E},
                                                          {QPalette::HighlightedText, 0xFFFFFF},
                                                          {QPalette::Link, 0x8AB4F8},
                                                          {QPalette::Light, 0x4A4A4A},
                                                          {QPalette::Midlight, 0x404040},
                                                          {QPalette::Mid, 0x2A2A2A},
                                                          {QPalette::Dark, 0x1E1E1E},
                                                          {QPalette::Shadow, 0x101010}};
    for (auto [role, colour] : roles)
        dark.setColor(role, QColor::fromRgb(colour));
    dark.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x91, 0x91, 0x91));
    dark.setColor(QPalette::Disabled, QPalette::Text, QColor(0x91, 0x91, 0x91));
    dark.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x91, 0x91, 0x91));
    return dark;
}

// The main window's first and display pages and the wizard's first step in a dark theme: the drawn tabs,
// the page area and the path field keep their light colours, and their texts stay readable on them.
void RenderDarkTheme(ScreenshotSession& session, Profile& profile) {
    const QPalette light = QApplication::palette();
    QApplication::setPalette(AdwaitaDark());
    {
        frmMain window;
        window.InitDialog();
        window.LoadData(profile);
        for (int page : {0, 2}) {
            window.ucTab1_Click(page);
            session.Save(window, QStringLiteral("frmMain_dark_%1").arg(page));
        }
        frmCreateTarvolinShortcut_New wizard;
        wizard.InitDialog(profile);
        session.Save(wizard, QStringLiteral("frmCreateTarvolinShortcut_New_dark_1"));
    }
    QApplication::setPalette(light);
}

}  // namespace

void RenderMainWindow(ScreenshotSession& session) {
    const GameFolder folder;
    Profile& profile = App().Profiles().Item("profile_Race");
    profile.SetTarvolinPath(QtText::FromQt(folder.Game()));
    profile.SetScenarioPath("scenarios/Mountain Pass");
    profile.SetGraphicPakPath("pak128.pak");
    frmMain window;
    window.InitDialog();
    window.LoadData(profile);
    for (int page = 0; page < frmMain::kTabCount; ++page) {
        window.ucTab1_Click(page);
        session.Save(window, QStringLiteral("frmMain_%1").arg(page));
    }
    RenderShortcutWizard(session, profile);
    RenderDarkTheme(session, profile);
    frmInfo about;
    about.InitDialog();
    session.Save(about, QStringLiteral("frmInfo"));
}

}  // namespace Scenes
