// Shows every profile with its description; a click on a column's header sorts the list by it.
#pragma once

#include "ui/dialogs/ModalDialog.h"

class QLabel;
class QPushButton;
class ucProfiles;

class frmProfiles : public ModalDialog {
    Q_OBJECT

public:
    explicit frmProfiles(QWidget* parent = nullptr);

    void InitDialog();

    void TranslateDialog() override;

private slots:
    void cmdClose_Click();

private:
    ucProfiles* ucProfiles1;
    QPushButton* cmdClose;
};
