// A wizard's title band on its window's layout: the wizard's title in bold, the page's text and its task,
// on the window colour of text fields and closed by a rule. Its texts are plain static texts, which screen
// readers read as they are.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

class ucWizard_TitleArea {
public:
    ucWizard_TitleArea() = default;
    ucWizard_TitleArea(const ucWizard_TitleArea&) = delete;
    ucWizard_TitleArea& operator=(const ucWizard_TitleArea&) = delete;
    ~ucWizard_TitleArea();

    // The band's labels are those of `window`.
    void Attach(HWND window);
    void SetTexts(const std::string& step, const std::string& stepDesc, const std::string& stepTask);
    // The colours of a static control of `window` (WM_CTLCOLORSTATIC): the band's own, nothing for others.
    std::optional<INT_PTR> Colours(HDC dc, HWND control) const;

private:
    HWND m_window = nullptr;
    HFONT m_bold = nullptr;
};
