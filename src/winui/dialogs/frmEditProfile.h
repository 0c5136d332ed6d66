// The profile dialog: the name and description of a new profile, or of one renamed, copied or handed in as
// text, or the description of the active one (its name is shown locked).
#pragma once

#include "winui/Modal.h"

class Profile;

class frmEditProfile : public ModalDialog {
public:
    frmEditProfile();
    void InitDialog(int lngEditMode, Profile& oProfile);

protected:
    void TranslateDialog() override;
    void OnShow() override;
    void OnCommand(int id, int code) override;

private:
    bool CheckInput();

    int m_editMode = kNewProfileMode;
    Profile* m_profile = nullptr;
};
