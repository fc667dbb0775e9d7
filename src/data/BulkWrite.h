#pragma once

#include "data/TransactionRepository.h"

// Announces that many transactions are about to be written, until it goes out of scope.
class BulkWrite
{
public:
    explicit BulkWrite(TransactionRepository *transactions) // not owned
        : m_transactions(transactions)
    {
        m_transactions->beginBulkWrite();
    }
    ~BulkWrite() { m_transactions->endBulkWrite(); }
    BulkWrite(const BulkWrite &) = delete;
    BulkWrite &operator=(const BulkWrite &) = delete;

private:
    TransactionRepository *m_transactions;
};
