#include "winui/controls/ucProfiles.h"

#include <commctrl.h>

#include "app/Application.h"
#include "app/PublicObjects.h"
#include "error/mError.h"
#include "profiles/Profile.h"
#include "profiles/Profiles.h"

namespace {

void AddColumn(HWND list, int index, const char* title, int width) {
    LVCOLUMNA column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = const_cast<char*>(title);
    column.cx = width;
    ListView_InsertColumn(list, index, &column);
}

}  // namespace

void ucProfiles::InitControl(HWND list) {
    m_list = list;
    ListView_SetExtendedListViewStyle(list, LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
    RECT client{};
    GetClientRect(list, &client);
    AddColumn(list, 0, "Profile", client.right * 2 / 5);
    AddColumn(list, 1, "Description", client.right - client.right * 2 / 5 - GetSystemMetrics(SM_CXVSCROLL));
}

void ucProfiles::FillProfileList(bool blnOnlyModifiedProfiles) try {
    ListView_DeleteAllItems(m_list);
    m_names.clear();
    for (const Profile& profile : App().Profiles()) {
        if (blnOnlyModifiedProfiles && !profile.DataChanged())
            continue;
        LVITEMA row{};
        row.mask = LVIF_TEXT;
        row.iItem = static_cast<int>(m_names.size());
        std::string caption = profile.ProfileCaption();
        row.pszText = caption.data();
        const int index =
            static_cast<int>(SendMessageA(m_list, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&row)));
        std::string description = profile.ProfileDescription();
        LVITEMA second{};
        second.iSubItem = 1;
        second.pszText = description.data();
        SendMessageA(m_list, LVM_SETITEMTEXTA, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&second));
        m_names.push_back(profile.ProfileName());
    }
    if (!m_names.empty())
        ListView_SetItemState(m_list, 0, LVIS_FOCUSED, LVIS_FOCUSED);
} catch (...) {
    mError::PassOn("ucProfiles.FillProfileList");
}

Profile* ucProfiles::SelectedProfile() const try {
    const int row = ListView_GetNextItem(m_list, -1, LVNI_SELECTED);
    return row < 0 ? nullptr : &App().Profiles().Item(m_names.at(static_cast<std::size_t>(row)));
} catch (...) {
    mError::PassOn("ucProfiles.SelectedProfile");
}

void ucProfiles::SetMultiSelect(bool blnMultiSelect) {
    const LONG_PTR style = GetWindowLongPtrA(m_list, GWL_STYLE);
    SetWindowLongPtrA(m_list, GWL_STYLE, blnMultiSelect ? style & ~LVS_SINGLESEL : style | LVS_SINGLESEL);
}

std::string ucProfiles::GetSelectedItems() const try {
    std::string names;
    for (int row = ListView_GetNextItem(m_list, -1, LVNI_SELECTED); row >= 0;
         row = ListView_GetNextItem(m_list, row, LVNI_SELECTED)) {
        if (!names.empty())
            names += ';';
        names += m_names.at(static_cast<std::size_t>(row));
    }
    return names;
} catch (...) {
    mError::PassOn("ucProfiles.GetSelectedItems");
}

void ucProfiles::SelectAllProfiles() {
    ListView_SetItemState(m_list, -1, LVIS_SELECTED, LVIS_SELECTED);
}

void ucProfiles::SelectProfile(const std::string& name) {
    for (std::size_t row = 0; row < m_names.size(); ++row) {
        if (m_names[row] != name)
            continue;
        const int index = static_cast<int>(row);
        ListView_SetItemState(m_list, index, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
        ListView_EnsureVisible(m_list, index, FALSE);
        return;
    }
}
