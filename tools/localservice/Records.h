#pragma once

#include "ServiceDatabase.h"

#include <QJsonArray>

// The synced rows of all users, each under the id that its first device gave it.
class Records
{
public:
    explicit Records(ServiceDatabase &database); // must outlive this object

    QJsonArray push(const QString &userId, const QJsonArray &changes); // one result for each

    // One page: the arrays of records, "server_time", "has_more", on the last one "integrity".
    // `since` is such a time, or empty for everything.
    QJsonObject pull(const QString &userId, const QString &since, int limit);

    bool owns(const QString &userId, const QString &accountId);
    QJsonArray sharedWith(const QString &accountId); // its owner last; empty: with nobody
    void share(const QString &ownerId, const QString &accountId, const QString &userId,
               const QString &role);
    bool unshare(const QString &ownerId, const QString &accountId,
                 const QString &memberId); // by the account id of the person
    bool mayRead(const QString &userId, const QString &accountId);

private:
    struct Walk; // the place in a walk through the rows

    QJsonObject store(const QString &userId, const QJsonObject &change);
    QString ownerOf(const QString &userId, const QString &entityType, const QString &entityId,
                    const QString &accountId);
    void setShared(const QString &ownerId, const QString &accountId);
    void touchAccount(const QString &ownerId, const QString &accountId);
    QJsonObject integrity(const QString &userId);
    qint64 nextChange(); // strictly rising, so that each row has a place of its own
    qint64 lastChange();

    ServiceDatabase &m_database;
};
