// The confirmation shown before the game starts: the command line it will get, a warning about the
// resolution, and the choice to skip this window from now on.
#pragma once

#include <string>

#include "ui/dialogs/ModalDialog.h"

class QCheckBox;
class QLayout;
class QLabel;
class QPushButton;
class Profile;

class frmStartingTarvolin : public ModalDialog {
    Q_OBJECT

public:
    explicit frmStartingTarvolin(QWidget* parent = nullptr);

    void InitDialog(const Profile& oProfile);

    void TranslateDialog() override;

private slots:
    void cmdOk_Click();
    void cmdCancel_Click();

private:
    QLayout* CreateButtonRow();

    QLabel* lblCaption;
    QLabel* lblInfo;
    QLabel* lblWarning;
    QCheckBox* ckDontShowThisDialogAgain;
    QPushButton* cmdOk;
    QPushButton* cmdCancel;
};
