// The shortcut wizard: six pages that lead to a shortcut starting the game, plainly or with the active
// profile's command line as it was when the wizard opened. The title band lies on top, the pages below it
// one at a time, the button bar at the bottom; the rules are the wizard's (ShortcutWizard).
#pragma once

#include <array>
#include <string>

#include "shortcuts/ShortcutWizard.h"
#include "shortcuts/cWizardNav.h"
#include "winui/Modal.h"
#include "winui/shortcuts/ucWizard_Nav.h"
#include "winui/shortcuts/ucWizard_TitleArea.h"

class Profile;

class frmCreateTarvolinShortcut_New : public ModalDialog, private cWizardNav::Host {
public:
    frmCreateTarvolinShortcut_New();

    void InitDialog(const Profile& profile);
    int16_t CurPageNo() const { return nav.CurPageNo(); }
    // Shows page `pageNo` as the bar does, without the checks of a move.
    void ShowPage(int16_t pageNo) { nav.ShowPage(pageNo); }

protected:
    // Building the window (frmCreateTarvolinShortcut_New.cpp).
    void MakeControls() override;
    void TranslateDialog() override;
    void OnShow() override;
    void OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    HWND Control(int id) const { return FindControl(Handle(), id); }
    std::string FieldText(int id) const;
    void SetFieldText(int id, const std::string& text) const;

    // What the pages do (frmCreateTarvolinShortcut_NewSteps.cpp).
    void SetDefaultLinkName();
    void cmdSelLinkDestFolder_Click();
    void opDest_Click(int index);
    void cmdSelFolder_Click();
    void ckCreateFurtherShortcut_Click();
    ShortcutWizard::Fields Fields() const;
    void OnLeavePage(int16_t pageNo, bool& cancel) override;
    void OnBackClicked(int16_t, bool&) override {}
    void OnNextClicked(int16_t pageNo, bool& cancel) override;
    void OnPageShowing(int16_t pageNo) override;
    void OnRefreshButtons(bool backEnabled, bool nextEnabled) override;

    ShortcutWizard m_rules;
    std::string m_target;
    std::string m_settings;
    std::array<HWND, ShortcutWizard::kPages> picStep{};
    ucWizard_TitleArea titleArea;
    ucWizard_Nav nav{*this};
};
