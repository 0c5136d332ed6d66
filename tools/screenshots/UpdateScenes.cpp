// The update window before a check, during one, and after it: an update found, none, and a failure. A
// local server stands in for the maker's site, so the pictures are the same wherever they are taken.
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPushButton>

#include "Scenes.h"
#include "ScreenshotSession.h"
#include "support/TestHttpServer.h"
#include "ui/dialogs/frmUpdate.h"
#include "update/UpdateFile.h"

namespace Scenes {
namespace {

void RunUntilChecked(const frmUpdate& dialog) {
    QElapsedTimer waited;
    waited.start();
    while (dialog.Searching() && waited.elapsed() < 15000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
}

}  // namespace

void RenderUpdate(ScreenshotSession& session) {
    qputenv("no_proxy", "127.0.0.1,localhost");
    TestHttpServer server;
    update::InstallSite(update::Site{"http", "127.0.0.1", server.Port()});
    const std::string file = "/down/pavonel/updates/" + update::FileName();
    const std::pair<const char*, TestHttpServer::Route> states[] = {
        {"Found",
         TestHttpServer::Ok("true\n/download/pavonel-0.2.0.html\nVersion 0.2.0 starts twice as fast.\n"
                            "It knows the game's new scenarios.")},
        {"None", TestHttpServer::Ok("false\n")},
        {"Failed", TestHttpServer::Status(404)},
    };
    frmUpdate dialog;
    dialog.InitDialog();
    session.Save(dialog, QStringLiteral("frmUpdate"));
    server.Serve(file, TestHttpServer::Behaving(TestHttpServer::Kind::Silent));
    auto* check = dialog.findChild<QPushButton*>(QStringLiteral("cmdSearchUpdates"));
    check->click();
    session.Save(dialog, QStringLiteral("frmUpdate_Searching"));
    check->click();
    for (const auto& [name, reply] : states) {
        server.Serve(file, reply);
        check->click();
        RunUntilChecked(dialog);
        session.Save(dialog, QStringLiteral("frmUpdate_%1").arg(QString::fromLatin1(name)));
    }
    update::InstallSite(std::nullopt);
}

}  // namespace Scenes
