#include "sync/ServerIds.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSqlQuery>

using namespace Qt::StringLiterals;

ServerIds::ServerIds(const QString &table, const QJsonArray &records)
    : m_table(table)
    , m_records(records)
{
}

QString ServerIds::localIdForServerId(const QString &serverId)
{
    if (!m_localIds)
        load();
    return m_localIds->value(serverId);
}

void ServerIds::noteStored(const QString &localId, const QString &oldServerId,
                           const QString &serverId)
{
    if (!m_localIds || oldServerId == serverId)
        return;
    if (m_localIds->value(oldServerId) == localId)
        m_localIds->remove(oldServerId);
    if (!serverId.isEmpty() && !m_localIds->contains(serverId))
        m_localIds->insert(serverId, localId);
}

// The ids go over as one JSON text: a page may hold more of them than a statement takes values.
void ServerIds::load()
{
    QJsonArray serverIds;
    for (const QJsonValue &record : std::as_const(m_records))
        serverIds.append(record.toObject().value("id"_L1).toString());
    QSqlQuery query;
    query.setForwardOnly(true);
    query.prepare(u"SELECT server_id, id FROM %1 WHERE server_id IN "
                  "(SELECT value FROM json_each(?))"_s.arg(m_table));
    query.addBindValue(QString::fromUtf8(QJsonDocument(serverIds).toJson(QJsonDocument::Compact)));
    query.exec();
    m_localIds.emplace();
    while (query.next()) {
        const QString serverId = query.value(0).toString();
        if (!serverId.isEmpty() && !m_localIds->contains(serverId))
            m_localIds->insert(serverId, query.value(1).toString());
    }
}
