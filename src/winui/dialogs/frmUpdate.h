// The update check: asks the maker's site whether a newer version exists, shows the news of the update
// file, and opens the update page when there is one. The download runs off the window's thread with a busy
// bar; the check's button cancels it at once, and closing the window does too. A failure is reported and
// leaves the window open.
#pragma once

#include <memory>
#include <string>

#include "winui/Modal.h"
#include "winui/net/mInternet.h"

class frmUpdate : public ModalDialog {
public:
    // The message a finished download posts to the window.
    static constexpr UINT kDownloadEnded = WM_APP + 1;

    frmUpdate();
    void InitDialog();

    // True while a check runs.
    bool Searching() const { return m_download != nullptr; }

protected:
    void TranslateDialog() override;
    void OnShow() override;
    void OnCommand(int id, int code) override;
    std::optional<INT_PTR> OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

private:
    void cmdSearchUpdates_Click();
    void cmdOpenUpdatePage_Click();
    void SearchUpdates();
    void DownloadEnded(WPARAM id);
    void ShowReply(const std::string& body);
    void ShowFailure(const mInternet::Outcome& outcome);
    void ShowSearching();
    void EndDownload();

    std::string m_updatePage;
    std::unique_ptr<mInternet::Download> m_download;
};
