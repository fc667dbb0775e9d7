#pragma once

#include <QHash>
#include <QJsonArray>
#include <QString>

#include <optional>

// Which rows of a table bear the service's ids of one page of records. No index leads to a row by
// that id, so each question walks through a whole table: asked at the first record that needs it,
// one walk answers for the page, and what the page itself stores is noted from then on.
class ServerIds
{
public:
    ServerIds(const QString &table, const QJsonArray &records);

    QString localIdForServerId(const QString &serverId); // empty: none
    void noteStored(const QString &localId, const QString &oldServerId, const QString &serverId);

private:
    void load();

    QString m_table;
    QJsonArray m_records;
    std::optional<QHash<QString, QString>> m_localIds{}; // by server id
};
