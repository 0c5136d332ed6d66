// "All profiles": the list of every profile with its description, where the selected one can be renamed,
// duplicated or deleted.
#pragma once

#include "winui/Modal.h"
#include "winui/controls/ucProfiles.h"

class Profile;

class frmProfiles : public ModalDialog {
public:
    frmProfiles();
    void InitDialog() {}
    // Whether a profile was renamed, duplicated or deleted: the main window then shows the active one afresh.
    bool ProfilesChanged() const { return m_changed; }

protected:
    void TranslateDialog() override;
    void OnShow() override;
    void OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void ShowProfiles(const Profile* current);
    void EnableButtons();
    void cmdRename_Click();
    void cmdDuplicate_Click();
    void cmdDelete_Click();
    void ShowChanged(const Profile* current);

    ucProfiles ucProfiles1;
    bool m_changed = false;
};
