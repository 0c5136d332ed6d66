#include "winui/dialogs/frmEditProfile.h"

#include "app/PublicObjects.h"
#include "app/UserInterface.h"
#include "error/mError.h"
#include "profiles/Profile.h"
#include "profiles/ProfileInput.h"
#include "resource.h"
#include "translate/cTranslate.h"
#include "winui/WinText.h"

frmEditProfile::frmEditProfile() : ModalDialog("frmEditProfile", IDD_frmEditProfile, "EDIT_PROFILE_DIALOG") {}

void frmEditProfile::InitDialog(int lngEditMode, Profile& oProfile) {
    m_editMode = lngEditMode;
    m_profile = &oProfile;
    ResetCancel();
}

void frmEditProfile::OnShow() {
    const bool newProfile = m_editMode == kNewProfileMode;
    const bool locked = !ProfileInput::NameEditable(m_editMode);
    SendMessageA(Item(IDC_txtName), EM_SETREADONLY, locked, 0);
    WinText::SetItem(Handle(), IDC_txtName, newProfile ? "" : m_profile->ProfileCaption());
    WinText::SetItem(Handle(), IDC_txtProfileDescription, newProfile ? "" : m_profile->ProfileDescription());
    SetFocus(Item(locked ? IDC_txtProfileDescription : IDC_txtName));
    SendMessageA(Item(IDC_txtName), EM_SETSEL, 0, -1);
}

void frmEditProfile::TranslateDialog() try {
    WinText::Set(Handle(), TranslateDialogItem(ProfileInput::CaptionKey(m_editMode)));
    Mnemonics keys = WinText::KeySet();
    WinText::SetItem(Handle(), IDC_lblName, keys.Add(TranslateDialogItem("LBL_NAME")));
    WinText::SetItem(Handle(), IDC_lblDesc, keys.Add(TranslateDialogItem("LBL_DESCRIPTION")));
    WinText::SetItem(Handle(), IDC_cmdOk, Translator().TranslateEx("GLOBAL", "BTN_OK"));
    WinText::SetItem(Handle(), IDC_cmdCancel, Translator().TranslateEx("GLOBAL", "BTN_CANCEL"));
} catch (...) {
    mError::PassOn("frmEditProfile.TranslateDialog");
}

bool frmEditProfile::CheckInput() try {
    const auto problem =
        ProfileInput::Check(ProfileInput::NameEditable(m_editMode), WinText::Item(Handle(), IDC_txtName),
                            WinText::Item(Handle(), IDC_txtProfileDescription));
    if (!problem)
        return true;
    Ui().MsgBox(TranslateDialogItem(problem->key), vbOKOnly);
    SetFocus(Item(problem->field == ProfileInput::Field::kName ? IDC_txtName : IDC_txtProfileDescription));
    return false;
} catch (...) {
    mError::PassOn("frmEditProfile.CheckInput");
}

void frmEditProfile::OnCommand(int id, int code) {
    if (id != IDC_cmdOk || code != BN_CLICKED)
        return ModalDialog::OnCommand(id, code);
    mError::AsEntryPoint("frmEditProfile.cmdOk_Click", [this] {
        if (!CheckInput())
            return;
        m_profile->SetProfileName(Profile::kNamePrefix + WinText::Item(Handle(), IDC_txtName));
        m_profile->SetProfileDescription(WinText::Item(Handle(), IDC_txtProfileDescription));
        Confirm();
    });
}
