#pragma once

#include "services/BackupImportResult.h"

#include <QLatin1StringView>

// A table that backups hold, and under which names.
struct BackupTable
{
    QLatin1StringView folder;
    QLatin1StringView table;
    QLatin1StringView manifest_key; // how many rows
    int BackupCounts::*count;
    bool refers_to_itself; // a row may name another one of the same table
};

// Parents first, since foreign keys are enforced while a backup is read.
inline constexpr BackupTable kBackupTables[]{
    {QLatin1StringView("accounts"), QLatin1StringView("accounts"),
     QLatin1StringView("accountCount"), &BackupCounts::accounts, false},
    {QLatin1StringView("categories"), QLatin1StringView("categories"),
     QLatin1StringView("categoryCount"), &BackupCounts::categories, true},
    {QLatin1StringView("transactions"), QLatin1StringView("transactions"),
     QLatin1StringView("transactionCount"), &BackupCounts::transactions, false},
    {QLatin1StringView("split_lines"), QLatin1StringView("split_lines"),
     QLatin1StringView("splitLineCount"), &BackupCounts::split_lines, false},
    {QLatin1StringView("recurring"), QLatin1StringView("recurring_transactions"),
     QLatin1StringView("recurringCount"), &BackupCounts::recurring, false},
    {QLatin1StringView("reconciliations"), QLatin1StringView("reconciliations"),
     QLatin1StringView("reconciliationCount"), &BackupCounts::reconciliations, false},
};

inline constexpr QLatin1StringView kBackupManifest("manifest.json");
inline constexpr int kBackupVersion = 1; // of the archive's layout
