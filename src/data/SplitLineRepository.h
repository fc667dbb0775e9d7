#pragma once

#include "data/KeptStatement.h"
#include "data/SplitLine.h"

#include <QList>
#include <QObject>

class Database;

// Table "split_lines". It has no signal: a change to lines always comes with a change to their
// transaction, whose signal tells the listeners.
class SplitLineRepository : public QObject
{
    Q_OBJECT

public:
    explicit SplitLineRepository(Database *database, QObject *parent = nullptr); // not owned

    QList<SplitLine> listByTransaction(const QString &transactionId) const;
    bool insert(const SplitLine &line); // a failure logs a warning
    bool deleteByTransaction(const QString &transactionId); // for good; logs nothing

    bool insertFailedOnDisk() const { return m_insert.failedOnDisk(); } // of the last insert

private:
    Database *m_database;
    KeptStatement m_insert{};
};
