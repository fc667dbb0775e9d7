#include "sync/PullApplier.h"

#include "SyncRig.h"
#include "support/SampleRecords.h"
#include "support/TestDatabase.h"
#include "support/TestSupport.h"
#include "sync/SyncPayloads.h"

#include <QUuid>

using namespace Qt::StringLiterals;

namespace {

constexpr int kEntities = 5;

struct Entity
{
    QString table{};
    QString array{};
    QString id{};
    QString dateKey{}; // that must be sound; empty: none
    bool takesDeletes = true;
};

const Entity kEntityList[kEntities]{
    {u"accounts"_s, u"accounts"_s, u"x"_s, {}, true},
    {u"categories"_s, u"categories"_s, u"x"_s, {}, true},
    {u"recurring_transactions"_s, u"recurring_transactions"_s, u"x"_s, u"next_due_date"_s, true},
    {u"transactions"_s, u"transactions"_s, u"x"_s, u"date"_s, true},
    {u"reconciliations"_s, u"reconciliations"_s, u"x"_s, u"statement_date"_s, false},
};

// The record "x" of each kind as the service hands it out, version 5.
QJsonObject pulled(int entity, const QJsonObject &changes = {})
{
    QJsonObject record;
    switch (entity) {
    case 0:
        record = payloadOf(sampleAccount(u"x"_s));
        break;
    case 1:
        record = payloadOf(sampleCategory(u"x"_s));
        break;
    case 2:
        record = payloadOf(sampleRecurring(u"x"_s));
        break;
    case 3:
        record = payloadOf(sampleTransaction(u"x"_s));
        break;
    default:
        record = payloadOf(sampleReconciliation(u"x"_s));
    }
    record.insert("id"_L1, u"new key"_s);
    record.insert("version"_L1, 5);
    for (auto change = changes.constBegin(); change != changes.constEnd(); ++change)
        record.insert(change.key(), change.value());
    return record;
}

} // namespace

class PullApplierTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void readsWhatThePushWrites();
    void foldsByVersion_data();
    void foldsByVersion();
    void findsTheRow_data();
    void findsTheRow();
    void readsFields_data();
    void readsFields();
    void skipsBrokenDates_data();
    void skipsBrokenDates();
    void prefersTheLongRecurringKey();
    void dropsWhatHasNoOwner();
    void survivesWrongTypes_data();
    void survivesWrongTypes();

private:
    void apply(int entity, const QList<QJsonObject> &records);
    QString rowText(const Entity &entity, const QString &columns);

    std::unique_ptr<TestDatabase> m_database{};
    std::unique_ptr<PullApplier> m_applier{};
};

void PullApplierTest::init()
{
    m_applier.reset();
    m_database.reset();
    m_database = std::make_unique<TestDatabase>();
    m_database->addSampleOwners();
    m_applier = std::make_unique<PullApplier>(repositoriesOf(*m_database));
}

void PullApplierTest::apply(int entity, const QList<QJsonObject> &records)
{
    QJsonArray array;
    for (const QJsonObject &record : records)
        array.append(record);
    m_applier->applyPage({{kEntityList[entity].array, array}});
}

// The columns of the row "x", or "none".
QString PullApplierTest::rowText(const Entity &entity, const QString &columns)
{
    const QVariant row =
        m_database->value(u"SELECT %1 FROM %2 WHERE id = 'x'"_s.arg(columns, entity.table));
    return row.isValid() ? row.toString() : u"none"_s;
}

template <typename Record> Record asPulled(Record record)
{
    record.sync_status = SyncStatus::Synced;
    record.server_id = u"new key"_s;
    record.version = 5;
    return record;
}

void PullApplierTest::readsWhatThePushWrites()
{
    for (int entity = 0; entity < kEntities; ++entity)
        apply(entity, {pulled(entity)});
    QCOMPARE(m_database->accounts.findById(u"x"_s), asPulled(sampleAccount(u"x"_s)));
    QCOMPARE(m_database->categories.findById(u"x"_s), asPulled(sampleCategory(u"x"_s)));
    QCOMPARE(m_database->recurring.findById(u"x"_s), asPulled(sampleRecurring(u"x"_s)));
    QCOMPARE(m_database->transactions.findById(u"x"_s), asPulled(sampleTransaction(u"x"_s)));
    QCOMPARE(m_database->reconciliations.findById(u"x"_s), asPulled(sampleReconciliation(u"x"_s)));
}

void PullApplierTest::foldsByVersion_data()
{
    QTest::addColumn<QString>("localRow"); // what is set in it; empty: no such row
    QTest::addColumn<QJsonObject>("record");
    QTest::addColumn<QString>("expected"); // server_id, sync_status, deleted
    QTest::addColumn<QString>("expectedWithoutDeletes");

    const QJsonObject deletion{{"deleted_at"_L1, u"2024-03-01T00:00:00Z"_s}};
    const QString synced = u"sync_status = 'synced', version = 5"_s;
    const QString pending = u"sync_status = 'pending', version = 5"_s;
    const auto add = [](const char *name, const QString &local, const QJsonObject &record,
                        const QString &expected, const QString &withoutDeletes = {}) {
        QTest::newRow(name) << local << record << expected
                            << (withoutDeletes.isEmpty() ? expected : withoutDeletes);
    };
    add("unknown", {}, {}, u"new key synced live"_s);
    add("unknown and deleted", {}, deletion, u"none"_s);
    add("lower", synced, {{"version"_L1, 4}}, u"old key synced live"_s);
    add("lower deletion", pending, {{"version"_L1, 4}, {"deleted_at"_L1, u"2024-03-01"_s}},
        u"old key pending live"_s);
    add("no version", synced, {{"version"_L1, QJsonValue()}}, u"old key synced live"_s);
    add("version beyond 32 bits", synced, {{"version"_L1, qint64(5'000'000'000)}},
        u"old key synced live"_s);
    add("equal", synced, {}, u"new key synced live"_s);
    add("equal, over a pending edit", pending, {}, u"new key synced live"_s);
    add("higher, over a pending edit", pending, {{"version"_L1, 6}}, u"new key synced live"_s);
    add("deletion goes back once", synced, deletion, u"new key pending deleted"_s,
        u"new key synced live"_s);
    add("unreadable deletion", synced, {{"deleted_at"_L1, u"yesterday"_s}},
        u"new key pending deleted"_s, u"new key synced live"_s);
    add("deletion of a deleted row", pending + u", deleted_at = '2024-01-01T00:00:00Z'"_s, deletion,
        u"new key synced deleted"_s);
    add("live record of a deleted row", synced + u", deleted_at = '2024-01-01T00:00:00Z'"_s, {},
        u"new key synced deleted"_s);
}

void PullApplierTest::foldsByVersion()
{
    QFETCH(QString, localRow);
    QFETCH(QJsonObject, record);
    QFETCH(QString, expected);
    QFETCH(QString, expectedWithoutDeletes);

    for (int index = 0; index < kEntities; ++index) {
        const Entity &entity = kEntityList[index];
        if (!localRow.isEmpty()) {
            apply(index, {pulled(index)});
            m_database->run(u"UPDATE %1 SET server_id = 'old key', %2 WHERE id = 'x'"_s.arg(
                entity.table, localRow));
        }
        apply(index, {pulled(index, record)});
        QCOMPARE(rowText(entity,
                         u"server_id || ' ' || sync_status || "
                         "iif(deleted_at IS NULL, ' live', ' deleted')"_s),
                 entity.takesDeletes ? expected : expectedWithoutDeletes);
    }
}

void PullApplierTest::findsTheRow_data()
{
    QTest::addColumn<QList<QJsonObject>>("records");
    QTest::addColumn<QString>("expected"); // the ids and keys of all rows, "?" for a fresh id

    using Records = QList<QJsonObject>;
    const auto record = [](const QString &clientId, const QString &serverId) {
        return pulled(3, {{"client_id"_L1, clientId}, {"id"_L1, serverId}});
    };
    QTest::newRow("by its key") << Records{record({}, u"key 1"_s)} << u"row 1=key 1"_s;
    QTest::newRow("by its key, under another id")
        << Records{record(u"elsewhere"_s, u"key 1"_s)} << u"row 1=key 1"_s;
    QTest::newRow("by its id, with another key")
        << Records{record(u"row 1"_s, u"key 2"_s)} << u"row 1=key 2"_s;
    QTest::newRow("neither, so a fresh id")
        << Records{record({}, u"key 2"_s)} << u"?=key 2, row 1=key 1"_s;
    QTest::newRow("twice on a page, the first without an id")
        << Records{record({}, u"key 2"_s), record({}, u"key 2"_s)} << u"?=key 2, row 1=key 1"_s;
    QTest::newRow("its key moved within the page")
        << Records{record({}, u"key 3"_s), record(u"row 1"_s, u"key 2"_s), record({}, u"key 1"_s)}
        << u"?=key 1, ?=key 3, row 1=key 2"_s;
    QTest::newRow("awkward key") << Records{record({}, awkwardWords()), record({}, awkwardWords())}
                                 << u"?=%1, row 1=key 1"_s.arg(awkwardWords());
}

void PullApplierTest::findsTheRow()
{
    QFETCH(QList<QJsonObject>, records);
    apply(3, {pulled(3, {{"client_id"_L1, u"row 1"_s}, {"id"_L1, u"key 1"_s}})});
    apply(3, records);
    QStringList rows;
    const QString ids =
        m_database->value(u"SELECT group_concat(id, ',') FROM transactions"_s).toString();
    for (const QString &id : ids.split(u',')) {
        const QString key = m_database->transactions.findById(id)->server_id;
        rows << (QUuid(id).isNull() ? id : u"?"_s) + u'=' + key;
    }
    rows.sort();
    QTEST(rows.join(u", "_s), "expected");
}

void PullApplierTest::readsFields_data()
{
    QTest::addColumn<int>("entity");
    QTest::addColumn<QJsonObject>("record");
    QTest::addColumn<QString>("column");
    QTest::addColumn<QString>("expected");

    const auto add = [](const char *name, int entity, const QString &key, const QJsonValue &value,
                        const QString &expected) {
        QTest::newRow(name) << entity << QJsonObject{{key, value}} << key << expected;
    };
    add("boolean", 3, u"cleared"_s, false, u"0"_s);
    add("boolean as a number", 3, u"cleared"_s, 2, u"1"_s);
    add("boolean as zero", 3, u"cleared"_s, 0, u"0"_s);
    add("boolean as a word", 3, u"cleared"_s, u"true"_s, u"0"_s);
    add("empty text where one must be", 3, u"payee"_s, u""_s, u""_s);
    add("no category", 3, u"category_id"_s, u""_s, u"NULL"_s);
    add("date with a time", 3, u"date"_s, u"2024-05-06T23:30:00-08:00"_s, u"2024-05-06"_s);
    add("statement date with a time", 4, u"statement_date"_s, u"2024-05-06T01:02:03Z"_s,
        u"2024-05-06"_s);
    add("no end", 2, u"end_date"_s, u""_s, u"NULL"_s);
    add("unreadable end", 2, u"end_date"_s, u"never"_s, u"NULL"_s);
    add("amount with a fraction", 3, u"amount"_s, 12.5, u"0"_s);
}

void PullApplierTest::readsFields()
{
    QFETCH(int, entity);
    QFETCH(QJsonObject, record);
    QFETCH(QString, column);
    apply(entity, {pulled(entity, record)});
    QTEST(rowText(kEntityList[entity], u"ifnull(%1, 'NULL')"_s.arg(column)), "expected");
}

void PullApplierTest::skipsBrokenDates_data()
{
    QTest::addColumn<int>("entity");
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("warning");

    const QString words = awkwardWords();
    QTest::newRow("template")
        << 2 << u"1999-12-31"_s
        << u"applyRecurring: skipping server record with broken nextDueDate: x Rent "_s + words
            + u" 1999-12-31"_s;
    QTest::newRow("transaction")
        << 3 << u"2023-02-29"_s
        << u"applyTransactionChange: skipping server record with broken date: x Shop "_s + words
            + u" 2023-02-29"_s;
    QTest::newRow("reconciliation")
        << 4 << u"%1"_s
        << u"applyReconciliation: skipping server record with broken statementDate: x %1"_s;
}

void PullApplierTest::skipsBrokenDates()
{
    QFETCH(int, entity);
    QFETCH(QString, date);
    QFETCH(QString, warning);
    const Entity &kind = kEntityList[entity];
    const QJsonObject broken =
        pulled(entity, {{kind.dateKey, date}, {"id"_L1, u"newer"_s}, {"version"_L1, 6}});
    const LogCatcher log;
    apply(entity, {broken});
    QCOMPARE(rowText(kind, u"id"_s), u"none"_s);
    apply(entity, {pulled(entity), broken});
    QCOMPARE(rowText(kind, u"server_id"_s), u"new key"_s); // the local row stays as it is
    QCOMPARE(LogCatcher::warnings(), (QStringList{warning, warning}));
}

void PullApplierTest::prefersTheLongRecurringKey()
{
    const QJsonArray records{pulled(2)};
    m_applier->applyPage({{"recurring_transactions"_L1, QJsonArray()}, {"recurring"_L1, records}});
    QVERIFY(!m_database->recurring.findById(u"x"_s));
    m_applier->applyPage({{"recurring"_L1, records}});
    QVERIFY(m_database->recurring.findById(u"x"_s));
}

void PullApplierTest::dropsWhatHasNoOwner()
{
    const LogCatcher log;
    apply(3,
          {pulled(3, {{"account_id"_L1, u"nobody"_s}}),
           pulled(3, {{"client_id"_L1, u"next"_s}, {"id"_L1, u"key"_s}})});
    QVERIFY(!m_database->transactions.findById(u"x"_s));
    QVERIFY(m_database->transactions.findById(u"next"_s));
    QCOMPARE(LogCatcher::warnings().size(), 1);
    QVERIFY(LogCatcher::warnings().first().startsWith(u"TransactionRepository::insert failed:"_s));
}

void PullApplierTest::survivesWrongTypes_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::newRow("number") << QJsonValue(42);
    QTest::newRow("text") << QJsonValue(u"text"_s);
    QTest::newRow("null") << QJsonValue(QJsonValue::Null);
    QTest::newRow("list") << QJsonValue(QJsonArray{1, QJsonArray{}});
    QTest::newRow("object") << QJsonValue(QJsonObject{{"a"_L1, 1}});
}

// As the arrays, as the records, and as every field of a record in turn.
void PullApplierTest::survivesWrongTypes()
{
    QFETCH(QJsonValue, value);
    const LogCatcher log;
    for (int entity = 0; entity < kEntities; ++entity) {
        m_applier->applyPage({{kEntityList[entity].array, value}});
        m_applier->applyPage({{kEntityList[entity].array, QJsonArray{value, QJsonObject()}}});
        const QStringList keys = pulled(entity).keys();
        for (const QString &key : keys)
            apply(entity, {pulled(entity, {{key, value}})});
    }
    QCOMPARE(m_database->value(u"PRAGMA integrity_check"_s).toString(), u"ok"_s);
    QVERIFY(!m_database->value(u"PRAGMA foreign_key_check"_s).isValid());
    QCOMPARE(m_database->value(u"SELECT COUNT(*) FROM accounts WHERE id IN ('a', 'b')"_s), 2);
}

PURSEWELL_TEST_MAIN(PullApplierTest)
#include "PullApplierTest.moc"
