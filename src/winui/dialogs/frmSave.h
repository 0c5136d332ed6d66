// The save question: which of the changed profiles to save, all of them chosen at first.
#pragma once

#include "winui/Modal.h"
#include "winui/controls/ucProfiles.h"

class frmSave : public ModalDialog {
public:
    frmSave();
    void InitDialog() {}

protected:
    void TranslateDialog() override;
    void OnShow() override;
    void OnCommand(int id, int code) override;

private:
    ucProfiles ucProfiles1;
};
