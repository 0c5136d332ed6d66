// The program-wide options a user edits here: the text editor for the game's log file and whether a start
// of the game is confirmed first. The options change only when the window is left with OK, and reach the
// settings file when the program ends.
#pragma once

#include <string>

#include "ui/dialogs/ModalDialog.h"

class QCheckBox;
class QLabel;
class QPushButton;
class ucPath;

class frmOptions : public ModalDialog {
    Q_OBJECT

public:
    explicit frmOptions(QWidget* parent = nullptr);

    void InitDialog();

    void TranslateDialog() override;

private slots:
    void cmdEditorPath_Click();
    void cmdOk_Click();
    void cmdCancel_Click();

private:
    void SaveSettings();

    QLabel* lblEditor;
    ucPath* txtEditorPath;
    QPushButton* cmdEditorPath;
    QCheckBox* ckSafetyPromptBeforeStartOfTarvolin;
    QPushButton* cmdOk;
    QPushButton* cmdCancel;
};
