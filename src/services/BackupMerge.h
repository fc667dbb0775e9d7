#pragma once

#include "data/KeptStatement.h"
#include "services/BackupService.h"
#include "services/BackupTables.h"

#include <QJsonObject>
#include <QSet>

#include <optional>

// Merges the rows of one table into the database, each by statements of its own.
class BackupMerge
{
public:
    enum class Outcome {
        Written,
        LeftAlone, // by the mode, or for want of an id
        Refused, // by the database, which is in the log
    };

    BackupMerge(Database *database, const BackupTable &table, BackupMergeMode mode);

    // A key of the row that is no column of the table; it may be the empty text. No row that has
    // one may be merged, since its keys become part of a statement's text.
    std::optional<QString> unknownColumn(const QJsonObject &row) const;
    Outcome merge(QJsonObject row);

private:
    struct Write
    {
        QStringList columns{};
        QString text{};
        KeptStatement statement{};
    };

    void resetSyncState(QJsonObject *row) const;
    std::optional<QString> storedStamp(const QString &id); // nothing: no such row
    bool isToReplace(const QJsonObject &row, const QString &storedStamp) const;
    QString insertText(const QStringList &columns) const;
    QString updateText(QStringList columns) const;
    Outcome insert(const QJsonObject &row);
    Outcome update(const QJsonObject &row);

    Database *m_database;
    QString m_table;
    BackupMergeMode m_mode;
    QSet<QString> m_columns{};
    KeptStatement m_find{};
    Write m_insert{}; // for the columns of the last row alone: rows of a backup have all the same
    Write m_update{};
};
