#include "services/SampleDataService.h"

#include "core/Dates.h"
#include "core/Ids.h"
#include "data/Queries.h"
#include "services/SampleHousehold.h"

#include <QCoreApplication>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTemplateAge = 60; // days since a template began

QString accountId(SampleAccount account)
{
    switch (account) {
    case SampleAccount::Checking:
        return u"sample-acct-checking"_s;
    case SampleAccount::Savings:
        return u"sample-acct-savings"_s;
    case SampleAccount::Visa:
        break;
    }
    return u"sample-acct-visa"_s;
}

QString otherSide(SampleAccount account)
{
    return accountId(account == SampleAccount::Checking ? SampleAccount::Savings
                                                        : SampleAccount::Checking);
}

QString sampleId(const QString &kind)
{
    return u"sample-%1-%2"_s.arg(kind, newId().first(8));
}

// The last statements lie some weeks back: what is older is reconciled, or has at least cleared.
bool isReconciled(const SampleTransaction &row)
{
    return row.entry.account == SampleAccount::Checking && row.day <= -30;
}

bool isCleared(const SampleTransaction &row)
{
    switch (row.entry.account) {
    case SampleAccount::Checking:
        return row.day <= -11;
    case SampleAccount::Savings:
        return row.day < 0;
    case SampleAccount::Visa:
        break;
    }
    return row.day <= -25;
}

QString categoryName(const char *name)
{
    return QCoreApplication::translate("CategoryService", name);
}

QString categoryKey(const QString &parent, const QString &name)
{
    return parent.isEmpty() ? name : u"%1/%2"_s.arg(parent, name);
}

void execWith(QSqlQuery &query, const QVariantList &values)
{
    for (const QVariant &value : values)
        query.addBindValue(value);
    query.exec();
}

} // namespace

SampleDataService::SampleDataService(Database *database, QObject *parent, Clock today)
    : QObject(parent)
    , m_database(database)
    , m_today(std::move(today))
{
}

bool SampleDataService::hasSampleData() const
{
    QSqlQuery query =
        readQuery(m_database, u"SELECT 1 FROM accounts WHERE id LIKE 'sample-%' LIMIT 1"_s);
    query.exec();
    return query.next();
}

void SampleDataService::loadSampleData()
{
    mapCategories();
    m_stamp = isoStamp(currentStamp());
    m_anchor = m_today();
    insertAccounts();
    insertTransactions();
    insertTemplates();
}

void SampleDataService::mapCategories()
{
    m_categoryIds.clear();
    QSqlQuery query = readQuery(m_database,
                                u"SELECT c.id, c.name, p.name AS parent_name FROM categories c "
                                "LEFT JOIN categories p ON c.parent_id = p.id "
                                "WHERE c.deleted_at IS NULL"_s);
    query.exec();
    while (query.next())
        m_categoryIds.insert(categoryKey(textAt(query, 2), textAt(query, 1)), textAt(query, 0));
}

QVariant SampleDataService::categoryId(const SampleCategory &category) const
{
    if (!category.name)
        return {};
    const QString parent = category.parent ? categoryName(category.parent) : QString();
    return nullIfEmpty(m_categoryIds.value(categoryKey(parent, categoryName(category.name))));
}

QString SampleDataService::dayText(int day) const
{
    return isoDate(m_anchor.addDays(day));
}

void SampleDataService::insertAccounts()
{
    QSqlQuery query = writeQuery(
        m_database,
        u"INSERT INTO accounts (id, name, account_type, currency, institution, "
        "account_number_last4, starting_balance, sort_order, is_shared, version, sync_status, "
        "created_at, updated_at) VALUES (?, ?, ?, 'USD', ?, ?, ?, ?, 0, 1, 'pending', ?, ?)"_s);
    int order = 0;
    const auto insert = [&](SampleAccount account, const QString &name, const QString &type,
                            const QString &institution, const QString &last4, qint64 balance) {
        execWith(query,
                 {accountId(account), name, type, institution, last4, balance, order++, m_stamp,
                  m_stamp});
    };
    insert(SampleAccount::Checking, tr("Main Checking"), u"checking"_s,
           tr("Riverbend Credit Union"), u"4521"_s, 250'000);
    insert(SampleAccount::Savings, tr("Savings"), u"savings"_s, tr("Riverbend Credit Union"),
           u"8834"_s, 1'000'000);
    insert(SampleAccount::Visa, tr("Visa Rewards"), u"credit_card"_s, tr("Summit Bank"), u"7712"_s,
           0);
}

void SampleDataService::insertTransactions()
{
    QSqlQuery query = writeQuery(
        m_database,
        u"INSERT INTO transactions (id, account_id, date, payee, memo, amount, category_id, "
        "check_number, cleared, reconciled, transfer_link_id, transfer_dest_account_id, is_split, "
        "version, sync_status, created_at, updated_at) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, 1, 'pending', ?, ?)"_s);
    // Unlike in a real transfer the link is no row's id: both sides hold the same one.
    QHash<int, QString> linkByDay;
    for (const SampleTransaction &row : sampleTransactions()) {
        const SampleEntry &entry = row.entry;
        QVariant link;
        QVariant destination;
        if (entry.is_transfer) {
            QString &shared = linkByDay[row.day];
            if (shared.isEmpty())
                shared = sampleId(u"xfer"_s);
            link = shared;
            destination = otherSide(entry.account);
        }
        execWith(query,
                 {sampleId(u"txn"_s), accountId(entry.account), dayText(row.day), tr(entry.payee),
                  tr(entry.memo), row.amount, categoryId(entry.category),
                  QString::fromLatin1(row.check_number), isCleared(row) ? 1 : 0,
                  isReconciled(row) ? 1 : 0, link, destination, 0, m_stamp, m_stamp});
    }
}

void SampleDataService::insertTemplates()
{
    QSqlQuery query = writeQuery(
        m_database,
        u"INSERT INTO recurring_transactions (id, account_id, payee, memo, amount, category_id, "
        "frequency, start_date, next_due_date, auto_post, is_active, version, sync_status, "
        "created_at, updated_at) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, 0, 1, 1, 'pending', ?, ?)"_s);
    for (const SampleTemplate &row : sampleTemplates()) {
        const SampleEntry &entry = row.entry;
        execWith(query,
                 {sampleId(u"recur"_s), accountId(entry.account), tr(entry.payee), tr(entry.memo),
                  row.amount, categoryId(entry.category), frequencyToString(row.frequency),
                  dayText(-kTemplateAge), dayText(row.day), m_stamp, m_stamp});
    }
}

void SampleDataService::clearSampleData()
{
    // Rows before what they refer to.
    for (const QString &statement :
         {u"DELETE FROM split_lines WHERE id LIKE 'sample-%'"_s,
          u"DELETE FROM reconciliations WHERE id LIKE 'sample-%'"_s,
          u"DELETE FROM recurring_transactions WHERE id LIKE 'sample-%'"_s,
          u"DELETE FROM transactions WHERE id LIKE 'sample-%'"_s,
          u"DELETE FROM accounts WHERE id LIKE 'sample-%'"_s,
          u"DELETE FROM sync_queue WHERE entity_id LIKE 'sample-%'"_s})
        writeQuery(m_database, statement).exec();
}
