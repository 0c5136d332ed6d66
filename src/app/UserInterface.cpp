#include "app/UserInterface.h"

#include "app/ConsoleUserInterface.h"
#include "app/ErrorReport.h"
#include "error/mError.h"

namespace {

UserInterface* g_installed = nullptr;

}  // namespace

UserInterface& Ui() {
    static ConsoleUserInterface console;
    return g_installed != nullptr ? *g_installed : console;
}

void InstallUserInterface(UserInterface* ui) {
    g_installed = ui;
    mError::InstallReporter(&ShowErrorReport);
}
