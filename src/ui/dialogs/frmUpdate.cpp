#include "ui/dialogs/frmUpdate.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/PublicObjects.h"
#include "error/mError.h"
#include "platform/Platform.h"
#include "translate/cTranslate.h"
#include "ui/EntryPoint.h"
#include "ui/Named.h"
#include "ui/QtText.h"
#include "ui/dialogs/MnemonicSet.h"
#include "ui/net/mInternet.h"
#include "update/UpdateFile.h"

frmUpdate::frmUpdate(QWidget* parent) : ModalDialog("frmUpdate", "UPDATE_DIALOG", parent) {
    lblInfo = WrappedLabel("lblInfo");
    lblUpdateInfo = Named<QPlainTextEdit>(this, QStringLiteral("lblUpdateInfo"));
    lblUpdateInfo->setReadOnly(true);
    lblUpdateInfo->setMinimumHeight(fontMetrics().lineSpacing() * 7);
    prgSearching = Named<QProgressBar>(this, QStringLiteral("prgSearching"));
    prgSearching->setRange(0, 0);
    prgSearching->setTextVisible(false);
    lblStatus = WrappedLabel("lblStatus");
    lblStatus->setTextFormat(Qt::PlainText);  // it may show what a server said
    cmdSearchUpdates = Button("cmdSearchUpdates");
    cmdOpenUpdatePage = Button("cmdOpenUpdatePage");
    cmdClose = Button("cmdClose");
    ConnectEntryPoint(cmdSearchUpdates, &QPushButton::clicked, this, &frmUpdate::cmdSearchUpdates_Click,
                      "frmUpdate.cmdSearchUpdates_Click");
    ConnectEntryPoint(cmdOpenUpdatePage, &QPushButton::clicked, this, &frmUpdate::cmdOpenUpdatePage_Click,
                      "frmUpdate.cmdOpenUpdatePage_Click");
    ConnectEntryPoint(cmdClose, &QPushButton::clicked, this, &frmUpdate::cmdClose_Click,
                      "frmUpdate.cmdClose_Click");

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(lblInfo);
    layout->addWidget(lblUpdateInfo, 1);
    // The status and the busy bar share one row that keeps its height, so nothing moves while a check runs.
    auto* status = new QHBoxLayout;
    status->addWidget(lblStatus, 1);
    status->addWidget(prgSearching);
    QSizePolicy keepPlace = prgSearching->sizePolicy();
    keepPlace.setRetainSizeWhenHidden(true);
    prgSearching->setSizePolicy(keepPlace);
    prgSearching->setFixedWidth(fontMetrics().averageCharWidth() * 20);
    lblStatus->setMinimumHeight(fontMetrics().lineSpacing() * 2);
    layout->addLayout(status);
    layout->addLayout(ButtonRow({cmdSearchUpdates, cmdOpenUpdatePage, cmdClose}));
    setMinimumWidth(fontMetrics().averageCharWidth() * 72);
}

void frmUpdate::InitDialog() try {
    ResetCancel();
    Form_Load();
} catch (...) {
    mError::PassOn("frmUpdate.InitDialog");
}

void frmUpdate::Form_Load() try {
    m_updatePage.clear();
    lblUpdateInfo->clear();
    lblStatus->clear();
    cmdOpenUpdatePage->setEnabled(false);
    ShowSearching();
} catch (...) {
    mError::PassOn("frmUpdate.Form_Load");
}

void frmUpdate::TranslateDialog() try {
    setWindowTitle(ItemText("DIALOG_CAPTION"));
    lblInfo->setText(ItemText("LBL_INFO"));
    MnemonicSet keys;
    cmdSearchUpdates->setText(
        keys.Add(Searching() ? GlobalText("BTN_CANCEL") : ItemText("BTN_SEARCH_UPDATES")));
    cmdOpenUpdatePage->setText(keys.Add(ItemText("BTN_OPEN_UPDATEPAGE")));
    cmdClose->setText(keys.Add(GlobalText("BTN_CLOSE")));
    // The check's result is shown here; the window's title names it.
    lblUpdateInfo->setAccessibleName(windowTitle());
} catch (...) {
    mError::PassOn("frmUpdate.TranslateDialog");
}

// The same button starts a check and cancels a running one.
void frmUpdate::cmdSearchUpdates_Click() {
    if (Searching()) {
        delete m_download;
        EndDownload();
        lblStatus->clear();
        return;
    }
    SearchUpdates();
}

void frmUpdate::SearchUpdates() try {
    m_updatePage.clear();
    cmdOpenUpdatePage->setEnabled(false);
    lblStatus->setText(ItemText("MSG_SEARCHING"));
    m_download = new mInternet::Download(update::FileAddress(), 0, {}, this);
    ConnectEntryPoint(m_download.data(), &mInternet::Download::Finished, this, &frmUpdate::ShowReply,
                      "frmUpdate.SearchUpdates");
    ConnectEntryPoint(m_download.data(), &mInternet::Download::Failed, this, &frmUpdate::ShowFailure,
                      "frmUpdate.SearchUpdates");
    ShowSearching();
} catch (...) {
    mError::ShowError("frmUpdate.SearchUpdates");
}

// The check's second half, once the file is there.
void frmUpdate::ShowReply(const QByteArray& body) {
    EndDownload();
    lblUpdateInfo->clear();
    const update::Reply reply =
        update::ParseReply(std::string(body.constData(), static_cast<std::size_t>(body.size())));
    lblUpdateInfo->setPlainText(QtText::ToQtLines(reply.news));
    lblStatus->setText(ItemText(reply.updateExists ? "MSG_UPDATE_FOUND" : "MSG_NO_UPDATE"));
    if (!reply.updateExists)
        return;
    m_updatePage = update::CheckedPageAddress(reply);
    cmdOpenUpdatePage->setEnabled(true);
}

void frmUpdate::ShowFailure(const QString& description, const QString& detail) {
    EndDownload();
    lblStatus->setText(
        QtText::ToQt(Translator().TranslateEx("UPDATE_DIALOG", "MSG_CHECK_FAILED", QtText::FromQt(detail))));
    mError::RaiseError(update::kDownloadFailed, QtText::FromQt(description));
}

bool frmUpdate::Searching() const {
    return m_download != nullptr;
}

// While a check runs, the busy bar shows and the check's button cancels it.
void frmUpdate::ShowSearching() {
    prgSearching->setVisible(Searching());
    TranslateDialog();
}

// The download goes once it has told its outcome (it may be the one telling now), and the window shows that
// no check runs.
void frmUpdate::EndDownload() {
    if (m_download)
        m_download->deleteLater();
    m_download = nullptr;
    ShowSearching();
}

// Only a page that passed the check on the site's own host is ever handed to the shell.
void frmUpdate::cmdOpenUpdatePage_Click() {
    if (!m_updatePage.empty())
        Os().ShellExec(static_cast<int64_t>(winId()), "open", m_updatePage, "", "", kSwShowNormal);
}

void frmUpdate::cmdClose_Click() {
    reject();
}

// Closing ends a running check first.
void frmUpdate::reject() {
    delete m_download;
    ModalDialog::reject();
}
