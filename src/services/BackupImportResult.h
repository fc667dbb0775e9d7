#pragma once

#include <QStringList>

// Rows of a backup, by table.
struct BackupCounts
{
    int accounts = 0;
    int categories = 0;
    int transactions = 0;
    int split_lines = 0;
    int recurring = 0;
    int reconciliations = 0;

    bool operator==(const BackupCounts &) const = default;

    int total() const
    {
        return accounts + categories + transactions + split_lines + recurring + reconciliations;
    }
};

struct BackupImportResult
{
    BackupCounts imported{}; // rows written
    BackupCounts skipped{}; // rows left alone, and rows that the database refused
    QStringList errors{}; // translated
};
