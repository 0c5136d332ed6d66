#include "app/UserInterface.h"

#include "app/ConsoleUserInterface.h"

namespace {

UserInterface* g_installed = nullptr;

}  // namespace

UserInterface& Ui() {
    static ConsoleUserInterface console;
    return g_installed != nullptr ? *g_installed : console;
}

void InstallUserInterface(UserInterface* ui) {
    g_installed = ui;
}
