#pragma once

#include "data/RegisterRow.h"
#include "register/RegisterEditBuffers.h"

#include <QCoreApplication>

class AppState;

// Turns what was typed into a row of the register into stored transactions.
class RegisterRowWriter
{
    // The messages and payees are the register's own words.
    Q_DECLARE_TR_FUNCTIONS(RegisterScreen)

public:
    enum class Outcome {
        Saved, // the database was written, or has logged why it could not
        Refused, // message() says why; nothing was written
        CurrenciesDiffer, // the same, for a failure that concerns the whole window
    };

    // Not owned; must outlive the writer.
    RegisterRowWriter(const AppState &appState, const QString &accountId);

    Outcome saveNew(const RegisterEditBuffers &typed);
    Outcome saveChanges(const RegisterRow &row, const RegisterEditBuffers &typed);
    const QString &message() const { return m_message; }

private:
    // What the buffers mean, before it goes into a record.
    struct Entry
    {
        Transaction transaction{};
        QString transferAccountId{}; // empty: no transfer
    };

    std::optional<Entry> read(const RegisterEditBuffers &typed);
    bool readAmount(const RegisterEditBuffers &typed, qint64 &amount);
    bool readTransfer(Entry &entry);
    QString categoryId(const RegisterEditBuffers &typed) const;
    void insertTransfer(Transaction near, const QString &farAccountId);
    Outcome refuse(Outcome outcome, const QString &message);

    const AppState &m_appState;
    QString m_accountId;
    QString m_message;
    Outcome m_refusal = Outcome::Refused;
};
