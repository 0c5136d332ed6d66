// What the main window's lists and built menus hold: the scenarios and graphic paks found in the game's
// folder, one profile menu item per profile, one language menu item per language file, and which of the
// optional menu entries show.
#pragma once

#include <string>
#include <vector>

class Application;
class Profile;
class Profiles;

namespace frmMainLists {

// The game folder's "Scenarios" folder; the game folder itself is where the graphic paks lie.
std::string GetScenarioPath(const std::string& tarvolinPath);
std::string GetDatenPakPath(const std::string& tarvolinPath);

// Every folder in the scenario folder, as "scenarios" + separator + its name (the game reads the lower-case
// spelling), in the order the listing gives them; files there are no scenarios.
std::vector<std::string> ScenarioEntries(const std::string& tarvolinPath);

// The name of every file in the game folder that matches "*.pak" (in any case, as on Windows), in the order
// the listing gives them.
std::vector<std::string> DatenPakEntries(const std::string& tarvolinPath);

struct MenuItem {
    std::string caption;
    std::string tag;
    bool checked = false;
};

// One item per profile in the collection's order: its caption, its name as the tag, the active one checked.
std::vector<MenuItem> ProfileMenuItems(const Profiles& profiles, const Profile* active);

// One item per file of the language folder: the language's name, its abbreviation as the tag, the chosen
// language checked. A file whose name is too short for an abbreviation is reported and gets an empty tag.
std::vector<MenuItem> LanguageMenuItems(const Application& application, const std::string& language);

// The localized FAQ entry is hidden for English and when the language has no FAQ file.
bool IsLocalFaqHidden(const Application& application, const std::string& language);

// The accessories menu shows when the language editor is in the tools folder.
bool HasLanguageEditor(const Application& application);

}  // namespace frmMainLists
