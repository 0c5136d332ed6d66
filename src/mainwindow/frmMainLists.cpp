#include "mainwindow/frmMainLists.h"

#include "app/Application.h"
#include "app/mPath.h"
#include "base/mString.h"
#include "error/mError.h"
#include "mainwindow/frmMainRules.h"
#include "platform/FileSystem.h"
#include "profiles/Profiles.h"

namespace frmMainLists {
namespace {

// The names in `folder` (found in any case) whose entry is a folder (`folders`) or a file (`!folders`), in
// listing order; none when the folder cannot be listed.
std::vector<std::string> NamesIn(const std::string& folder, bool folders) {
    return platform::NamesIn(mPath::InAnyCase(folder), folders);
}

}  // namespace

std::string GetScenarioPath(const std::string& tarvolinPath) {
    return frmMainRules::GameFolder(tarvolinPath) + "Scenarios" + mPath::Separator();
}

std::string GetDatenPakPath(const std::string& tarvolinPath) {
    return frmMainRules::GameFolder(tarvolinPath);
}

std::vector<std::string> ScenarioEntries(const std::string& tarvolinPath) try {
    std::vector<std::string> entries;
    for (const std::string& name : NamesIn(GetScenarioPath(tarvolinPath), true))
        entries.push_back("scenarios" + std::string(1, mPath::Separator()) + name);
    return entries;
} catch (...) {
    mError::PassOn("frmMain.FillScenarioFilesList");
}

std::vector<std::string> DatenPakEntries(const std::string& tarvolinPath) try {
    std::vector<std::string> entries;
    for (std::string& name : NamesIn(GetDatenPakPath(tarvolinPath), false)) {
        if (mString::EndsWithNoCase(name, ".pak"))
            entries.push_back(std::move(name));
    }
    return entries;
} catch (...) {
    mError::PassOn("frmMain.FillDatenPakList");
}

std::vector<MenuItem> ProfileMenuItems(const Profiles& profiles, const Profile* active) try {
    std::vector<MenuItem> items;
    for (const Profile& profile : profiles)
        items.push_back({profile.ProfileCaption(), profile.ProfileName(), &profile == active});
    return items;
} catch (...) {
    mError::PassOn("frmMain.FillProfileList");
}

std::vector<MenuItem> LanguageMenuItems(const Application& application, const std::string& language) try {
    std::vector<MenuItem> items;
    const std::string folder = application.GetLanguageDirectory();
    for (const std::string& name : NamesIn(folder, false)) {
        MenuItem item{application.GetLanguageName(folder + name), application.GetLanguageAbbrev(name)};
        item.checked = item.tag == language;
        items.push_back(std::move(item));
    }
    return items;
} catch (...) {
    mError::PassOn("frmMain.InitLanguageList");
}

bool IsLocalFaqHidden(const Application& application, const std::string& language) try {
    return language == "EN" ||
           !mPath::FileExists(application.GetDocDirectory() + Application::GetFAQFileName(language));
} catch (...) {
    mError::PassOn("frmMain.HideFAQMenu");
}

bool HasLanguageEditor(const Application& application) try {
    return mPath::FileExists(application.GetToolsDirectory() + "LanguageEditor.exe");
} catch (...) {
    mError::PassOn("frmMain.RefreshAccessoriesMenu");
}

}  // namespace frmMainLists
