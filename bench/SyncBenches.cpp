#include "SyncBenches.h"

#include "PairedBench.h"
#include "Workbench.h"

#include "core/Ids.h"
#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/PreferencesRepository.h"
#include "data/ReconciliationRepository.h"
#include "data/RecurringRepository.h"
#include "data/TransactionRepository.h"
#include "shell/MainWindow.h"
#include "sync/PullApplier.h"
#include "sync/SyncEngine.h"
#include "sync/SyncPayloads.h"
#include "sync/SyncRepositories.h"

#include <QApplication>
#include <QJsonDocument>
#include <QListWidget>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <chrono>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

using Shape = BenchDatabase::Shape;
using Clock = std::chrono::steady_clock;

constexpr int kHouseholdRows = 100000;

SyncRepositories repositoriesOf(AppState *state)
{
    return {.accounts = state->accounts(),
            .transactions = state->transactions(),
            .categories = state->categories(),
            .recurring = state->recurring(),
            .reconciliations = state->reconciliations(),
            .preferences = state->preferences()};
}

Transaction freshTransaction(const QString &accountId)
{
    const QDateTime now = QDateTime::currentDateTimeUtc();
    return {.id = newId(),
            .account_id = accountId,
            .date = QDate(2024, 5, 17),
            .payee = u"Harbor Market"_s,
            .memo = u"weekly shopping"_s,
            .amount = -8437,
            .created_at = now,
            .updated_at = now};
}

// A page of rows that this device has not seen yet.
QJsonObject freshPage(const QString &accountId)
{
    QJsonArray records;
    for (int row = 0; row < kPullPageSize; ++row) {
        QJsonObject record = payloadOf(freshTransaction(accountId));
        record.insert("id"_L1, newId());
        records.append(record);
    }
    return {{"transactions"_L1, records}};
}

// What the page costs SQLite alone: the same rows, each a transaction of its own.
void insertPlainly(PlainSqlite *plain, const QByteArray &accountId)
{
    sqlite3_stmt *insert = plain->prepare(
        "INSERT INTO transactions (id, account_id, date, payee, memo, amount, check_number, "
        "transfer_link_id, transfer_dest_account_id, recurring_id, sync_status, server_id, "
        "created_at, updated_at) VALUES (?, ?, '2024-05-17', 'Harbor Market', 'weekly shopping', "
        "-8437, '', '', '', '', 'synced', ?, '2024-05-17T00:00:00Z', '2024-05-17T00:00:00Z')");
    for (int row = 0; row < kPullPageSize; ++row) {
        const QByteArray id = newId().toLatin1();
        const QByteArray serverId = newId().toLatin1();
        sqlite3_bind_text(insert, 1, id.constData(), int(id.size()), SQLITE_STATIC);
        sqlite3_bind_text(insert, 2, accountId.constData(), int(accountId.size()), SQLITE_STATIC);
        sqlite3_bind_text(insert, 3, serverId.constData(), int(serverId.size()), SQLITE_STATIC);
        if (sqlite3_step(insert) != SQLITE_DONE)
            qFatal("bench database: a row was refused");
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
}

void updatePlainly(PlainSqlite *plain, const QJsonObject &page)
{
    sqlite3_stmt *update = plain->prepare(
        "UPDATE transactions SET payee = 'Harbor Market', memo = 'weekly shopping', "
        "amount = -8437, sync_status = 'synced', updated_at = '2024-05-17T00:00:00Z' "
        "WHERE id = ?");
    for (const QJsonValue &record : page.value("transactions"_L1).toArray()) {
        const QByteArray id = record[u"client_id"].toString().toLatin1();
        sqlite3_bind_text(update, 1, id.constData(), int(id.size()), SQLITE_STATIC);
        if (sqlite3_step(update) != SQLITE_DONE)
            qFatal("bench database: a row was refused");
        sqlite3_reset(update);
    }
    sqlite3_finalize(update);
}

void addPushBody()
{
    registerPair({"body of a push of 500 changes"}, [] {
        Workbench &bench = workbench(Shape::TenAccounts);
        bench.plain()->execute("UPDATE transactions SET sync_status = 'synced'");
        for (const char *table : {"accounts", "categories"})
            bench.plain()->execute(QByteArray("UPDATE ") + table + " SET sync_status = 'synced'");
        bench.plain()->execute("UPDATE transactions SET sync_status = 'pending' WHERE rowid IN "
                               "(SELECT rowid FROM transactions LIMIT 500)");
        return Pair{
            .program =
                [&bench] {
                    const QJsonArray changes = pendingChanges(repositoriesOf(bench.state()));
                    if (changes.size() != kPushBatchSize)
                        qFatal("bench: %d changes", int(changes.size()));
                    QByteArray body = QJsonDocument(QJsonObject{{"changes"_L1, changes}})
                                          .toJson(QJsonDocument::Compact);
                    benchmark::DoNotOptimize(body);
                },
            .counterpart =
                [&bench] {
                    bench.plain()->readAll(
                        "SELECT * FROM transactions WHERE sync_status = 'pending'");
                },
        };
    });
}

// The main window, open on an account while pages come in.
struct PullStage
{
    Workbench &bench = workbench(Shape::TenAccounts);
    MainWindow window{bench.state()};
    PullApplier applier{repositoriesOf(bench.state())};
    QString accountId = bench.accountId(0);
    QJsonObject page{};
    int rebuilds = 0;
    Clock::duration stored{}; // until the rows are in the database
    Clock::duration shown{}; // until the window shows them, too

    PullStage()
    {
        window.selectAccount(accountId);
        window.resize(1280, 900);
        window.show();
        QCoreApplication::processEvents();
        const auto *sidebar = window.findChild<QListWidget *>();
        QObject::connect(sidebar->model(), &QAbstractItemModel::modelReset, &window,
                         [this] { ++rebuilds; });
    }

    // As the engine does it: the page in one turn of the event loop, and the next turn after it.
    void apply()
    {
        const int before = rebuilds;
        const auto start = Clock::now();
        applier.applyPage(page);
        stored += Clock::now() - start;
        QCoreApplication::processEvents();
        shown += Clock::now() - start;
        if (rebuilds - before > 1)
            qFatal("the sidebar was rebuilt %d times for one page", rebuilds - before);
    }
};

void addPage(const char *name, bool isKnown)
{
    registerPair({name}, [isKnown] {
        const auto stage = std::make_shared<PullStage>();
        const QByteArray account = stage->accountId.toUtf8();
        stage->page = freshPage(stage->accountId);
        if (isKnown)
            stage->apply();
        return Pair{
            .prepare =
                [stage, isKnown] {
                    if (!isKnown)
                        stage->page = freshPage(stage->accountId);
                },
            .program = [stage] { stage->apply(); },
            .counterpart =
                [stage, account, isKnown] {
                    if (isKnown)
                        updatePlainly(stage->bench.plain(), stage->page);
                    else
                        insertPlainly(stage->bench.plain(), account);
                },
        };
    });
}

double msPerThousand(Clock::duration time, int rows)
{
    return std::chrono::duration<double, std::milli>(time).count() * 1000 / rows;
}

// The pages of one pass, whose end reads the register anew.
void pullPass(PullStage &stage)
{
    stage.stored = {};
    stage.shown = {};
    stage.rebuilds = 0;
    for (int page = 0; page < kMaxPullPages; ++page) {
        stage.page = freshPage(stage.accountId);
        stage.apply();
    }
    const auto start = Clock::now();
    Q_EMIT stage.bench.state()->syncEngine()->dataChanged();
    stage.shown += Clock::now() - start;
}

// A first sync: an empty household gets all its rows, with the window open.
void pullHousehold(benchmark::State &state)
{
    constexpr int kPassRows = kMaxPullPages * kPullPageSize;
    PullStage stage;
    stage.bench.plain()->execute("DELETE FROM transactions");
    std::printf("\n%-24s %30s\n%-24s %10s %10s %8s %18s\n", "pull into an empty one",
                "ms per 1,000 rows:", "rows", "stored", "shown", "SQLite", "sidebar rebuilt");
    for ([[maybe_unused]] auto _ : state) {
        for (int rows = 0; rows < kHouseholdRows; rows += kPassRows) {
            pullPass(stage);
            const auto start = Clock::now();
            insertPlainly(stage.bench.plain(), stage.accountId.toUtf8());
            const auto plain = Clock::now() - start;
            std::printf("%9d to %9d   %10.1f %10.1f %8.1f %18d\n", rows, rows + kPassRows,
                        msPerThousand(stage.stored, kPassRows),
                        msPerThousand(stage.shown, kPassRows), msPerThousand(plain, kPullPageSize),
                        stage.rebuilds);
            std::fflush(stdout);
        }
    }
}

} // namespace

void registerSyncBenches(Shape shape)
{
    if (shape != Shape::TenAccounts)
        return;
    addPushBody();
    addPage("apply a pulled page of 200 new rows, window open", false);
    addPage("apply a pulled page of 200 known rows, window open", true);
    benchmark::RegisterBenchmark("pull of 100,000 rows", pullHousehold)->Iterations(1);
}
