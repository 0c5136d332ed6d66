// The profile chooser, shown when the remembered active profile is missing.
#pragma once

#include "winui/Modal.h"
#include "winui/controls/ucProfiles.h"

class frmLoadProfile : public ModalDialog {
public:
    frmLoadProfile();
    void InitDialog();
    Profile* SelectedProfile() const { return m_selected; }

protected:
    void TranslateDialog() override;
    void OnShow() override;
    void OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    ucProfiles ucProfiles1;
    Profile* m_selected = nullptr;
};
