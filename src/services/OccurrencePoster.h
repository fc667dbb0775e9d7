#pragma once

#include "core/Currency.h"

#include <QHash>
#include <QString>

#include <optional>

class AccountRepository;
class TransactionRepository;
struct RecurringTransaction;
struct Transaction;

// Turns the due occurrence of a template into its transaction, or into both sides of a transfer.
// It reads each account once, so it is made for one run and thrown away.
class OccurrencePoster
{
public:
    OccurrencePoster(TransactionRepository *transactions, AccountRepository *accounts); // not owned

    // The template's due date must be valid. False when the occurrence was posted before, or when
    // the accounts of a transfer have different currencies; the source side stands then.
    bool post(const RecurringTransaction &recurring);

private:
    bool postFarSide(const RecurringTransaction &recurring, Transaction source);
    bool currenciesDiffer(const QString &accountId, const QString &otherId);
    std::optional<Currency> currencyOf(const QString &accountId); // absent: no such account

    TransactionRepository *m_transactions;
    AccountRepository *m_accounts;
    QHash<QString, std::optional<Currency>> m_currencies{};
};
