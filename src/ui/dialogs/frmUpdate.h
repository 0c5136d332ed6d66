// The update check: asks the maker's site whether a newer version exists, shows the news of the update
// file, and opens the update page when there is one. The check runs on the event loop with a busy bar and
// can be cancelled; a failure is reported and leaves the window open.
#pragma once

#include <QPointer>
#include <string>

#include "ui/dialogs/ModalDialog.h"

class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
namespace mInternet {
class Download;
}

class frmUpdate : public ModalDialog {
    Q_OBJECT

public:
    explicit frmUpdate(QWidget* parent = nullptr);

    void InitDialog();
    void TranslateDialog() override;

    // True while a check runs.
    bool Searching() const;

protected:
    void reject() override;

private:
    void Form_Load();
    void cmdSearchUpdates_Click();
    void cmdOpenUpdatePage_Click();
    void cmdClose_Click();
    void SearchUpdates();
    void ShowReply(const QByteArray& body);
    void ShowFailure(const QString& description, const QString& detail);
    void ShowSearching();
    void EndDownload();

    std::string m_updatePage;
    QPointer<mInternet::Download> m_download;

    QLabel* lblInfo;
    QPlainTextEdit* lblUpdateInfo;
    QProgressBar* prgSearching;
    QLabel* lblStatus;
    QPushButton* cmdSearchUpdates;
    QPushButton* cmdOpenUpdatePage;
    QPushButton* cmdClose;
};
