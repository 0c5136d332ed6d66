// "All profiles": the list of every profile with its description.
#pragma once

#include "winui/Modal.h"
#include "winui/controls/ucProfiles.h"

class frmProfiles : public ModalDialog {
public:
    frmProfiles();
    void InitDialog() {}

protected:
    void TranslateDialog() override;
    void OnShow() override;
    void OnCommand(int id, int code) override;

private:
    ucProfiles ucProfiles1;
};
