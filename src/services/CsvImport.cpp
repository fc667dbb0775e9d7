#include "services/CsvImport.h"

#include "core/Dates.h"
#include "core/Ids.h"
#include "core/Money.h"
#include "data/BulkWrite.h"
#include "services/CsvReader.h"

#include <QDebug>
#include <QSqlDatabase>
#include <QSqlError>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

CsvImport::CsvImport(const ImportStores &stores, QString accountId, const CsvColumnMapping &mapping,
                     QList<QStringList> rows)
    : m_stores(stores)
    , m_accountId(std::move(accountId))
    , m_mapping(mapping)
    , m_rows(std::move(rows))
    , m_categories(stores.categories)
{
    for (const Transaction &live : stores.transactions->listByAccount(m_accountId))
        m_keys.insert({live.date, live.amount, live.payee});
}

int CsvImport::total() const
{
    return std::max(0, static_cast<int>(m_rows.size()) - (m_mapping.hasHeader ? 1 : 0));
}

ImportResult CsvImport::run(ImportProgress progress)
{
    const BulkWrite together(m_stores.transactions);
    QSqlDatabase database = QSqlDatabase::database();
    database.transaction();
    for (qsizetype i = m_rows.size() - total(); i < m_rows.size() && !m_result.aborted; ++i) {
        progress.next();
        writeRow(m_rows.at(i));
    }
    if (m_result.aborted) {
        database.rollback();
    } else if (!database.commit()) {
        // The counts stay as they are: they tell what was tried.
        qWarning() << "CSV import: commit failed:" << database.lastError().text();
        database.rollback();
    }
    progress.finish();
    return m_result;
}

void CsvImport::writeRow(const QStringList &fields)
{
    const QDate date = isTooShort(fields) ? QDate() : dateOf(fields.at(m_mapping.dateColumn));
    if (!date.isValid()) {
        ++m_result.unparseable;
        return;
    }
    Transaction transaction;
    transaction.account_id = m_accountId;
    transaction.date = date;
    transaction.payee = fields.at(m_mapping.payeeColumn);
    if (transaction.payee.isNull())
        transaction.payee = u""_s; // null would be no payee at all, which the table refuses
    transaction.amount = parseMoney(fields.at(m_mapping.amountColumn), Currency::USD);
    const DuplicateKey key(date, transaction.amount, transaction.payee);
    if (m_keys.contains(key)) {
        ++m_result.duplicates;
        return;
    }
    transaction.memo = fields.value(m_mapping.memoColumn);
    transaction.category_id = m_categories.idOf(fields.value(m_mapping.categoryColumn));
    store(transaction, key);
}

bool CsvImport::isTooShort(const QStringList &fields) const
{
    for (const int column : {m_mapping.dateColumn, m_mapping.payeeColumn, m_mapping.amountColumn}) {
        if (column < 0 || column >= fields.size())
            return true;
    }
    return false;
}

QDate CsvImport::dateOf(const QString &text)
{
    const auto known = m_dates.constFind(text);
    return known != m_dates.constEnd() ? *known : *m_dates.insert(text, readDate(text));
}

QDate CsvImport::readDate(const QString &text) const
{
    const QDate date =
        m_mapping.dateFormat.isEmpty() ? QDate() : dateFromText(text, m_mapping.dateFormat);
    return date.isValid() ? date : parseCsvDate(text);
}

void CsvImport::store(Transaction transaction, const DuplicateKey &key)
{
    transaction.id = newId();
    transaction.created_at = currentStamp();
    transaction.updated_at = transaction.created_at;
    if (!m_categories.failedOnDisk() && m_stores.transactions->insert(transaction)) {
        ++m_result.imported;
        m_keys.insert(key);
    } else if (m_categories.failedOnDisk() || m_stores.transactions->insertFailedOnDisk()) {
        abort();
    }
}

// The rows to come would fail likewise, and of those before some may be undone by SQLite already.
void CsvImport::abort()
{
    qWarning() << "CSV import aborted: the disk is full or broken";
    m_result.aborted = true;
}
