#pragma once

#include "services/AccountImportCache.h"
#include "services/ImportCategories.h"
#include "services/ImportProgress.h"
#include "services/ImportStores.h"
#include "services/QifImportInput.h"

// Writes what QIF files hold. Made for one import and thrown away.
class QifImport
{
public:
    QifImport(const ImportStores &stores, const QStringList &paths,
              const QifAccountMapping &mapping); // reads the files and writes nothing

    int total() const { return static_cast<int>(m_input.rows.size()); }
    ImportResult run(ImportProgress progress); // once

private:
    void writeCategories();
    void writeRows(ImportProgress &progress);
    void writeRow(const ImportRow &row);
    Transaction transactionOf(const ImportRow &row, const QString &payee);
    bool store(const ImportRow &row, Transaction transaction); // with its partner and its splits
    void writeSplits(const ImportRow &row, const Transaction &transaction);

    // Gives the transaction its link or its hint. The result is the other side as it is to be
    // stored, if that came with an earlier import.
    std::optional<Transaction> join(const ImportRow &row, Transaction &transaction);
    std::optional<Transaction> joinEarlier(const ImportRow &row, const QString &otherAccountId,
                                           Transaction &transaction);
    bool updatePartner(const ImportRow &row, const Transaction &partner);

    void abort(const char *reason);
    void abortIfDiskFailed(bool failed);
    AccountImportCache &cacheOf(const QString &accountId);

    ImportStores m_stores;
    QifTargets m_targets;
    QifImportInput m_input;
    ImportCategories m_categories;
    QHash<QString, AccountImportCache> m_caches{}; // by account
    ImportResult m_result{};
};
