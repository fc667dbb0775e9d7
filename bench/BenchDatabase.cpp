#include "BenchDatabase.h"

#include "HouseholdRows.h"
#include "PlainSqlite.h"

#include "data/CategoryRepository.h"
#include "data/Database.h"
#include "services/CategoryService.h"

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int kRows = 100000;
// Some of them are so rare that they do not come up: some 5,000 do.
constexpr HouseholdHabits kNeglectful{.payees = 5120, .reconciles = false};

// A null text where the array is empty, as the program stores it.
void bindText(sqlite3_stmt *statement, int position, const QByteArray &text)
{
    if (text.isEmpty())
        sqlite3_bind_null(statement, position);
    else
        sqlite3_bind_text(statement, position, text.constData(), int(text.size()),
                          SQLITE_TRANSIENT);
}

class RowWriter
{
public:
    RowWriter(PlainSqlite &plain, QStringList accountIds)
        : m_statement(plain.prepare(
            "INSERT INTO transactions (id, account_id, date, payee, memo, amount, category_id, "
            "check_number, cleared, reconciled, transfer_link_id, transfer_dest_account_id, "
            "sync_status, created_at, updated_at) "
            "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, 'synced', ?, ?)"))
        , m_accountIds(std::move(accountIds))
    {
    }
    ~RowWriter() { sqlite3_finalize(m_statement); }
    RowWriter(const RowWriter &) = delete;
    RowWriter &operator=(const RowWriter &) = delete;

    void write(const HouseholdRow &row)
    {
        bindText(m_statement, 1, row.id);
        bindText(m_statement, 2, accountId(row.account));
        bindText(m_statement, 3, row.date.toString(Qt::ISODate).toUtf8());
        bindText(m_statement, 4, row.payee);
        bindText(m_statement, 5, row.memo);
        sqlite3_bind_int64(m_statement, 6, row.amount_cents);
        bindText(m_statement, 7, row.category_id);
        bindText(m_statement, 8, row.check_number);
        sqlite3_bind_int(m_statement, 9, row.cleared);
        sqlite3_bind_int(m_statement, 10, row.reconciled);
        bindText(m_statement, 11, row.linked_id);
        bindText(m_statement, 12, accountId(row.linked_account));
        bindText(m_statement, 13, row.created_at);
        bindText(m_statement, 14, row.created_at);
        if (sqlite3_step(m_statement) != SQLITE_DONE)
            qFatal("bench database: a row was refused");
        sqlite3_reset(m_statement);
    }

private:
    QByteArray accountId(int account) const
    {
        return account < 0 ? QByteArray() : m_accountIds.at(account).toUtf8();
    }

    sqlite3_stmt *m_statement;
    QStringList m_accountIds;
};

QStringList writeAccounts(PlainSqlite &plain, int count, HouseholdRows &rows)
{
    QStringList ids;
    for (int i = 0; i < count; ++i) {
        const QByteArray id = rows.drawId();
        const QByteArray number = QByteArray::number(i);
        plain.execute("INSERT INTO accounts (id, name, account_type, sort_order, sync_status, "
                      "starting_balance, created_at, updated_at) VALUES ('"
                      + id + "', 'Account " + number + "', 'checking', " + number
                      + ", 'synced', 100000, '2011-11-01T08:00:00Z', '2011-11-01T08:00:00Z')");
        ids << QString::fromLatin1(id);
    }
    return ids;
}

} // namespace

BenchDatabase::BenchDatabase(Shape shape, const QString &directory)
    : m_path(directory + u"/pursewell.db"_s)
{
    migrate();
    fill(shape);
}

QString BenchDatabase::commonWord()
{
    return u"Market"_s;
}

QString BenchDatabase::rareWord()
{
    return u"Zanzibar"_s;
}

void BenchDatabase::migrate() const
{
    Database database;
    if (!database.open(m_path) || !database.migrate())
        qFatal("bench database: no schema");
    CategoryRepository categories(&database);
    CategoryService(&categories, nullptr).seedDefaults();
}

void BenchDatabase::fill(Shape shape)
{
    PlainSqlite plain(m_path);
    plain.execute("PRAGMA foreign_keys=ON; BEGIN");
    const bool neglected = shape == Shape::Neglected;
    HouseholdRows rows(kRows, plain.firstColumn("SELECT id FROM categories ORDER BY id"),
                       neglected ? kNeglectful : HouseholdHabits());
    const bool one_account = shape == Shape::OneAccount;
    // 8% of the rows belong to a transfer; with ten accounts each draw makes two of them.
    const quint32 transfer_percent = one_account ? 8 : 4;
    m_accountIds = writeAccounts(plain, one_account ? 2 : 10, rows);
    {
        RowWriter writer(plain, m_accountIds);
        for (int i = 0; i < kRows; ++i) {
            const int account = one_account ? 0 : i % 10;
            HouseholdRow row = rows.draw(i, account);
            if (rows.drawsChance(transfer_percent) && i + 1 < kRows) {
                const int other = one_account ? 1 : (account + 1) % 10;
                writer.write(HouseholdRows::otherSide(row, other, rows.drawId()));
                if (!one_account)
                    ++i; // the other side takes its account's turn
            }
            writer.write(row);
        }
    }
    if (neglected)
        reconcileButFew(plain);
    plain.execute("COMMIT; PRAGMA wal_checkpoint(TRUNCATE)");
}

void BenchDatabase::reconcileButFew(PlainSqlite &plain) const
{
    const QByteArray account = m_accountIds.at(1).toLatin1();
    plain.execute("UPDATE transactions SET cleared = 1, reconciled = 1 WHERE account_id = '"
                  + account
                  + "' AND rowid NOT IN (SELECT rowid FROM transactions WHERE account_id = '"
                  + account + "' ORDER BY date DESC, created_at DESC LIMIT 100)");
}
