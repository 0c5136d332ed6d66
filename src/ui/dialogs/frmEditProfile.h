// Creates a profile (mode 1), edits an existing one's description (2), or names a profile that is renamed,
// duplicated or handed in as text (3 to 5, see EditProfileMode): the name field, the description field, OK
// and Cancel. The name becomes the profile's section name behind "profile_" in every mode.
#pragma once

#include <cstdint>
#include <string>

#include "app/UserInterface.h"
#include "ui/dialogs/ModalDialog.h"

class Profile;
class QLabel;
class QLineEdit;
class QPushButton;

class frmEditProfile : public ModalDialog {
    Q_OBJECT

public:
    static constexpr int32_t kNewProfile = kNewProfileMode;

    explicit frmEditProfile(QWidget* parent = nullptr);

    void InitDialog(int32_t lngEditMode, Profile& oProfile);

    // False, after telling the user why, while the name or the description is missing or the name cannot
    // be stored.
    bool CheckInput();

    void TranslateDialog() override;

private slots:
    void cmdOk_Click();
    void cmdCancel_Click();

private:
    void LockNameField(bool locked);

    Profile* oProfile = nullptr;
    int32_t lngEditMode = kNewProfile;

    QLabel* lblName;
    QLineEdit* txtName;
    QLabel* lblDesc;
    QLineEdit* txtDescription;
    QPushButton* cmdOk;
    QPushButton* cmdCancel;
};
