#include "ui/Main.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QSocketNotifier>
#include <QTimer>
#include <memory>

#include "Version.h"
#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/mMain.h"
#include "app/mMutex.h"
#include "error/mError.h"
#include "platform/Termination.h"
#include "platform/VectorState.h"
#include "translate/cTranslate.h"
#include "ui/QtTranslation.h"
#include "ui/QtUserInterface.h"
#include "ui/main/frmMain.h"

frmMain* Main() {
    frmMain* window = nullptr;
    try {
        platform::ClearUpperVectorState();
        mMutex::CreateMutex();
        g_cApp = std::make_unique<Application>();
        g_cTranslate = std::make_unique<cTranslate>();
        // Qt's own texts follow the chosen language from the first window on, the profile chooser included.
        g_cApp->Options().LoadData();
        QtTranslation::Follow(g_cApp->Options().Language());
        if (!g_cApp->LoadData()) {
            mMain::ClosePublicObjects();
            return nullptr;
        }
        window = new frmMain;
        // From here on a request to end is answered by the window, which keeps the user's changes.
        platform::DeferTerminationRequests();
        window->setAttribute(Qt::WA_DeleteOnClose);
        window->InitDialog();
        window->LoadData(*g_cApp->ActiveProfile());
        window->show();
        return window;
    } catch (...) {
        mError::ShowError("mMain.Main");
    }
    delete window;
    mMain::ClosePublicObjects();
    return nullptr;
}

namespace {

// The main window once Main has handed it over, and a request that came while Main was still running.
struct Ending {
    QPointer<frmMain> window;
    bool pending = false;
};

// Ends the program on a request from outside. A window waiting for an answer is dismissed first, as by
// Escape; the next one it leads to is dismissed in turn, until the main window itself can end. A request
// while the window is still being set up (a first start's questions) is kept for when it is.
void EndOnRequest(Ending& ending) {
    if (QWidget* modal = QApplication::activeModalWidget()) {
        if (auto* dialog = qobject_cast<QDialog*>(modal))
            dialog->reject();
        else
            modal->close();
        QTimer::singleShot(0, qApp, [&ending] { EndOnRequest(ending); });
        return;
    }
    if (ending.window)
        ending.window->EndOnRequest();
    else
        ending.pending = true;
}

// A request from outside to end the program ends it without questions, keeping every change.
void CloseOnRequest(QApplication& application, Ending& ending, int requests) {
    auto* notifier = new QSocketNotifier(requests, QSocketNotifier::Read, &application);
    QObject::connect(notifier, &QSocketNotifier::activated, &application, [&ending] {
        platform::TakeTerminationRequests();
        EndOnRequest(ending);
    });
}

}  // namespace

int RunProgram(int argc, char** argv) {
    const int requests = platform::CatchTerminationRequests();
    QApplication application(argc, argv);
    application.setApplicationName(QStringLiteral("Pavonel"));
    // The desktop matches the windows with the installed desktop entry by this name.
    QGuiApplication::setDesktopFileName(QString::fromLatin1(Version::kAppId));
    QtUserInterface ui;
    InstallUserInterface(&ui);
    // Listening starts before the start-up, so that a request that arrives once the window exists, while
    // it still asks its first questions, is answered too.
    Ending ending;
    if (requests >= 0)
        CloseOnRequest(application, ending, requests);
    ending.window = Main();
    if (ending.window && ending.pending)
        QTimer::singleShot(0, ending.window, [&ending] { EndOnRequest(ending); });
    const int status = ending.window ? application.exec() : 0;
    mMain::ClosePublicObjects();
    InstallUserInterface(nullptr);
    return status;
}
