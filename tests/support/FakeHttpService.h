#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QTcpServer>
#include <QUrl>

struct FakeReply
{
    int status = 200;
    QByteArray body{};
    bool drops = false; // closes the connection without an answer
    bool hangs = false; // never answers
    QByteArray headers{}; // more of them, each with its line end
};

struct FakeRequest
{
    QString method{};
    QUrl target{}; // path and query
    QHash<QByteArray, QByteArray> headers{}; // by lower-case name
    QByteArray body{};
};

// A scripted HTTP service on the loopback address: real bytes go through the real client.
class FakeHttpService : public QObject
{
public:
    FakeHttpService();

    QUrl url(const QString &path = {}) const;
    // To "GET /path". Several answers are given in turn; the last one stays. Without any: 404.
    void answer(const QString &request, const QList<FakeReply> &replies);

    const QList<FakeRequest> &requests() const { return m_requests; }
    QStringList requestLines() const; // "GET /path"
    void forgetRequests() { m_requests.clear(); }

private:
    void read(QTcpSocket *socket);
    void reply(QTcpSocket *socket, const FakeRequest &request);

    QTcpServer m_server{};
    QHash<QString, QList<FakeReply>> m_replies{};
    QList<FakeRequest> m_requests{};
    QHash<QTcpSocket *, QByteArray> m_received{};
};
