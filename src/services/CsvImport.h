#pragma once

#include "services/DuplicateKey.h"
#include "services/ImportCategories.h"
#include "services/ImportProgress.h"
#include "services/ImportRecords.h"
#include "services/ImportStores.h"

#include <QDate>
#include <QHash>
#include <QSet>
#include <QStringList>

struct Transaction;

// Writes the rows of a CSV file into one account. Made for one import and thrown away.
class CsvImport
{
public:
    // The rows are those of the whole file, the header included.
    CsvImport(const ImportStores &stores, QString accountId, const CsvColumnMapping &mapping,
              QList<QStringList> rows);

    int total() const; // rows of data
    ImportResult run(ImportProgress progress); // once

private:
    void writeRow(const QStringList &fields);
    void store(Transaction transaction, const DuplicateKey &key);
    bool isTooShort(const QStringList &fields) const;
    QDate dateOf(const QString &text);
    QDate readDate(const QString &text) const;
    void abort();

    ImportStores m_stores;
    QString m_accountId;
    CsvColumnMapping m_mapping;
    QList<QStringList> m_rows;
    ImportCategories m_categories;
    QSet<DuplicateKey> m_keys{};
    QHash<QString, QDate> m_dates{}; // a file has few days and many rows, and a date takes long
    ImportResult m_result{};
};
