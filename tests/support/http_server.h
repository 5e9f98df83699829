// SPDX-FileCopyrightText: 2026 the my_classes authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/QHash>
#include <QtCore/QTimer>
#include <QtNetwork/QTcpServer>
#include <QtNetwork/QTcpSocket>

#include <functional>

namespace test_support {

/// An HTTP server on the loopback address that answers each path byte by byte as the test wants, faults included.
class HttpServer : public QTcpServer
{
public:
    using Answer = std::function<void(QTcpSocket *)>;

    HttpServer()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
                const QByteArray request = socket->peek(socket->bytesAvailable());
                if (!request.contains("\r\n\r\n"))
                    return;
                socket->readAll();
                answers.value(request.split(' ').value(1), status("500 No Such Answer"))(socket);
            });
        });
    }

    QString url(const QByteArray &path) const
    {
        return QStringLiteral("http://127.0.0.1:%1").arg(serverPort()) + QString::fromLatin1(path);
    }

    static QByteArray header(const QByteArray &status_line, const QByteArray &fields)
    {
        return "HTTP/1.1 " + status_line + "\r\n" + fields + "\r\n";
    }

    /// The bytes as they stand; then the connection is closed, if wanted.
    static Answer raw(const QByteArray &bytes, bool close)
    {
        return [bytes, close](QTcpSocket *socket) {
            socket->write(bytes);
            if (close)
                socket->disconnectFromHost();
        };
    }

    static Answer status(const QByteArray &status_line, const QByteArray &body = {}, const QByteArray &more_fields = {})
    {
        return raw(header(status_line, "Content-Length: " + QByteArray::number(body.size()) + "\r\n" + more_fields) +
                       body,
                   false);
    }

    /// The body in `pieces`, one each `interval_ms`.
    static Answer drip(const QByteArray &body, int pieces, int interval_ms)
    {
        return [=](QTcpSocket *socket) {
            socket->write(header("200 OK", "Content-Length: " + QByteArray::number(body.size()) + "\r\n"));
            const qsizetype size = body.size() / pieces + 1;
            auto *timer = new QTimer(socket);
            connect(timer, &QTimer::timeout, socket, [=, at = qsizetype(0)]() mutable {
                socket->write(body.mid(at, size));
                at += size;
                if (at >= body.size())
                    timer->deleteLater();
            });
            timer->start(interval_ms);
        };
    }

    QHash<QByteArray, Answer> answers;
};

} // namespace test_support
