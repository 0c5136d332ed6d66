// The main window on each of its pages, showing a profile whose game folder has scenarios and graphic paks,
// and the about box.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "Scenes.h"
#include "ScreenshotSession.h"
#include "app/Application.h"
#include "app/PublicObjects.h"
#include "profiles/Profile.h"
#include "ui/QtText.h"
#include "ui/dialogs/frmInfo.h"
#include "ui/main/frmMain.h"

namespace Scenes {
namespace {

// A game folder as a player has it: the program, two scenarios, two graphic paks.
QString MakeGameFolder(const QTemporaryDir& folder) {
    const QDir game(folder.path());
    for (const char* scenario : {"Scenarios/Mountain Pass", "Scenarios/River Delta"})
        game.mkpath(QString::fromLatin1(scenario));
    for (const char* file : {"tarvolin.exe", "pak64.pak", "pak128.pak"}) {
        QFile created(game.filePath(QString::fromLatin1(file)));
        created.open(QIODevice::WriteOnly);
    }
    return game.filePath(QStringLiteral("tarvolin.exe"));
}

}  // namespace

void RenderMainWindow(ScreenshotSession& session) {
    const QTemporaryDir folder;
    Profile& profile = App().Profiles().Item("profile_Race");
    profile.SetTarvolinPath(QtText::FromQt(MakeGameFolder(folder)));
    profile.SetScenarioPath("scenarios/Mountain Pass");
    profile.SetGraphicPakPath("pak128.pak");
    frmMain window;
    window.InitDialog();
    window.LoadData(profile);
    for (int page = 0; page < frmMain::kTabCount; ++page) {
        window.ucTab1_Click(page);
        session.Save(window, QStringLiteral("frmMain_%1").arg(page));
    }
    frmInfo about;
    about.InitDialog();
    session.Save(about, QStringLiteral("frmInfo"));
}

}  // namespace Scenes
