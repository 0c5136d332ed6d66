// A small HTTP/1.1 server on 127.0.0.1 for the download tests. It runs on the test's own event loop and
// answers each path the way the test set up: a plain reply, or one of the ways a web server goes wrong
// (silent, trickling, cut off). It keeps every request it received.
#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QObject>
#include <QPair>
#include <QTcpServer>
#include <QUrl>
#include <chrono>

class QTcpSocket;

class TestHttpServer : public QObject {
    Q_OBJECT

public:
    enum class Kind {
        Reply,     // status, headers and body, then the connection is closed
        Silent,    // the request is read and never answered
        Trickle,   // the head, then the body one byte every `interval`
        CutShort,  // the head and a part of the body, then the connection is aborted
    };
    struct Route {
        Kind kind = Kind::Reply;
        int status = 200;
        QByteArray body{};
        QList<QPair<QByteArray, QByteArray>> headers{};  // "{port}" in a value is this server's port
        bool announceLength = true;                      // send Content-Length (Kind::Reply)
        std::chrono::milliseconds interval{1000};
    };
    struct Request {
        QByteArray path{};
        QByteArray host{};
        QByteArray agent{};
    };

    TestHttpServer();

    static Route Ok(const QByteArray& body, bool announceLength = true);
    static Route Status(int status);
    static Route Redirect(const QByteArray& location);
    static Route Behaving(Kind kind);

    void Serve(const QByteArray& path, const Route& route) { m_routes[path] = route; }
    QUrl Url(const QString& path) const;
    // The Host header a request to this server carries.
    QByteArray Host() const;
    const QList<Request>& Requests() const { return m_requests; }

private:
    void Accept();
    void Read(QTcpSocket* socket);
    void Answer(QTcpSocket* socket, Route route);
    void Trickle(QTcpSocket* socket, const Route& route);

    QMap<QByteArray, Route> m_routes;
    QList<Request> m_requests;
    QTcpServer m_server;  // last, so its connections end before the routes and requests they use
};
