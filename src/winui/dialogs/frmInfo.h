// The about box: the program's name and version, what it does, thanks, and the maker's web page and e-mail
// address, on three pages behind a row of drawn tabs.
#pragma once

#include <array>

#include "resource.h"
#include "winui/Modal.h"
#include "winui/controls/ucTab.h"

class frmInfo : public ModalDialog {
public:
    static constexpr int kPageCount = 3;

    frmInfo();
    ~frmInfo() override;
    void InitDialog() {}

    // Activates tab `index` and shows its page.
    void ucTab1_Click(int index);
    int ActivePage() const { return m_tabs.Active(); }

protected:
    void MakeControls() override;
    void TranslateDialog() override;
    void OnShow() override;
    void OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    HWND Control(int id) const;

    std::array<HWND, kPageCount> m_pages{};
    ucTab::Row m_tabs{IDC_ucTab2_0, kPageCount, IDC_Shape2};
    HFONT m_bold = nullptr;
};
