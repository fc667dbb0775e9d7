#include "kestaccount/WebAuthHandler.h"

#include <QTcpServer>
#include <QTcpSocket>

using namespace Qt::StringLiterals;

namespace KestAccount {

namespace {

constexpr quint16 kPreferredPort = 19876;
constexpr qsizetype kLongestRequestLine = 65536;

constexpr char kResponse[] =
    "HTTP/1.1 200 OK\r\nContent-Type: text/html\r\nConnection: close\r\n\r\n"
    "<html><body style='font-family: sans-serif; text-align: center; padding: 40px;'>"
    "<h2>Authentication complete!</h2>"
    "<p>You can close this tab and return to the application.</p></body></html>";

} // namespace

WebAuthHandler::WebAuthHandler(QObject *parent)
    : QObject(parent)
    , m_server(new QTcpServer(this))
    , m_server6(new QTcpServer(this))
{
    for (QTcpServer *server : {m_server, m_server6})
        connect(server, &QTcpServer::newConnection, this,
                [this, server] { acceptConnection(server); });
}

WebAuthHandler::~WebAuthHandler()
{
    closeServers();
}

QString WebAuthHandler::start()
{
    if (!m_server->isListening() && !m_server->listen(QHostAddress::LocalHost, kPreferredPort)
        && !m_server->listen(QHostAddress::LocalHost, 0))
        return {};
    m_port = m_server->serverPort();
    // Without IPv6, or with the port taken there, the first server alone has to do.
    if (!m_server6->isListening())
        m_server6->listen(QHostAddress::LocalHostIPv6, m_port);
    return u"http://localhost:%1/callback"_s.arg(m_port);
}

void WebAuthHandler::acceptConnection(QTcpServer *server)
{
    while (QTcpSocket *socket = server->nextPendingConnection()) {
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { readRequest(socket); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            m_received.remove(socket);
            socket->deleteLater();
        });
    }
}

// Browsers send the whole request line at once. Whoever does not is waited for, up to the length of
// any address we could have asked for, and does not keep another connection from signing in.
void WebAuthHandler::readRequest(QTcpSocket *socket)
{
    QByteArray &received = m_received[socket];
    received += socket->read(kLongestRequestLine - received.size() + 1);
    const qsizetype targetStart = received.indexOf(' ') + 1;
    const qsizetype targetEnd = targetStart > 0 ? received.indexOf(' ', targetStart) : -1;
    if (targetEnd >= 0)
        serve(socket, QString::fromUtf8(received.sliced(targetStart, targetEnd - targetStart)));
    else if (received.size() > kLongestRequestLine)
        socket->abort();
}

void WebAuthHandler::serve(QTcpSocket *socket, const QString &target)
{
    if (!m_server->isListening())
        return; // another connection was served already
    socket->disconnect(this);
    socket->write(kResponse);
    socket->flush();
    socket->disconnectFromHost();
    Q_EMIT callbackReceived(QUrl(u"http://localhost:%1%2"_s.arg(QString::number(m_port), target)));
    closeServers();
}

void WebAuthHandler::closeServers()
{
    m_server->close();
    m_server6->close();
}

} // namespace KestAccount
