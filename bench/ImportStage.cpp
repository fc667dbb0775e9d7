#include "ImportStage.h"

#include "HouseholdRows.h"
#include "QifFile.h"

#include "core/Money.h"
#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/Database.h"
#include "services/CategoryService.h"
#include "services/ImportService.h"

#include <QCoreApplication>
#include <QFile>

#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace {

const QString kEmpty = u"empty.db"_s;
const QString kRegister = u"pursewell.db"_s;
const QString kPlain = u"plain.db"_s;
const QString kFile = u"import"_s;

QByteArray quoted(QByteArray text)
{
    return '"' + text.replace('"', "\"\"") + '"';
}

QByteArray csvText(int records)
{
    HouseholdRows rows(records, {"Groceries", "Rent", "Dining", "Travel"});
    QByteArray text("Date,Payee,Amount,Memo,Category\r\n");
    for (int i = 0; i < records; ++i) {
        const HouseholdRow row = rows.draw(i, 0);
        text += row.date.toString(u"MM/dd/yyyy").toLatin1() + ',' + quoted(row.payee) + ','
            + quoted(formatAmount(row.amount_cents).toLatin1()) + ',' + quoted(row.memo) + ','
            + row.category_id + "\r\n";
    }
    return text;
}

} // namespace

// SQLite's own values, so that the plain side binds exactly what the program stored.
struct ImportStage::Values
{
    QByteArray insert{};
    int columns = 0;
    std::vector<sqlite3_value *> cells{};

    Values() = default;
    Values(const Values &) = delete;
    Values &operator=(const Values &) = delete;
    ~Values()
    {
        for (sqlite3_value *cell : cells)
            sqlite3_value_free(cell);
    }

    void read(PlainSqlite &from, const QByteArray &select)
    {
        sqlite3_stmt *statement = from.prepare(select);
        while (sqlite3_step(statement) == SQLITE_ROW) {
            for (int column = 0; column < columns; ++column)
                cells.push_back(sqlite3_value_dup(sqlite3_column_value(statement, column)));
        }
        sqlite3_finalize(statement);
    }

    void write(PlainSqlite &to) const
    {
        sqlite3_stmt *statement = to.prepare(insert);
        for (size_t cell = 0; cell < cells.size(); cell += size_t(columns)) {
            for (int column = 0; column < columns; ++column)
                sqlite3_bind_value(statement, column + 1, cells[cell + size_t(column)]);
            if (sqlite3_step(statement) != SQLITE_DONE)
                qFatal("bench database: a row was refused");
            sqlite3_reset(statement);
        }
        sqlite3_finalize(statement);
    }
};

ImportStage::ImportStage(Format format, int records)
    : m_format(format)
{
    makeEmptyRegister();
    writeFile(records);
}

void ImportStage::makeEmptyRegister()
{
    {
        Database database;
        if (!database.open(path(kEmpty)) || !database.migrate())
            qFatal("bench database: no schema");
        CategoryRepository categories(&database);
        CategoryService(&categories, nullptr).seedDefaults();
    }
    PlainSqlite plain(path(kEmpty));
    for (int i = 0; i < QifFile::kAccounts; ++i) {
        const QByteArray id = "account-" + QByteArray::number(i);
        plain.execute("INSERT INTO accounts (id, name, created_at, updated_at) VALUES ('" + id
                      + "', '" + QifFile::accountName(i)
                      + "', '2024-01-01T08:00:00Z', '2024-01-01T08:00:00Z')");
        m_accountIds << QString::fromLatin1(id);
    }
    plain.execute("PRAGMA wal_checkpoint(TRUNCATE)");
}

void ImportStage::writeFile(int records)
{
    QFile file(path(kFile));
    const QByteArray text = m_format == Format::Qif ? QifFile(records).text() : csvText(records);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("bench: no file to import");
}

void ImportStage::copyEmpty(const QString &name)
{
    for (const QString &left : {u""_s, u"-wal"_s, u"-shm"_s})
        QFile::remove(path(name + left));
    if (!QFile::copy(path(kEmpty), path(name)))
        qFatal("bench database: not copied");
}

void ImportStage::openRegister(bool withWindow)
{
    m_window.reset();
    m_state.reset();
    copyEmpty(kRegister);
    qputenv("PURSEWELL_DATA_DIR", m_directory.path().toUtf8());
    m_state = std::make_unique<AppState>();
    if (!m_state->initialize())
        qFatal("bench database: not opened");
    if (withWindow) {
        m_window = std::make_unique<MainWindow>(m_state.get());
        m_window->selectAccount(m_accountIds.first());
        m_window->resize(1280, 900);
        m_window->show();
    }
    QCoreApplication::processEvents();
}

void ImportStage::import()
{
    ImportService *service = m_state->importService();
    ImportResult result;
    if (m_format == Format::Csv) {
        result = service->importCsv(path(kFile), m_accountIds.first(), {0, 1, 2, 3, 4, true, {}});
    } else {
        QifAccountMapping mapping;
        for (int i = 0; i < QifFile::kAccounts; ++i)
            mapping.insert(QString::fromLatin1(QifFile::accountName(i)), m_accountIds.at(i));
        result = service->importQifFiles({path(kFile)}, mapping);
    }
    if (result.imported == 0 || result.databaseErrors > 0)
        qFatal("bench: nothing imported");
    QCoreApplication::processEvents();
}

void ImportStage::openPlain()
{
    m_plain.reset();
    copyEmpty(kPlain);
    m_plain = std::make_unique<PlainSqlite>(path(kPlain));
    m_plain->execute("PRAGMA foreign_keys=ON");
}

void ImportStage::readRows()
{
    PlainSqlite imported(path(kRegister));
    const auto take = [&](const QByteArray &table, const QByteArray &columns,
                          const QByteArray &condition) {
        auto values = std::make_shared<Values>();
        values->columns = int(columns.count(',')) + 1;
        values->insert = "INSERT INTO " + table + " (" + columns + ") VALUES (?"
            + QByteArray(", ?").repeated(values->columns - 1) + ')';
        values->read(imported,
                     "SELECT " + columns + " FROM " + table + condition + " ORDER BY rowid");
        m_tables.push_back(std::move(values));
    };
    take("categories",
         "id, name, category_type, parent_id, is_tax_relevant, tax_category, icon, color, "
         "is_default, account_id, version, sync_status, server_id, created_at, updated_at",
         " WHERE is_default = 0");
    take("transactions",
         "id, account_id, date, payee, memo, amount, category_id, check_number, cleared, "
         "reconciled, transfer_link_id, transfer_dest_account_id, is_split, recurring_id, version, "
         "sync_status, server_id, created_at, updated_at",
         {});
    take("split_lines", "id, transaction_id, category_id, amount, memo, created_at, updated_at",
         {});
}

void ImportStage::writeRows()
{
    m_plain->execute("BEGIN");
    for (const std::shared_ptr<Values> &table : m_tables)
        table->write(*m_plain);
    m_plain->execute("COMMIT");
}
