#include "ui/net/mInternet.h"

#include <QNetworkAccessManager>
#include <QNetworkProxyFactory>
#include <QNetworkReply>
#include <QNetworkRequest>

#include "ui/QtText.h"

namespace mInternet {
namespace {

constexpr int kStatusOk = 200;

bool IsWeb(const QUrl& url) {
    return url.isValid() &&
           (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https")) &&
           !url.host().isEmpty();
}

QNetworkRequest RequestFor(const QUrl& address) {
    QNetworkRequest request(address);
    request.setHeader(QNetworkRequest::UserAgentHeader, QString::fromLatin1(kAgent));
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    // Redirects are followed here rather than by Qt: an automatic one is under way before its host could be
    // checked, and Qt's own checking sends requests twice and loses the reply after a few redirects.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    return request;
}

}  // namespace

Download::Download(const std::string& address, int32_t /*accessType*/, Limits limits, QObject* parent)
    : QObject(parent), m_limits(limits), m_address(QtText::ToQt(address), QUrl::StrictMode) {
    QNetworkProxyFactory::setUseSystemConfiguration(true);
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this, [this] {
        Fail(QStringLiteral("no complete answer within %1 s").arg(m_limits.timeout.count() / 1000.0));
    });
    if (!IsWeb(m_address)) {
        // Told on the next turn of the event loop, as every other outcome is.
        QTimer::singleShot(0, this, [this] {
            if (m_over)
                return;
            m_over = true;
            emit Failed(QString::fromLatin1(kNoInternet), QStringLiteral("not a web address"));
        });
        return;
    }
    m_network = new QNetworkAccessManager(this);
    Get(m_address);
    m_deadline.start(m_limits.timeout);
}

Download::~Download() {
    Cancel();
}

void Download::Cancel() {
    m_over = true;
    m_deadline.stop();
    if (m_reply) {
        m_reply->disconnect(this);
        m_reply->abort();
    }
}

void Download::Get(const QUrl& address) {
    m_reply = m_network->get(RequestFor(address));
    connect(m_reply, &QNetworkReply::metaDataChanged, this, &Download::CheckSize);
    connect(m_reply, &QNetworkReply::readyRead, this, &Download::CheckSize);
    connect(m_reply, &QNetworkReply::finished, this, &Download::Done);
}

void Download::Fail(const QString& detail) {
    if (m_over)
        return;
    Cancel();
    emit Failed(QString::fromLatin1(kNotFound), detail);
}

// A redirect stays on the address's own host, scheme and port, and only so many of them are followed: a
// reply fetched over https never continues over plain http.
void Download::Redirected(const QUrl& target) {
    const bool sameSite = IsWeb(target) && target.scheme() == m_address.scheme() &&
                          target.host().compare(m_address.host(), Qt::CaseInsensitive) == 0 &&
                          target.port(-1) == m_address.port(-1);
    if (!sameSite) {
        Fail(QStringLiteral("sent on to %1").arg(target.toDisplayString()));
        return;
    }
    if (++m_redirects > m_limits.maxRedirects) {
        Fail(QStringLiteral("more than %1 redirects").arg(m_limits.maxRedirects));
        return;
    }
    m_reply->disconnect(this);
    m_reply->deleteLater();
    Get(target);
}

// Announced or received, more than the limit ends the download; true when it did.
bool Download::CheckSize() {
    if (!m_reply)
        return false;
    const QVariant announced = m_reply->header(QNetworkRequest::ContentLengthHeader);
    if ((announced.isValid() && announced.toLongLong() > m_limits.maxBytes) ||
        m_reply->bytesAvailable() > m_limits.maxBytes) {
        Fail(QStringLiteral("the reply is longer than %1 KiB").arg(m_limits.maxBytes / 1024));
        return true;
    }
    return false;
}

void Download::Done() {
    // Nothing of this object is touched after a failure was told: its receiver may have deleted it.
    if (m_over || !m_reply || CheckSize())
        return;
    const QVariant status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    const QUrl target = m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (status.isValid() && !target.isEmpty()) {
        Redirected(m_reply->url().resolved(target));
        return;
    }
    // A server's answer other than 200 is named by its status; everything else by what the network says.
    if (status.isValid() && status.toInt() != kStatusOk) {
        Fail(QStringLiteral("HTTP status %1").arg(status.toInt()));
        return;
    }
    if (m_reply->error() != QNetworkReply::NoError || !status.isValid()) {
        Fail(m_reply->errorString());
        return;
    }
    const QByteArray body = m_reply->readAll();
    m_over = true;
    m_deadline.stop();
    emit Finished(body);
}

}  // namespace mInternet
