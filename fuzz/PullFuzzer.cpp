#include "Require.h"

#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/Database.h"
#include "data/PreferencesRepository.h"
#include "data/ReconciliationRepository.h"
#include "data/RecurringRepository.h"
#include "data/TransactionRepository.h"
#include "sync/PullApplier.h"
#include "sync/SyncPayloads.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QSqlQuery>

using namespace Qt::StringLiterals;

namespace {

struct Household
{
    Household() { require(database.open(u":memory:"_s) && database.migrate()); }

    Database database{};
    AccountRepository accounts{&database};
    TransactionRepository transactions{&database};
    CategoryRepository categories{&database};
    RecurringRepository recurring{&database};
    ReconciliationRepository reconciliations{&database};
    PreferencesRepository preferences{&database};
    SyncRepositories repositories{&accounts,  &transactions,    &categories,
                                  &recurring, &reconciliations, &preferences};
};

void silence(QtMsgType, const QMessageLogContext &, const QString &) { }

Household &household()
{
    static int argumentCount = 1;
    static char name[] = "PullFuzzer";
    static char *arguments[] = {name, nullptr};
    static QCoreApplication application(argumentCount, arguments);
    static const auto previousHandler = qInstallMessageHandler(silence);
    Q_UNUSED(previousHandler)
    static Household household;
    return household;
}

// The account and the category that the seeds' records refer to, and nothing else.
void startAnew(Household &household)
{
    for (const char *statement :
         {"DELETE FROM transactions", "DELETE FROM recurring_transactions",
          "DELETE FROM reconciliations", "UPDATE categories SET parent_id = NULL",
          "DELETE FROM categories", "DELETE FROM accounts"})
        require(QSqlQuery().exec(QString::fromLatin1(statement)));
    const QDateTime stamp = QDateTime::fromSecsSinceEpoch(0, Qt::UTC);
    require(household.accounts.insert(
        {.id = u"a"_s, .name = u"A"_s, .created_at = stamp, .updated_at = stamp}));
    require(household.categories.insert(
        {.id = u"c"_s, .name = u"C"_s, .created_at = stamp, .updated_at = stamp}));
}

bool finds(const char *statement)
{
    QSqlQuery query(QString::fromLatin1(statement));
    return query.next();
}

// No page may break the database, bring in a date that stops the schedules, or leave a row of its
// own to be pushed, but for what it deletes.
void checkTables()
{
    require(!finds("PRAGMA foreign_key_check"));
    for (const char *statement :
         {"SELECT 1 FROM transactions WHERE date(date) IS NOT date OR date < '2000'",
          "SELECT 1 FROM recurring_transactions "
          "WHERE date(next_due_date) IS NOT next_due_date OR next_due_date < '2000'",
          "SELECT 1 FROM reconciliations "
          "WHERE date(statement_date) IS NOT statement_date OR statement_date < '2000'",
          "SELECT 1 FROM transactions WHERE id = '' OR "
          "(sync_status <> 'synced' AND deleted_at IS NULL)",
          "SELECT 1 FROM reconciliations WHERE sync_status <> 'synced' OR deleted_at IS NOT NULL"})
        require(!finds(statement));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Household &home = household();
    startAnew(home);
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    PullApplier applier(home.repositories);
    const QJsonObject page = QJsonDocument::fromJson(bytes).object();
    applier.applyPage(page);
    applier.applyPage(page); // now over rows that are there
    checkTables();
    const QJsonObject body{{"changes"_L1, pendingChanges(home.repositories)}};
    require(QJsonDocument::fromJson(QJsonDocument(body).toJson()).object() == body);
    return 0;
}
