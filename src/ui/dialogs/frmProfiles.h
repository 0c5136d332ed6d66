// Shows every profile with its description; a click on a column's header sorts the list by it. The buttons
// beside Close rename, duplicate or delete the selected profile; the standard profile is only duplicated.
#pragma once

#include "ui/dialogs/ModalDialog.h"

class Profile;
class QLabel;
class QPushButton;
class ucProfiles;

class frmProfiles : public ModalDialog {
    Q_OBJECT

public:
    explicit frmProfiles(QWidget* parent = nullptr);

    void InitDialog();

    void TranslateDialog() override;

    // True when a profile was renamed, duplicated or deleted here.
    bool ProfilesChanged() const { return m_changed; }

private slots:
    void cmdRename_Click();
    void cmdDuplicate_Click();
    void cmdDelete_Click();
    void cmdClose_Click();

private:
    // Lists the profiles anew with `current` (the active one when there is none) as the current row.
    void ShowProfiles(const Profile* current);
    void ShowChanged(const Profile* current);
    void EnableButtons();

    ucProfiles* ucProfiles1;
    QPushButton* cmdRename;
    QPushButton* cmdDuplicate;
    QPushButton* cmdDelete;
    QPushButton* cmdClose;
    bool m_changed = false;
};
