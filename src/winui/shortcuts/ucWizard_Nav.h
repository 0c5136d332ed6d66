// A wizard's button bar on its window's layout: Cancel, Back and Next at its right end between two rules.
// Its pages move as cWizardNav moves them; the host hears of every move and is asked to refresh the
// buttons, which it hands back to SetButtons.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>

#include "base/Mnemonics.h"
#include "shortcuts/cWizardNav.h"

class ucWizard_Nav {
public:
    explicit ucWizard_Nav(cWizardNav::Host& host) : m_nav(host) {}

    // The bar's buttons are those of `window`.
    void Attach(HWND window) { m_window = window; }

    int16_t PageCount() const { return m_nav.PageCount(); }
    void SetPageCount(int16_t value);
    int16_t CurPageNo() const { return m_nav.CurPageNo(); }
    void ShowPage(int16_t pageNo);
    void InitControl();
    // The buttons' texts from the language files, each with its Alt+letter, which `keys` then holds too.
    void Translate(Mnemonics& keys);
    void Translate();

    void SetNextButtonCaption(const std::string& value);
    void SetCancelButtonCaption(const std::string& value);
    bool NextButtonEnabled() const;
    void SetNextButtonEnabled(bool value);
    void SetButtons(bool backEnabled, bool nextEnabled);

    // True when `id` was Back or Next, which then moved the pages.
    bool OnCommand(int id, int code);

private:
    HWND Button(int id) const { return GetDlgItem(m_window, id); }

    cWizardNav m_nav;
    HWND m_window = nullptr;
};
