// Asks which changed profiles to save: every changed profile in a list, all of them selected at first;
// Yes saves the selected ones, No saves nothing.
#pragma once

#include <string>

#include "ui/dialogs/ModalDialog.h"

class QLabel;
class QPushButton;
class ucProfiles;

class frmSave : public ModalDialog {
    Q_OBJECT

public:
    explicit frmSave(QWidget* parent = nullptr);

    void InitDialog();

    void TranslateDialog() override;

private slots:
    void Command1_Click();
    void Command2_Click();

private:
    QLabel* lblListTitle;
    ucProfiles* ucProfiles1;
    QLabel* lblListInfo;
    QPushButton* Command1;
    QPushButton* Command2;
};
