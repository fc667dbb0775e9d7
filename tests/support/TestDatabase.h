#pragma once

#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/Database.h"
#include "data/PreferencesRepository.h"
#include "data/ReconciliationRepository.h"
#include "data/RecurringRepository.h"
#include "data/SplitLineRepository.h"
#include "data/TransactionRepository.h"

#include <QTemporaryDir>
#include <QVariant>

// A migrated database file of its own, with its repositories. The program has one connection, so
// only one of these may live at a time.
class TestDatabase
{
public:
    TestDatabase();
    ~TestDatabase();
    TestDatabase(const TestDatabase &) = delete;
    TestDatabase &operator=(const TestDatabase &) = delete;

    Database *get() const { return m_database; }

    // Statements that no repository has. A statement that fails ends the test program.
    void run(const QString &statement, const QVariantList &values = {});
    QVariant value(const QString &statement, const QVariantList &values = {}); // first column
    void refuseUpdates(const QString &table); // each fails with the word "refused"

    void addSampleOwners(); // the accounts "a" and "b" and the category "c"

    // What was emitted since the last call: "accounts", "transactions a", ...
    QStringList takeSignals();

private:
    QTemporaryDir m_directory{};
    Database *m_database;
    QStringList m_signals{};

public:
    AccountRepository accounts{m_database};
    CategoryRepository categories{m_database};
    PreferencesRepository preferences{m_database};
    ReconciliationRepository reconciliations{m_database};
    RecurringRepository recurring{m_database};
    SplitLineRepository splitLines{m_database};
    TransactionRepository transactions{m_database};
};
