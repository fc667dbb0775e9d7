#include "support/FakeHttpService.h"

#include <QTcpSocket>

using namespace Qt::StringLiterals;

FakeHttpService::FakeHttpService()
{
    if (!m_server.listen(QHostAddress::LocalHost))
        qFatal("no port on the loopback address");
    connect(&m_server, &QTcpServer::newConnection, this, [this] {
        QTcpSocket *socket = m_server.nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    });
}

QUrl FakeHttpService::url(const QString &path) const
{
    return QUrl(u"http://127.0.0.1:%1%2"_s.arg(QString::number(m_server.serverPort()), path));
}

void FakeHttpService::answer(const QString &request, const QList<FakeReply> &replies)
{
    m_replies.insert(request, replies);
}

QStringList FakeHttpService::requestLines() const
{
    QStringList lines;
    for (const FakeRequest &request : m_requests)
        lines << request.method + u' ' + request.target.path();
    return lines;
}

void FakeHttpService::read(QTcpSocket *socket)
{
    QByteArray &received = m_received[socket];
    received += socket->readAll();
    const qsizetype headEnd = received.indexOf("\r\n\r\n");
    if (headEnd < 0)
        return;
    const QList<QByteArray> lines = received.first(headEnd).split('\n');
    const QList<QByteArray> words = lines.first().split(' ');
    FakeRequest request{.method = QString::fromLatin1(words.at(0)),
                        .target = QUrl(QString::fromLatin1(words.at(1)))};
    for (const QByteArray &line : lines.sliced(1)) {
        const qsizetype colon = line.indexOf(':');
        request.headers.insert(line.first(colon).toLower(), line.sliced(colon + 1).trimmed());
    }
    const qsizetype length = request.headers.value("content-length").toLongLong();
    if (received.size() < headEnd + 4 + length)
        return;
    request.body = received.sliced(headEnd + 4, length);
    received.remove(0, headEnd + 4 + length);
    m_requests.append(request);
    reply(socket, request);
}

void FakeHttpService::reply(QTcpSocket *socket, const FakeRequest &request)
{
    QList<FakeReply> &replies = m_replies[request.method + u' ' + request.target.path()];
    const FakeReply reply = replies.isEmpty() ? FakeReply{.status = 404} : replies.first();
    if (replies.size() > 1)
        replies.removeFirst();
    if (reply.hangs)
        return;
    if (reply.drops) {
        socket->abort();
        return;
    }
    socket->write("HTTP/1.1 " + QByteArray::number(reply.status) + " Told\r\n" + reply.headers
                  + "Content-Length: " + QByteArray::number(reply.body.size()) + "\r\n\r\n"
                  + reply.body);
}
