// The start confirmation: the command line the game will get, and the choice not to be asked again.
#pragma once

#include <string>

#include "winui/Modal.h"

class Profile;

class frmStartingTarvolin : public ModalDialog {
public:
    frmStartingTarvolin();
    void InitDialog(const Profile& oProfile);

protected:
    void TranslateDialog() override;
    void OnShow() override;
    void OnCommand(int id, int code) override;

private:
    std::string m_commandLine;
};
