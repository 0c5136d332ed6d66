// The error report window: the failure's description, the report a user sends to the maker, and the way
// to send it, on two pages behind a tab strip. It works before the application object and the translation
// engine exist (a failure at start-up); its texts are then the English ones.
#pragma once

#include "app/UserInterface.h"
#include "winui/Modal.h"

class frmError : public ModalDialog {
public:
    enum Page { kReportPage = 0, kContactPage = 1 };

    frmError();
    void InitDialog(const ErrorReport& report) { m_report = report; }
    // Brings the page `index` (a Page) into view.
    void ActivatePage(int index);

protected:
    void TranslateDialog() override;
    void OnShow() override;
    void OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    // The text of `key` in the window's section, or `english` while there is nothing to translate with.
    std::string DialogText(const char* key, const char* english) const;
    void ShowPage(Page page);

    ErrorReport m_report;
};
