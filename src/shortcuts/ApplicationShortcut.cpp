// The application's shortcut operation lives with the shortcuts: the application object is a floor below
// them and only declares it.
#include "app/Application.h"
#include "error/mError.h"
#include "shortcuts/cCreateShortcut.h"

void Application::CreateShortcut(const std::string& folder, const std::string& linkName,
                                 const std::string& target, const std::string& arguments) try {
    cCreateShortcut().CreateShortcut(folder, linkName, target, arguments);
} catch (...) {
    mError::PassOn("Application.CreateShortcut");
}
