#include "TestHttpServer.h"

#include <QTcpSocket>
#include <QTimer>

namespace {

// The status line and headers; `length` < 0 leaves the end of the body to the closing of the connection.
QByteArray Head(const TestHttpServer::Route& route, qint64 length) {
    QByteArray head = "HTTP/1.1 " + QByteArray::number(route.status) + " Test\r\nConnection: close\r\n";
    if (length >= 0)
        head += "Content-Length: " + QByteArray::number(length) + "\r\n";
    for (const auto& [name, value] : route.headers)
        head += name + ": " + value + "\r\n";
    return head + "\r\n";
}

TestHttpServer::Request Parse(const QByteArray& head) {
    const QList<QByteArray> lines = head.split('\n');
    TestHttpServer::Request request{lines.value(0).split(' ').value(1), {}, {}};
    for (const QByteArray& line : lines) {
        const qsizetype colon = line.indexOf(':');
        const QByteArray name = line.left(colon).trimmed().toLower();
        if (name == "host")
            request.host = line.mid(colon + 1).trimmed();
        else if (name == "user-agent")
            request.agent = line.mid(colon + 1).trimmed();
    }
    return request;
}

}  // namespace

TestHttpServer::TestHttpServer() {
    connect(&m_server, &QTcpServer::newConnection, this, &TestHttpServer::Accept);
    m_server.listen(QHostAddress::LocalHost, 0);
}

TestHttpServer::Route TestHttpServer::Ok(const QByteArray& body, bool announceLength) {
    return {.body = body, .announceLength = announceLength};
}

TestHttpServer::Route TestHttpServer::Status(int status) {
    return {.status = status, .body = "status page"};
}

TestHttpServer::Route TestHttpServer::Redirect(const QByteArray& location) {
    return {.status = 302, .headers = {{"Location", location}}};
}

TestHttpServer::Route TestHttpServer::Behaving(Kind kind) {
    return {.kind = kind, .body = "the first part of the body"};
}

QUrl TestHttpServer::Url(const QString& path) const {
    return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(m_server.serverPort()).arg(path));
}

QByteArray TestHttpServer::Host() const {
    return "127.0.0.1:" + QByteArray::number(m_server.serverPort());
}

void TestHttpServer::Accept() {
    while (QTcpSocket* socket = m_server.nextPendingConnection()) {
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { Read(socket); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }
}

// Each connection carries one request; it is answered once its head is complete.
void TestHttpServer::Read(QTcpSocket* socket) {
    const QByteArray received = socket->property("received").toByteArray() + socket->readAll();
    socket->setProperty("received", received);
    const qsizetype end = received.indexOf("\r\n\r\n");
    if (end < 0 || socket->property("answered").toBool())
        return;
    socket->setProperty("answered", true);
    m_requests.append(Parse(received.left(end)));
    Answer(socket, m_routes.value(m_requests.last().path, Status(404)));
}

void TestHttpServer::Answer(QTcpSocket* socket, Route route) {
    for (auto& header : route.headers)
        header.second.replace("{port}", QByteArray::number(m_server.serverPort()));
    switch (route.kind) {
        case Kind::Reply:
            socket->write(Head(route, route.announceLength ? route.body.size() : -1) + route.body);
            socket->disconnectFromHost();
            break;
        case Kind::Silent:
            break;
        case Kind::Trickle:
            Trickle(socket, route);
            break;
        case Kind::CutShort:
            socket->write(Head(route, 2 * route.body.size()) + route.body);
            socket->flush();
            socket->abort();
            break;
    }
}

void TestHttpServer::Trickle(QTcpSocket* socket, const Route& route) {
    socket->write(Head(route, -1));
    auto* timer = new QTimer(socket);
    connect(timer, &QTimer::timeout, socket, [socket] { socket->write("x"); });
    timer->start(route.interval);
}
