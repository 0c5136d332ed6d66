// Lets the user choose the profile to work with when the remembered one is gone: every profile in a list,
// OK, Cancel and Help.
#pragma once

#include "ui/dialogs/ModalDialog.h"

class Profile;
class QLabel;
class QPushButton;
class ucProfiles;

class frmLoadProfile : public ModalDialog {
    Q_OBJECT

public:
    explicit frmLoadProfile(QWidget* parent = nullptr);

    void InitDialog();

    // The chosen member of the application's collection; nullptr while no row is selected.
    Profile* SelectedProfile() const;

    void TranslateDialog() override;

private slots:
    void cmdOk_Click();
    void cmdCancel_Click();
    void cmdHelp_Click();
    void ucProfiles1_SelectionChanged();

private:
    void EnableOk();

    QLabel* lblInfo;
    ucProfiles* ucProfiles1;
    QPushButton* cmdHelp;
    QPushButton* cmdOk;
    QPushButton* cmdCancel;
};
