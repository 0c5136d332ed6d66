// The download of one small text file from the web, never from a cache, through the system's proxy
// settings, as "Pavonel Internet Update". A reply counts only with HTTP status 200, complete, and within
// the limits: the whole download ends after `timeout` (also when data keeps trickling in), a reply longer
// than `maxBytes` (or a head longer than update::HttpReply allows) is a failure rather than a cut text, and
// redirects are followed only on the address's own host, at most `maxRedirects` of them. It runs on the
// event loop, so the window that started it stays responsive, and it can be cancelled.
// The reply is read off the connection by update::HttpReply as it arrives, so no server can make the
// program take in more than the limits, however fast or long it sends.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QSslSocket>
#include <QString>
#include <QTimer>
#include <QUrl>
#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include "update/DownloadRules.h"
#include "update/HttpReply.h"

namespace mInternet {

using update::kAgent;
using update::kNoInternet;
using update::kNotFound;
using update::Limits;

class Download : public QObject {
    Q_OBJECT

public:
    // Starts at once; `accessType` 0 is the system's own settings, the only kind there is.
    Download(const std::string& address, int32_t accessType, Limits limits = {}, QObject* parent = nullptr);
    ~Download() override;

    // Ends the download without a signal.
    void Cancel();

signals:
    void Finished(const QByteArray& body);
    // `description` is kNoInternet or kNotFound; `detail` says what happened, for the user.
    void Failed(const QString& description, const QString& detail);

private:
    void Get(const QUrl& address);
    void Fail(const QString& detail);
    void Redirected(const QUrl& target);
    bool Read();
    void Ended();
    void Done();
    void Close();

    Limits m_limits;
    QUrl m_address;
    QUrl m_current;  // the address now asked, after redirects
    QPointer<QSslSocket> m_socket;
    std::optional<update::HttpReply> m_reply;
    QTimer m_deadline;
    bool m_over = false;  // finished, failed or cancelled: nothing more is told
    int m_redirects = 0;
};

}  // namespace mInternet
