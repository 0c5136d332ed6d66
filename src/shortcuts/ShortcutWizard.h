// The shortcut wizard's rules, which the windows of both faces follow: what it takes from the profile, the
// link name it proposes, the folder and chooser root of each destination, the checks when a page is left,
// each page's texts, and the shortcut it writes. The pages are 1 Target, 2 Mode, 3 Destination, 4 Folder,
// 5 Name (where Next writes the shortcut) and 6 Done (where Next starts over on page 2 with everything
// kept). Proposing the name and writing the shortcut report under the wizard's own trail names; the other
// rules' failures reach the handler of the window that asked.
#pragma once

#include <cstdint>
#include <string>

class Profile;

class ShortcutWizard {
public:
    static constexpr int kPages = 6;
    // One more than there are pages: Next stays enabled on the last one.
    static constexpr int16_t kPageCount = 7;
    // The destinations in the order of their options: desktop, start menu, quick launch, another folder.
    static constexpr int kDestinations = 4;
    static constexpr int kQuickLaunch = 2;
    static constexpr const char* kDestinationKeys[kDestinations] = {
        "LBL_DEST_DESKTOP", "LBL_DEST_STARTMENU", "LBL_DEST_QUICK_LAUNCH", "LBL_DEST_OTHER"};
    static constexpr const char* kSection = "CREATE_SHORTCUT_DIALOG_NEW";

    // The trail name of the wizard's procedure `name`, as both faces' reports carry it.
    static std::string Procedure(const char* name) {
        return std::string("frmCreateTarvolinShortcut_New.") + name;
    }

    // What the pages show, as the user left it.
    struct Fields {
        std::string target;
        std::string folder;
        std::string linkName;
        bool plain = false;  // the standard mode: no command line
    };

    // The title band's texts of a page, and the captions it gives the bar's buttons ("" keeps the bar's).
    struct PageTexts {
        std::string title;
        std::string text;
        std::string task;
        std::string nextCaption;
        std::string cancelCaption;
    };

    // Takes the profile's command line as it is now: a shortcut with the profile's settings carries it,
    // whatever the profile becomes later.
    void TakeProfile(const Profile& profile);

    // The name a shortcut to `target` gets, from its version resource ("Tarvolin" without one).
    static std::string DefaultLinkName(const std::string& target);
    static bool QuickLaunchAvailable();
    // The folder of destination `index`; the folder chooser starts at its root from now on.
    std::string ChooseDestination(int index);
    // Quick launch's folder is fixed: it is neither typed nor chosen.
    bool FolderLocked() const;
    // The folder chooser over `owner`, at the chosen destination's root; "" when nothing was chosen.
    std::string BrowseForFolder(int64_t owner) const;

    // True when page `pageNo` may not be left with `fields`, once the user has been told why.
    static bool RefuseLeaving(int16_t pageNo, const Fields& fields);
    static PageTexts TextsOf(int16_t pageNo);
    // Next towards `pageNo`: on the way to page 6 the shortcut is written; true when the wizard is to start
    // over on page 1 (the bar then moves on to page 2).
    bool NextClicked(int16_t pageNo, const Fields& fields) const;

private:
    void CreateShortcut(const Fields& fields) const;

    std::string m_cmdLine;
    int32_t m_browseRoot = 0;
};
