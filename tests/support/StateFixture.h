#pragma once

#include "core/state/AppState.h"
#include "data/Account.h"
#include "data/Transaction.h"
#include "support/TestSupport.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <vector>

// The base of a test of what works on the program's state: for each test function a new state, over
// a database of its own with the account "Checking" and the default categories.
class StateFixture : public QObject
{
    Q_OBJECT

protected Q_SLOTS:
    void init();
    void cleanup();

protected:
    AppState &state() const { return *m_state; }

    // Makes what works on the state. It goes before the state does, the last one first.
    template <typename Type, typename... Arguments> Type *keep(Arguments &&...arguments)
    {
        m_kept.push_back(std::make_unique<Type>(std::forward<Arguments>(arguments)...));
        return static_cast<Type *>(m_kept.back().get());
    }

    QString addAccount(const QString &name, const Account &rest = {}); // returns the id
    // Stores a transaction as it would have been typed long ago, in Checking if the rest names no
    // account. Later calls count as created later.
    Transaction addTransaction(const QString &date, const QString &payee, qint64 amount,
                               const Transaction &rest = {});

    // The live rows of the table: "|" between the columns asked for, "; " between the rows.
    QString stored(const QString &columns, const QString &where = QStringLiteral("1 = 1")) const;
    QString run(const QString &statement) const; // any statement; its rows as above
    QString categoryId(const QString &name, const QString &parent = {}) const;

    QString m_checking; // an id

private:
    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<AppState> m_state;
    std::vector<std::unique_ptr<QObject>> m_kept;
    QDateTime m_nextStamp;
};
