#pragma once

#include "sync/SyncRepositories.h"

#include <QJsonArray>
#include <QJsonObject>

// Folds the records of one pulled page into the local tables. The record's version decides: one
// that is lower than the local row's changes nothing, an equal one wins. Each record stands by
// itself; what was applied before a failure stays, and is simply read again.
class PullApplier
{
public:
    explicit PullApplier(const SyncRepositories &repositories);

    void applyPage(const QJsonObject &page); // parents before the rows that refer to them

    void applyAccount(const QJsonArray &records);
    void applyCategory(const QJsonArray &records);
    void applyRecurring(const QJsonArray &records);
    void applyTransactionChange(const QJsonArray &records);
    void applyReconciliation(const QJsonArray &records);

private:
    template <typename Record, typename Repository, typename IsWanted>
    void applyEach(const QJsonArray &records, Repository *repository, const QString &table,
                   IsWanted isWanted);

    SyncRepositories m_repositories;
};
