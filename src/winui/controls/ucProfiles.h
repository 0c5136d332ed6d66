// The list of profiles that the profile windows share: a report-style list view with the columns "Profile"
// (the caption) and "Description", one row per profile of the collection, each known by its name.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

class Profile;

class ucProfiles {
public:
    // The list view of the window it stands in; the columns are made here.
    void InitControl(HWND list);

    // Every profile, or only those with unsaved changes; the first row has the focus.
    void FillProfileList(bool blnOnlyModifiedProfiles);
    // The profile of the first selected row, or nullptr when none is selected.
    Profile* SelectedProfile() const;
    void SetMultiSelect(bool blnMultiSelect);
    // The names of the selected rows in list order, joined by ";".
    std::string GetSelectedItems() const;
    void SelectAllProfiles();
    // Selects the row of the profile named `name` and gives it the focus, when the list has it.
    void SelectProfile(const std::string& name);

private:
    HWND m_list = nullptr;
    std::vector<std::string> m_names;  // each row's profile
};
