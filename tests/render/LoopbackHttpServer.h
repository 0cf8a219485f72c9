#pragma once

#include <QByteArray>
#include <QHash>
#include <QHostAddress>
#include <QList>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QUrl>

#include <memory>

// A tiny HTTP/1.1 server on 127.0.0.1 (never any other address) for tests: fixed
// answers by path, one request per connection, and a record of what was asked.
class LoopbackHttpServer : public QObject
{
public:
    // How the body goes out: all at once with its length, one byte at a time
    // forever (a server that never finishes but is never silent), or the body
    // over and over as fast as the connection takes it (a page without end).
    enum class Delivery { Whole, Drip, Endless };
    struct Answer {
        int status = 200;
        QByteArray contentType = "text/html; charset=utf-8";
        QByteArray body;
        QList<QByteArray> extraHeaders = {};
        Delivery delivery = Delivery::Whole;
    };
    struct Request {
        QByteArray path;
        QHash<QByteArray, QByteArray> headers; // names lower-cased
    };

    LoopbackHttpServer()
    {
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *socket = m_server.nextPendingConnection())
                serve(socket);
        });
        m_server.listen(QHostAddress(QHostAddress::LocalHost), 0);
    }

    bool isListening() const { return m_server.isListening(); }
    QUrl url(const QString &path) const
    {
        return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(m_server.serverPort()).arg(path));
    }
    void answer(const QByteArray &path, Answer answer) { m_answers.insert(path, std::move(answer)); }
    const QList<Request> &requests() const { return m_requests; }
    QList<QByteArray> requestedPaths() const
    {
        QList<QByteArray> paths;
        for (const Request &request : m_requests)
            paths.append(request.path);
        return paths;
    }

private:
    void serve(QTcpSocket *socket)
    {
        auto *buffer = new QByteArray;
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QObject::destroyed, socket, [buffer] { delete buffer; });
        connect(socket, &QTcpSocket::readyRead, this, [this, socket, buffer] {
            buffer->append(socket->readAll());
            const qsizetype end = buffer->indexOf("\r\n\r\n");
            if (end < 0)
                return;
            const QList<QByteArray> lines = buffer->left(end).split('\n');
            Request request;
            const QList<QByteArray> requestLine = lines.value(0).trimmed().split(' ');
            request.path = requestLine.value(1);
            for (qsizetype i = 1; i < lines.size(); ++i) {
                const qsizetype colon = lines[i].indexOf(':');
                if (colon > 0)
                    request.headers.insert(lines[i].left(colon).trimmed().toLower(), lines[i].mid(colon + 1).trimmed());
            }
            m_requests.append(request);
            const Answer answer = m_answers.value(request.path, Answer{404, "text/plain", "Not found"});
            QByteArray response = "HTTP/1.1 " + QByteArray::number(answer.status) + " Status\r\n";
            response += "Content-Type: " + answer.contentType + "\r\n";
            for (const QByteArray &header : answer.extraHeaders)
                response += header + "\r\n";
            if (answer.delivery == Delivery::Whole) {
                response += "Content-Length: " + QByteArray::number(answer.body.size()) + "\r\n";
                response += "Connection: close\r\n\r\n" + answer.body;
                socket->write(response);
                socket->disconnectFromHost();
                return;
            }
            socket->write(response + "Connection: close\r\n\r\n");
            stream(socket, answer);
        });
    }

    static void stream(QTcpSocket *socket, const Answer &answer)
    {
        auto *timer = new QTimer(socket);
        const bool drip = answer.delivery == Delivery::Drip;
        timer->setInterval(drip ? 100 : 0);
        auto position = std::make_shared<qsizetype>(0);
        QObject::connect(timer, &QTimer::timeout, socket, [socket, body = answer.body, drip, position] {
            if (socket->state() != QAbstractSocket::ConnectedState || body.isEmpty())
                return;
            if (drip) {
                socket->write(body.mid(*position % body.size(), 1));
                ++*position;
            } else if (socket->bytesToWrite() < 4 * body.size()) {
                socket->write(body);
            }
        });
        timer->start();
    }

    QTcpServer m_server;
    QHash<QByteArray, Answer> m_answers;
    QList<Request> m_requests;
};
