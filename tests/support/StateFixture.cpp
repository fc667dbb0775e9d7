#include "support/StateFixture.h"

#include "core/Ids.h"
#include "data/AccountRepository.h"
#include "data/Database.h"
#include "data/TransactionRepository.h"

#include <QSettings>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

using namespace Qt::StringLiterals;

void StateFixture::init()
{
    QSettings().clear();
    m_nextStamp = QDateTime(QDate(2024, 1, 1), QTime(12, 0), Qt::UTC);
    m_directory = std::make_unique<QTemporaryDir>();
    qputenv("PURSEWELL_DATA_DIR", m_directory->path().toUtf8());
    m_state = std::make_unique<AppState>();
    QVERIFY(m_state->initialize());
    m_checking = addAccount(u"Checking"_s);
}

void StateFixture::cleanup()
{
    while (!m_kept.empty())
        m_kept.pop_back();
    m_state.reset();
}

QString StateFixture::addAccount(const QString &name, const Account &rest)
{
    Account account = rest;
    account.id = newId();
    account.name = name;
    account.created_at = account.updated_at = m_nextStamp;
    m_state->accounts()->insert(account);
    return account.id;
}

Transaction StateFixture::addTransaction(const QString &date, const QString &payee, qint64 amount,
                                         const Transaction &rest)
{
    m_nextStamp = m_nextStamp.addSecs(1);
    Transaction transaction = rest;
    transaction.id = newId();
    transaction.account_id = rest.account_id.isEmpty() ? m_checking : rest.account_id;
    transaction.date = QDate::fromString(date, Qt::ISODate);
    transaction.payee = payee;
    transaction.amount = amount;
    transaction.created_at = transaction.updated_at = m_nextStamp;
    m_state->transactions()->insert(transaction);
    return transaction;
}

QString StateFixture::stored(const QString &columns, const QString &where) const
{
    return run(u"SELECT %1 FROM transactions WHERE deleted_at IS NULL AND %2 "
               "ORDER BY date, created_at, amount"_s.arg(columns, where));
}

QString StateFixture::run(const QString &statement) const
{
    QSqlQuery query(m_state->database()->connection());
    if (!query.exec(statement))
        qFatal("%s", qPrintable(query.lastError().text()));
    QStringList rows;
    while (query.next()) {
        QStringList values;
        for (int i = 0; i < query.record().count(); ++i)
            values << query.value(i).toString();
        rows << values.join(u'|');
    }
    return rows.join(u"; "_s);
}

QString StateFixture::categoryId(const QString &name, const QString &parent) const
{
    return run(u"SELECT c.id FROM categories c LEFT JOIN categories p ON p.id = c.parent_id "
               "WHERE c.name = '%1' AND ifnull(p.name, '') = '%2'"_s.arg(name, parent));
}
