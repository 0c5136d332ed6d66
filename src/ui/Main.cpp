#include "ui/Main.h"

#include <QApplication>
#include <QPointer>
#include <QSocketNotifier>
#include <memory>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "app/mMain.h"
#include "app/mMutex.h"
#include "error/mError.h"
#include "platform/Termination.h"
#include "translate/cTranslate.h"
#include "ui/QtTranslation.h"
#include "ui/QtUserInterface.h"
#include "ui/main/frmMain.h"

frmMain* Main() {
    frmMain* window = nullptr;
    try {
        mMutex::CreateMutex();
        g_cApp = std::make_unique<Application>();
        g_cTranslate = std::make_unique<cTranslate>();
        if (!g_cApp->LoadData()) {
            mMain::ClosePublicObjects();
            return nullptr;
        }
        QtTranslation::Follow(g_cApp->Options().Language());
        window = new frmMain;
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

// A request from outside to end the program ends it without questions, keeping every change.
void CloseOnRequest(QApplication& application, QPointer<frmMain>& window, int requests) {
    auto* notifier = new QSocketNotifier(requests, QSocketNotifier::Read, &application);
    QObject::connect(notifier, &QSocketNotifier::activated, &application, [&window] {
        platform::TakeTerminationRequests();
        if (window)
            window->EndOnRequest();
        else
            QApplication::quit();
    });
}

}  // namespace

int RunProgram(int argc, char** argv) {
    const int requests = platform::CatchTerminationRequests();
    QApplication application(argc, argv);
    application.setApplicationName(QStringLiteral("Pavonel"));
    QtUserInterface ui;
    InstallUserInterface(&ui);
    QPointer<frmMain> window = Main();
    if (window && requests >= 0)
        CloseOnRequest(application, window, requests);
    const int status = window ? application.exec() : 0;
    mMain::ClosePublicObjects();
    InstallUserInterface(nullptr);
    return status;
}
