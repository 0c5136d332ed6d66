#include "ui/net/mInternet.h"

#include <QNetworkProxyFactory>
#include <QSslSocket>

#include "ui/QtText.h"

namespace mInternet {
namespace {

constexpr int kStatusOk = 200;
// What one read takes off the connection; the socket keeps no more than this waiting either.
constexpr qint64 kReadSize = 16 * 1024;

bool IsWeb(const QUrl& url) {
    return url.isValid() &&
           (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https")) &&
           !url.host().isEmpty();
}

bool IsHttps(const QUrl& url) {
    return url.scheme() == QLatin1String("https");
}

update::Site SiteOf(const QUrl& url) {
    return {QtText::FromQt(url.scheme()), QtText::FromQt(url.host()), url.port(0)};
}

// The request for a file that must come from the server itself, never from a cache on the way. The
// connection ends with the reply, so a reply without a length ends where the server closes it.
QByteArray RequestFor(const QUrl& address) {
    const QByteArray host = address.adjusted(QUrl::RemoveUserInfo).authority(QUrl::FullyEncoded).toLatin1();
    QByteArray path = address.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority | QUrl::RemoveFragment);
    if (path.isEmpty() || path.startsWith('?'))
        path.prepend('/');
    return "GET " + path + " HTTP/1.1\r\nHost: " + host + "\r\nUser-Agent: " + kAgent +
           "\r\nAccept: */*\r\nCache-Control: no-cache\r\nPragma: no-cache\r\nConnection: close\r\n\r\n";
}

}  // namespace

Download::Download(const std::string& address, int32_t /*accessType*/, Limits limits, QObject* parent)
    : QObject(parent), m_limits(limits), m_address(QtText::ToQt(address), QUrl::StrictMode) {
    QNetworkProxyFactory::setUseSystemConfiguration(true);
    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this,
            [this] { Fail(QtText::ToQt(update::TimeoutRefusal(m_limits))); });
    if (!IsWeb(m_address)) {
        // Told on the next turn of the event loop, as every other outcome is.
        QTimer::singleShot(0, this, [this] {
            if (m_over)
                return;
            m_over = true;
            emit Failed(QString::fromLatin1(kNoInternet), QString::fromLatin1(update::kNotWebAddress));
        });
        return;
    }
    // Started on the next turn of the event loop, so that even a failure the socket reports at once
    // reaches a receiver connected after construction.
    QTimer::singleShot(0, this, [this] {
        if (!m_over)
            Get(m_address);
    });
    m_deadline.start(m_limits.timeout);
}

Download::~Download() {
    Cancel();
}

void Download::Cancel() {
    m_over = true;
    m_deadline.stop();
    Close();
}

// The connection goes at once, so that nothing a server still sends is taken in.
void Download::Close() {
    if (!m_socket)
        return;
    m_socket->disconnect(this);
    m_socket->abort();
    m_socket->deleteLater();
    m_socket = nullptr;
}

void Download::Get(const QUrl& address) {
    m_current = address;
    m_reply.emplace(static_cast<std::size_t>(m_limits.maxBytes));
    m_socket = new QSslSocket(this);
    m_socket->setReadBufferSize(kReadSize);
    connect(m_socket, &QSslSocket::readyRead, this, &Download::Read);
    connect(m_socket, &QSslSocket::disconnected, this, &Download::Ended);
    connect(m_socket, &QSslSocket::errorOccurred, this, [this](QAbstractSocket::SocketError error) {
        if (error == QAbstractSocket::RemoteHostClosedError)
            Ended();
        else if (m_socket)
            Fail(m_socket->errorString());
    });
    const QByteArray request = RequestFor(address);
    const auto send = [this, request] { m_socket->write(request); };
    if (IsHttps(address)) {
        connect(m_socket, &QSslSocket::encrypted, this, send);
        m_socket->connectToHostEncrypted(address.host(), static_cast<quint16>(address.port(443)));
    } else {
        connect(m_socket, &QSslSocket::connected, this, send);
        m_socket->connectToHost(address.host(), static_cast<quint16>(address.port(80)));
    }
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
    const std::string refusal = update::RedirectRefusal(
        SiteOf(m_address), SiteOf(target), QtText::FromQt(target.toDisplayString()), ++m_redirects, m_limits);
    if (!refusal.empty()) {
        Fail(QtText::ToQt(refusal));
        return;
    }
    Close();
    Get(target);
}

// Takes what arrived, a bounded piece at a time, until the reply is complete or has failed. True once it
// handed the reply on: the outcome may have been told, and the receiver may have deleted this object.
bool Download::Read() {
    const QPointer<QSslSocket> socket = m_socket;
    while (!m_over && socket == m_socket && m_socket && m_socket->bytesAvailable() > 0) {
        const QByteArray bytes = m_socket->read(kReadSize);
        switch (m_reply->Feed(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())))) {
            case update::HttpReply::State::Failed:
                Fail(QtText::ToQt(m_reply->Error()));
                return true;
            case update::HttpReply::State::Done:
                Done();
                return true;
            default:
                break;
        }
    }
    return false;
}

// The server closed the connection: what it sent before still counts.
void Download::Ended() {
    const QPointer<QSslSocket> socket = m_socket;
    if (Read() || m_over || !socket || socket != m_socket)
        return;
    if (m_reply->End() == update::HttpReply::State::Done)
        Done();
    else
        Fail(QtText::ToQt(m_reply->Error()));
}

void Download::Done() {
    const int status = m_reply->Status();
    if (update::IsRedirect(status, m_reply->Location())) {
        Redirected(m_current.resolved(QUrl(QtText::ToQt(m_reply->Location()))));
        return;
    }
    // A server's answer other than 200 is named by its status.
    if (status != kStatusOk) {
        Fail(QtText::ToQt(update::StatusRefusal(status)));
        return;
    }
    const QByteArray body = QByteArray::fromStdString(m_reply->Body());
    m_over = true;
    m_deadline.stop();
    Close();
    emit Finished(body);
}

}  // namespace mInternet
