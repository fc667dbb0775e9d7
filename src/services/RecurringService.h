#pragma once

#include "data/RecurringTransaction.h"

#include <QList>
#include <QObject>

#include <functional>
#include <memory>

class AccountRepository;
class Database;
class OccurrencePoster;
class RecurringRepository;
class SqlTransaction;
class TransactionRepository;

// Posts the due occurrences of recurring templates and moves the templates on. A template whose
// date is broken, or that would post without end, is switched off and stays in the table. Failures
// are false or 0, and a warning in the log.
class RecurringService : public QObject
{
    Q_OBJECT

public:
    using Clock = std::function<QDate()>; // the local date

    // Nothing is owned. With the database, what one call writes is stored at once or not at all;
    // without it each write stands alone.
    RecurringService(RecurringRepository *recurring, TransactionRepository *transactions,
                     AccountRepository *accounts, QObject *parent = nullptr,
                     Database *database = nullptr, Clock today = &QDate::currentDate);

    // Both read the template anew by its id and act on that.
    bool confirm(const RecurringTransaction &recurring); // true: posted and moved on
    bool skip(const RecurringTransaction &recurring); // true: moved on, nothing posted

    int confirmAllDue(); // each template once, however far behind; how many were posted

    // Posts whatever automatic templates have missed, and gives the number of occurrences.
    int processAutoPost();

    int pendingCount() const; // templates that are due
    QList<RecurringTransaction> listAll() const; // by due date; inactive templates included

Q_SIGNALS:
    void pendingCountChanged(int count); // after each confirm and skip that succeeds

private:
    bool confirmFresh(const RecurringTransaction &fresh, OccurrencePoster &poster);
    bool advance(RecurringTransaction recurring);
    bool save(RecurringTransaction &recurring);
    int autoPost(const RecurringTransaction &due, OccurrencePoster &poster);
    int catchUp(const QString &id, OccurrencePoster &poster);
    void quarantine(const RecurringTransaction &recurring, const char *reason);
    void deactivate(RecurringTransaction recurring);
    void announcePendingCount();
    std::unique_ptr<SqlTransaction> begin() const; // null without a database
    bool commit(SqlTransaction *together) const;

    RecurringRepository *m_recurring;
    TransactionRepository *m_transactions;
    AccountRepository *m_accounts;
    Database *m_database;
    Clock m_today;
};
