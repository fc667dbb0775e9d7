#include "sync/SyncPayloads.h"

#include "SyncRig.h"
#include "support/SampleRecords.h"
#include "support/TestDatabase.h"
#include "support/TestSupport.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

class SyncPayloadsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesTheWireForm_data();
    void writesTheWireForm();
    void collectsPendingRowsInOrder();
};

namespace {

QByteArray wire(const QJsonObject &payload)
{
    return QJsonDocument(payload).toJson(QJsonDocument::Compact);
}

template <typename Record> Record plain(Record record)
{
    record.server_id.clear();
    return record;
}

} // namespace

// The keys come out sorted. The texts with awkward words are replaced: what JSON makes of those is
// not ours.
void SyncPayloadsTest::writesTheWireForm_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QByteArray>("expected");

    Account account = sampleAccount();
    account.name = u"Card"_s;
    QTest::newRow("account") << wire(payloadOf(account))
                             << R"({"account_number_last4":"0042","account_type":"credit_card",)"
                                R"("client_id":"a","created_at":"2024-02-29T23:59:58Z",)"
                                R"("currency":"JPY","institution":"First Bank","is_shared":1,)"
                                R"("name":"Card","server_id":"server-a","sort_order":-7,)"
                                R"("starting_balance":9007199254740993,)"
                                R"("updated_at":"2024-02-29T23:59:59Z","version":5})"_ba;
    Account bare;
    bare.id = u"a"_s;
    bare.deleted_at = sampleStamp(3);
    QTest::newRow("account of defaults, deleted")
        << wire(payloadOf(bare))
        << R"({"account_number_last4":"","account_type":"checking","client_id":"a",)"
           R"("created_at":"","currency":"USD","deleted_at":"2024-03-01T00:00:01Z",)"
           R"("institution":"","is_shared":0,"name":"","sort_order":0,"starting_balance":0,)"
           R"("updated_at":"","version":1})"_ba;

    Category category = plain(sampleCategory());
    category.name = u"Café"_s;
    category.parent_id = u"p"_s;
    QTest::newRow("category") << wire(payloadOf(category))
                              << R"({"account_id":"a","category_type":"transfer","client_id":"c",)"
                                 R"("color":"#6E8A7E","created_at":"2024-02-29T23:59:58Z",)"
                                 R"("icon":"home","is_default":1,"is_tax_relevant":1,)"
                                 "\"name\":\"Café\","
                                 R"("parent_id":"p","tax_category":"salt",)"
                                 R"("updated_at":"2024-02-29T23:59:59Z","version":6})"_ba;

    RecurringTransaction recurring = sampleRecurring();
    recurring.payee = u"Rent"_s;
    recurring.memo.clear();
    QTest::newRow("template")
        << wire(payloadOf(recurring))
        << R"({"account_id":"a","amount":-9007199254740993,"auto_post":1,"category_id":"c",)"
           R"("client_id":"r","created_at":"2024-02-29T23:59:58Z","end_date":"2028-02-29",)"
           R"("frequency":"semi_annual","is_active":0,"memo":"","next_due_date":"2024-08-29",)"
           R"("payee":"Rent","server_id":"server-r","start_date":"2024-02-29",)"
           R"("transfer_dest_account_id":"other account","updated_at":"2024-02-29T23:59:59Z"})"_ba;
    Transaction transaction = sampleTransaction();
    transaction.payee = u"Shop"_s;
    transaction.memo = u"m"_s;
    QTest::newRow("transaction")
        << wire(payloadOf(transaction))
        << R"({"account_id":"a","amount":-9007199254740993,"category_id":"c",)"
           R"("check_number":"0101","cleared":1,"client_id":"t",)"
           R"("created_at":"2024-02-29T23:59:58Z","date":"2024-02-29","is_split":1,"memo":"m",)"
           R"("payee":"Shop","reconciled":1,"recurring_id":"template","server_id":"server-t",)"
           R"("transfer_dest_account_id":"other account","transfer_link_id":"other side",)"
           R"("updated_at":"2024-02-29T23:59:59Z","version":7})"_ba;

    QTest::newRow("reconciliation")
        << wire(payloadOf(sampleReconciliation()))
        << R"({"account_id":"a","client_id":"n","completed_at":"2024-03-01T00:00:00Z",)"
           R"("created_at":"2024-02-29T23:59:58Z","reconciled_balance":-9007199254740993,)"
           R"("server_id":"server-n","statement_balance":9007199254740993,)"
           R"("statement_date":"2024-02-29","updated_at":"2024-02-29T23:59:59Z","version":9})"_ba;
}

void SyncPayloadsTest::writesTheWireForm()
{
    QFETCH(QByteArray, written);
    QTEST(written, "expected");
}

void SyncPayloadsTest::collectsPendingRowsInOrder()
{
    TestDatabase database;
    database.addSampleOwners();
    database.recurring.insert(sampleRecurring());
    database.transactions.insert(sampleTransaction());
    database.reconciliations.insert(sampleReconciliation());
    const SyncRepositories repositories = repositoriesOf(database);
    QCOMPARE(pendingChanges(repositories), QJsonArray()); // synced and conflicting ones

    for (const QString &table : {u"accounts"_s, u"categories"_s, u"recurring_transactions"_s,
                                 u"transactions"_s, u"reconciliations"_s})
        database.run(u"UPDATE %1 SET sync_status = 'pending', server_id = NULL "
                     "WHERE id <> 'b'"_s.arg(table));
    database.transactions.softDelete(u"t"_s);
    QStringList lines;
    database.run(u"UPDATE recurring_transactions SET end_date = NULL"_s);
    for (const QJsonValue &change : pendingChanges(repositories)) {
        lines << u"%1 %2 %3 %4"_s.arg(change[u"entity_type"].toString(),
                                      change[u"entity_id"].toString(), change[u"action"].toString(),
                                      QString::number(change[u"version"].toInt()));
        QVERIFY(!change[u"payload"].toObject().contains(u"server_id"));
        QVERIFY(!change[u"payload"].toObject().contains(u"end_date"));
    }
    QCOMPARE(
        lines,
        (QStringList{u"account a upsert 5"_s, u"category c upsert 6"_s, u"recurring r upsert 8"_s,
                     u"transaction t delete 7"_s, u"reconciliation n upsert 9"_s}));
}

PURSEWELL_TEST_MAIN(SyncPayloadsTest)
#include "SyncPayloadsTest.moc"
