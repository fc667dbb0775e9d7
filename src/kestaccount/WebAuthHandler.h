#pragma once

#include <QHash>
#include <QObject>
#include <QUrl>

class QTcpServer;
class QTcpSocket;

namespace KestAccount {

// Catches the browser's redirect at the end of a sign-in: a server on the loopback address that
// answers one request and closes.
class WebAuthHandler : public QObject
{
    Q_OBJECT

public:
    explicit WebAuthHandler(QObject *parent = nullptr);
    ~WebAuthHandler() override;

    QString start(); // the address to redirect to; empty: no port could be had

Q_SIGNALS:
    void callbackReceived(const QUrl &url); // once; whatever the URL holds

private:
    void acceptConnection(QTcpServer *server);
    void readRequest(QTcpSocket *socket);
    void serve(QTcpSocket *socket, const QString &target);
    void closeServers();

    QTcpServer *m_server;
    QTcpServer *m_server6; // the same port on ::1, since a browser may take "localhost" for either
    quint16 m_port = 0; // 0 until listening
    QHash<QTcpSocket *, QByteArray> m_received{}; // of requests whose first line is not yet whole
};

} // namespace KestAccount
