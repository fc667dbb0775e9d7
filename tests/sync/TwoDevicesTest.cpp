#include "LocalService.h"
#include "SyncRig.h"
#include "core/Ids.h"
#include "data/AccountRepository.h"
#include "data/CategoryRepository.h"
#include "data/Database.h"
#include "data/PreferencesRepository.h"
#include "data/ReconciliationRepository.h"
#include "data/RecurringRepository.h"
#include "data/TransactionRepository.h"
#include "support/SampleRecords.h"
#include "support/TestSupport.h"
#include "sync/SyncPayloads.h"
#include "sync/SyncRepositories.h"

#include <QSqlQuery>
#include <QSqlRecord>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kTables[]{"accounts"_L1, "categories"_L1, "recurring_transactions"_L1,
                                      "transactions"_L1, "reconciliations"_L1};

// The one connection, which is gone with this.
struct Connection
{
    Connection() = default;
    ~Connection()
    {
        database.reset();
        QSqlDatabase::removeDatabase(QLatin1StringView(QSqlDatabase::defaultConnection));
    }
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    std::unique_ptr<Database> database = std::make_unique<Database>();
};

// A device at work. The program has one connection, so the devices take turns.
struct Session
{
    Session(const QString &path, LocalService &service, const QString &token)
        : isOpen(connection.database->open(path) && connection.database->migrate())
        , rig(repositories, QUrl(service.address() + u"/pursewell/v1"_s), token)
    {
        if (!isOpen)
            qFatal("no database at %s", qPrintable(path));
        QSqlQuery(u"PRAGMA synchronous=OFF"_s);
    }

    qsizetype pendingCount() const { return pendingChanges(repositories).size(); }
    QStringList dump() const;

    Connection connection{};
    AccountRepository accounts{connection.database.get()};
    TransactionRepository transactions{connection.database.get()};
    CategoryRepository categories{connection.database.get()};
    RecurringRepository recurring{connection.database.get()};
    ReconciliationRepository reconciliations{connection.database.get()};
    PreferencesRepository preferences{connection.database.get()};
    SyncRepositories repositories = repositoriesOf(*this);
    bool isOpen;
    SyncRig rig;
};

// All synced rows. The stamps of a deleted row are each device's own; NULL travels as the empty
// text.
QStringList Session::dump() const
{
    QStringList lines;
    for (const QLatin1StringView table : kTables) {
        QSqlQuery query(u"SELECT * FROM %1 ORDER BY id"_s.arg(table));
        while (query.next()) {
            const bool isDeleted = !query.value(u"deleted_at"_s).toString().isEmpty();
            QSqlRecord record = query.record();
            if (isDeleted)
                record.remove(record.indexOf(u"updated_at"_s));
            record.remove(record.indexOf(u"deleted_at"_s));
            QStringList values{table, isDeleted ? u"deleted"_s : u"live"_s};
            for (int column = 0; column < record.count(); ++column)
                values << record.value(column).toString();
            lines << values.join(u'|');
        }
    }
    return lines;
}

template <typename Record> Record pending(Record record)
{
    record.server_id.clear();
    record.sync_status = SyncStatus::Pending;
    return record;
}

Transaction transferSide(const QString &id, const QString &accountId, const QString &otherId,
                         const QString &otherAccountId, qint64 amount)
{
    Transaction side = pending(sampleTransaction(id));
    side.account_id = accountId;
    side.transfer_link_id = otherId;
    side.transfer_dest_account_id = otherAccountId;
    side.category_id.clear();
    side.amount = amount;
    return side;
}

void fillHousehold(Session &device)
{
    device.accounts.insert(pending(sampleAccount(u"a"_s)));
    device.accounts.insert(pending(sampleAccount(u"b"_s)));
    Category child = pending(sampleCategory(u"child"_s));
    device.categories.insert(pending(sampleCategory(u"parent"_s)));
    device.categories.insert(pending(sampleCategory(u"c"_s)));
    // Written before its parent was chosen, so it stands before it in the table.
    device.categories.insert(child);
    Category late = pending(sampleCategory(u"late parent"_s));
    device.categories.insert(late);
    child.parent_id = u"late parent"_s;
    device.categories.update(child);
    device.recurring.insert(pending(sampleRecurring()));
    device.transactions.insert(pending(sampleTransaction()));
    device.transactions.insert(transferSide(u"from"_s, u"a"_s, u"to"_s, u"b"_s, -500));
    device.transactions.insert(transferSide(u"to"_s, u"b"_s, u"from"_s, u"a"_s, 500));
    device.reconciliations.insert(pending(sampleReconciliation()));
}

} // namespace

class TwoDevicesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void endAlike_data();
    void endAlike();
    void backlogLeavesInBatches_data();
    void backlogLeavesInBatches();
    void laterVersionWins();

private:
    std::unique_ptr<Session> open(const QString &device);
    // Each device in turn, until neither has anything pending; false: they never get there.
    bool settle(QStringList &ann, QStringList &bob);

    std::unique_ptr<QTemporaryDir> m_directory{};
    std::unique_ptr<LocalService> m_service{};
    QString m_token{};
};

void TwoDevicesTest::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    m_service = std::make_unique<LocalService>(u":memory:"_s);
    QVERIFY(m_service->start());
    m_token = m_service->signIn(u"ann@example.com"_s).access;
}

std::unique_ptr<Session> TwoDevicesTest::open(const QString &device)
{
    return std::make_unique<Session>(m_directory->filePath(device), *m_service, m_token);
}

bool TwoDevicesTest::settle(QStringList &ann, QStringList &bob)
{
    ann.clear();
    bob.clear();
    int quietTurns = 0;
    for (int turn = 0; turn < 100 && quietTurns < 4; ++turn) {
        const bool isAnn = turn % 2 == 0;
        const std::unique_ptr<Session> device = open(isAnn ? u"ann"_s : u"bob"_s);
        if (!device->rig.runPass())
            return false;
        (isAnn ? ann : bob) = device->dump();
        quietTurns = device->pendingCount() == 0 && ann == bob ? quietTurns + 1 : 0;
    }
    return quietTurns == 4;
}

void TwoDevicesTest::endAlike_data()
{
    QTest::addColumn<int>("kind");
    const auto add = [](const char *name, Fault::Kind kind) {
        QTest::newRow(name) << static_cast<int>(kind);
    };
    add("all well", Fault::Kind::None);
    add("answers lost", Fault::Kind::Drop);
    add("refused", Fault::Kind::Status);
    add("cut short", Fault::Kind::Truncated);
    add("not JSON", Fault::Kind::NotJson);
    add("lists", Fault::Kind::JsonArray);
    add("wrong types", Fault::Kind::WrongTypes);
    add("100 MB", Fault::Kind::Huge);
}

void TwoDevicesTest::endAlike()
{
    QFETCH(int, kind);
    const auto fault = static_cast<Fault::Kind>(kind);
    m_service->faults().set(
        {.kind = fault, .status = 503, .one_in = 3, .times = fault == Fault::Kind::Huge ? 2 : 10});
    const LogCatcher log;
    QStringList ann;
    QStringList bob;
    fillHousehold(*open(u"ann"_s));
    QVERIFY(settle(ann, bob));
    QCOMPARE(ann.size(), 11);

    {
        const std::unique_ptr<Session> device = open(u"bob"_s);
        Transaction edited = device->transactions.findById(u"t"_s).value();
        edited.payee = u"Café “%1”"_s;
        edited.sync_status = SyncStatus::Pending;
        edited.version += 1;
        device->transactions.update(edited);
        device->transactions.softDelete(u"from"_s);
        device->transactions.softDelete(u"to"_s);
        device->accounts.insert(pending(sampleAccount(u"new of bob"_s)));
    }
    {
        const std::unique_ptr<Session> device = open(u"ann"_s);
        device->recurring.softDelete(u"r"_s);
        Account renamed = device->accounts.findById(u"b"_s).value();
        renamed.name = awkwardWords();
        renamed.sync_status = SyncStatus::Pending;
        device->accounts.update(renamed);
    }
    QVERIFY(settle(ann, bob));
    QCOMPARE(bob, ann);
    QCOMPARE(ann.size(), 12);
    QCOMPARE(ann.filter(u"Café “%1”"_s).size(), 1);
    QVERIFY(ann.join(u'\n').contains(awkwardWords()));
}

void TwoDevicesTest::backlogLeavesInBatches_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<QList<qsizetype>>("leftAfterEachPass");
    QTest::newRow("501") << 501 << QList<qsizetype>{1, 0};
    QTest::newRow("1,400") << 1400 << QList<qsizetype>{900, 400, 0};
}

void TwoDevicesTest::backlogLeavesInBatches()
{
    QFETCH(int, rows);
    QFETCH(QList<qsizetype>, leftAfterEachPass);
    {
        const std::unique_ptr<Session> device = open(u"ann"_s);
        device->accounts.insert(pending(sampleAccount(u"a"_s)));
        Transaction transaction = pending(sampleTransaction());
        transaction.category_id.clear();
        for (int row = 1; row < rows; ++row) {
            transaction.id = newId();
            device->transactions.insert(transaction);
        }
        for (const qsizetype left : leftAfterEachPass) {
            QVERIFY(device->rig.runPass());
            QCOMPARE(device->pendingCount(), left);
        }
        QCOMPARE(m_service->requestCount(u"/sync/push"_s), leftAfterEachPass.size());
    }
    const int pulls = m_service->requestCount(u"/sync/pull"_s);
    const std::unique_ptr<Session> other = open(u"bob"_s);
    QVERIFY(other->rig.runPass());
    QCOMPARE(other->dump().size(), rows);
    QCOMPARE(m_service->requestCount(u"/sync/pull"_s) - pulls, (rows + 199) / 200);
}

void TwoDevicesTest::laterVersionWins()
{
    QStringList ann;
    QStringList bob;
    fillHousehold(*open(u"ann"_s));
    QVERIFY(settle(ann, bob));
    const auto edit = [this](const QString &name, const QString &payee, int versions) {
        const std::unique_ptr<Session> device = open(name);
        Transaction edited = device->transactions.findById(u"t"_s).value();
        edited.payee = payee;
        edited.version += versions;
        edited.sync_status = SyncStatus::Pending;
        device->transactions.update(edited);
    };
    edit(u"ann"_s, u"earlier version"_s, 1);
    edit(u"bob"_s, u"later version"_s, 2);
    QVERIFY(open(u"bob"_s)->rig.runPass());
    const LogCatcher log; // the service refuses the earlier one
    QVERIFY(settle(ann, bob));
    QCOMPARE(ann.filter(u"later version"_s).size(), 1);
    QVERIFY(LogCatcher::warnings().first().contains(u"transaction t status= conflict"_s));
}

PURSEWELL_TEST_MAIN(TwoDevicesTest)
#include "TwoDevicesTest.moc"
