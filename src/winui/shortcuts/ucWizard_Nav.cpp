#include "winui/shortcuts/ucWizard_Nav.h"

#include "error/mError.h"
#include "resource.h"
#include "winui/WinText.h"

namespace {

// The bar reports under the path field's module name, as it always has.
std::string Procedure(const char* name) {
    return std::string("ucPath.") + name;
}

}  // namespace

void ucWizard_Nav::SetPageCount(int16_t value) try { m_nav.SetPageCount(value); } catch (...) {
    mError::ShowError(Procedure("PageCount"));
}

void ucWizard_Nav::ShowPage(int16_t pageNo) try { m_nav.ShowPage(pageNo); } catch (...) {
    mError::ShowError(Procedure("ShowPage"));
}

void ucWizard_Nav::InitControl() {
    ShowPage(1);
}

void ucWizard_Nav::Translate(Mnemonics& keys) try {
    const cWizardNav::Captions captions = cWizardNav::Translated();
    WinText::Set(Button(IDC_cmdNext), keys.Add(captions.next));
    WinText::Set(Button(IDC_cmdBack), keys.Add(captions.back));
    WinText::Set(Button(IDC_cmdCancel), keys.Add(captions.cancel));
} catch (...) {
    mError::ShowError(Procedure("Translate"));
}

void ucWizard_Nav::Translate() {
    Mnemonics keys = WinText::KeySet();
    Translate(keys);
}

void ucWizard_Nav::SetNextButtonCaption(const std::string& value) {
    WinText::Set(Button(IDC_cmdNext), value);
}

void ucWizard_Nav::SetCancelButtonCaption(const std::string& value) {
    WinText::Set(Button(IDC_cmdCancel), value);
}

bool ucWizard_Nav::NextButtonEnabled() const {
    return IsWindowEnabled(Button(IDC_cmdNext)) != FALSE;
}

void ucWizard_Nav::SetNextButtonEnabled(bool value) {
    EnableWindow(Button(IDC_cmdNext), value);
}

void ucWizard_Nav::SetButtons(bool backEnabled, bool nextEnabled) {
    EnableWindow(Button(IDC_cmdBack), backEnabled);
    EnableWindow(Button(IDC_cmdNext), nextEnabled);
}

bool ucWizard_Nav::OnCommand(int id, int code) {
    if (code != BN_CLICKED)
        return false;
    if (id == IDC_cmdNext)
        mError::AsEntryPoint(Procedure("cmdNext_Click"), [this] { m_nav.Next(); });
    else if (id == IDC_cmdBack)
        mError::AsEntryPoint(Procedure("cmdBack_Click"), [this] { m_nav.Back(); });
    return id == IDC_cmdNext || id == IDC_cmdBack;
}
