// The program-wide options a user edits here: the text editor for the game's log file and whether a start
// of the game is confirmed first. The options change only when the window is left with OK, and reach the
// settings file when the program ends.
#pragma once

#include <string>

#include "winui/Modal.h"

class frmOptions : public ModalDialog {
public:
    frmOptions();
    void InitDialog();

protected:
    void TranslateDialog() override;
    void OnShow() override;
    void OnCommand(int id, int code) override;

private:
    void cmdEditorPath_Click();
    void SaveSettings();

    std::string m_editorPath;
    bool m_confirmStart = true;
};
