#include "services/QifImport.h"

#include "core/Dates.h"
#include "core/Ids.h"
#include "data/BulkWrite.h"
#include "data/CategoryRepository.h"
#include "data/SplitLineRepository.h"
#include "services/TransferHint.h"
#include "services/TransferPairing.h"

#include <QCoreApplication>
#include <QDebug>
#include <QSqlDatabase>
#include <QSqlError>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

QString settledPayee(const ImportRow &row)
{
    if (!row.payee.isEmpty())
        return row.payee;
    if (!row.number.isEmpty() && !row.security.isEmpty()) // of an investment: "Buy: IBM"
        return u"%1: %2"_s.arg(row.number, row.security);
    for (const QString &name : {row.security, row.number, row.transferAccount}) {
        if (!name.isEmpty())
            return name;
    }
    return QCoreApplication::translate("ImportService", "Imported transaction");
}

SplitLine splitLineOf(const QifSplit &split, const Transaction &transaction)
{
    return {
        .id = newId(),
        .transaction_id = transaction.id,
        .amount = split.amount,
        .memo = split.transferAccount.isEmpty() ? split.memo
                                                : memoWithHint(split.transferAccount, split.memo),
        .created_at = transaction.created_at,
        .updated_at = transaction.updated_at,
    };
}

} // namespace

QifImport::QifImport(const ImportStores &stores, const QStringList &paths,
                     const QifAccountMapping &mapping)
    : m_stores(stores)
    , m_targets(mapping)
    , m_input(readQifFiles(paths, m_targets))
    , m_categories(stores.categories)
{
    m_result.unparseable = m_input.malformed;
    m_result.metadata = m_input.skipped;
    m_result.transfersLinked = pairRows(m_input.rows);
}

ImportResult QifImport::run(ImportProgress progress)
{
    const BulkWrite together(m_stores.transactions);
    QSqlDatabase database = QSqlDatabase::database();
    database.transaction();
    writeCategories();
    writeRows(progress);
    if (m_result.aborted) {
        database.rollback();
    } else if (!database.commit()) {
        // The counts stay as they are: they tell what was tried.
        qWarning() << "QIF import: commit failed:" << database.lastError().text();
        database.rollback();
    }
    progress.finish();
    return m_result;
}

void QifImport::writeCategories()
{
    for (const QifCategory &category : std::as_const(m_input.categories)) {
        m_categories.idOf(category.name,
                          category.isIncome ? CategoryType::Income : CategoryType::Expense);
    }
    abortIfDiskFailed(m_categories.failedOnDisk());
}

void QifImport::writeRows(ImportProgress &progress)
{
    for (const ImportRow &row : std::as_const(m_input.rows)) {
        if (m_result.aborted)
            return;
        progress.next();
        if (row.targetAccountId.isEmpty())
            ++m_result.unmapped;
        else
            writeRow(row);
    }
}

void QifImport::writeRow(const ImportRow &row)
{
    const QString payee = settledPayee(row);
    const DuplicateKey key(row.date, row.amount, payee);
    if (cacheOf(row.targetAccountId).holds(key)) {
        ++m_result.duplicates;
        return;
    }
    if (!store(row, transactionOf(row, payee)))
        return;
    ++m_result.imported;
    cacheOf(row.targetAccountId).add(key);
}

Transaction QifImport::transactionOf(const ImportRow &row, const QString &payee)
{
    const QDateTime now = currentStamp();
    return {
        .id = row.newId,
        .account_id = row.targetAccountId,
        .date = row.date,
        .payee = payee,
        .memo = row.memo,
        .amount = row.amount,
        .category_id = m_categories.idOf(row.category),
        .check_number = row.number,
        .cleared = row.cleared,
        .reconciled = row.reconciled,
        .is_split = !row.splits.isEmpty(),
        .created_at = now,
        .updated_at = now,
    };
}

bool QifImport::store(const ImportRow &row, Transaction transaction)
{
    abortIfDiskFailed(m_categories.failedOnDisk());
    const std::optional<Transaction> partner = join(row, transaction);
    if (m_result.aborted)
        return false;
    if (!m_stores.transactions->insert(transaction)) {
        qWarning() << "QIF import: insert failed for" << isoDate(transaction.date)
                   << transaction.payee << "amount" << transaction.amount << "account"
                   << transaction.account_id;
        ++m_result.databaseErrors;
        abortIfDiskFailed(m_stores.transactions->insertFailedOnDisk());
        return false;
    }
    if (partner && !updatePartner(row, *partner))
        return false;
    writeSplits(row, transaction);
    return true;
}

std::optional<Transaction> QifImport::join(const ImportRow &row, Transaction &transaction)
{
    if (row.pairIndex >= 0) {
        const ImportRow &other = m_input.rows.at(row.pairIndex);
        transaction.transfer_link_id = other.newId;
        transaction.transfer_dest_account_id = other.targetAccountId;
        return std::nullopt;
    }
    if (row.transferAccount.isEmpty() || isSelfTransfer(row))
        return std::nullopt;
    const QString otherAccountId = m_targets.accountFor(row.transferAccount);
    if (!otherAccountId.isEmpty() && otherAccountId != row.targetAccountId) {
        std::optional<Transaction> partner = joinEarlier(row, otherAccountId, transaction);
        if (partner || m_result.aborted)
            return partner;
    }
    // The other side may come with a later import, which looks for this hint.
    transaction.memo = memoWithHint(row.transferAccount, row.memo);
    return std::nullopt;
}

std::optional<Transaction> QifImport::joinEarlier(const ImportRow &row,
                                                  const QString &otherAccountId,
                                                  Transaction &transaction)
{
    const Transaction *waiting =
        cacheOf(otherAccountId).waitingFor(row.date, row.amount, row.sourceAccount);
    if (!waiting)
        return std::nullopt;
    const std::optional<TransferHint> hint = parseTransferHint(waiting->memo);
    if (!hint) {
        abort("retroactive candidate lost its hint");
        return std::nullopt;
    }
    transaction.transfer_link_id = waiting->id;
    transaction.transfer_dest_account_id = waiting->account_id;
    Transaction partner = *waiting;
    partner.memo = hint->memo;
    partner.transfer_link_id = row.newId;
    partner.transfer_dest_account_id = row.targetAccountId;
    partner.updated_at = currentStamp();
    ++partner.version;
    partner.sync_status = SyncStatus::Pending; // the sync service is to hear of the link
    return partner;
}

bool QifImport::updatePartner(const ImportRow &row, const Transaction &partner)
{
    if (!m_stores.transactions->update(partner)) {
        abort("failed to update retroactive partner");
        return false;
    }
    cacheOf(partner.account_id).takeWaitingFor(row.date, row.amount, row.sourceAccount);
    ++m_result.transfersLinked;
    ++m_result.retroactiveLinks;
    return true;
}

// A line whose category is empty is refused by the schema and lost: a transfer inside a split has
// nowhere to go.
void QifImport::writeSplits(const ImportRow &row, const Transaction &transaction)
{
    for (const QifSplit &split : row.splits) {
        SplitLine line = splitLineOf(split, transaction);
        line.category_id = m_categories.idOf(split.category);
        const bool stored = m_stores.splitLines->insert(line);
        abortIfDiskFailed(m_categories.failedOnDisk()
                          || (!stored && m_stores.splitLines->insertFailedOnDisk()));
        if (m_result.aborted)
            return;
    }
}

void QifImport::abort(const char *reason)
{
    qWarning() << "QIF import aborted:" << reason;
    m_result.aborted = true;
}

// The rows to come would fail likewise, and of those before some may be undone by SQLite already.
void QifImport::abortIfDiskFailed(bool failed)
{
    if (failed && !m_result.aborted)
        abort("the disk is full or broken");
}

AccountImportCache &QifImport::cacheOf(const QString &accountId)
{
    const auto known = m_caches.find(accountId);
    if (known != m_caches.end())
        return *known;
    return *m_caches.insert(accountId,
                            AccountImportCache(m_stores.transactions->listByAccount(accountId)));
}
