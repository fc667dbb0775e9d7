#include "services/RecurringService.h"

#include "support/SampleRecords.h"
#include "support/TestDatabase.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

namespace {

RecurringTransaction rent(const QString &id = u"r"_s)
{
    RecurringTransaction recurring = sampleRecurring(id);
    recurring.frequency = Frequency::Monthly;
    recurring.next_due_date = QDate(2024, 1, 31);
    recurring.end_date.reset();
    recurring.is_active = true;
    recurring.transfer_dest_account_id.clear();
    return recurring;
}

struct Household : TestDatabase
{
    Household() { addSampleOwners(); }
    int posted() { return value(u"SELECT COUNT(*) FROM transactions"_s).toInt(); }
    QString postings() // "account/category", of a transfer ">other account"
    {
        const QString side = u"account_id || '/' || category_id || "
                             "ifnull('>' || nullif(transfer_dest_account_id, ''), '')"_s;
        return value(u"SELECT group_concat(%1, ' ') FROM transactions"_s.arg(side)).toString();
    }
    QString templateState()
    {
        const QString state = u"is_active || ' ' || next_due_date"_s;
        return value(u"SELECT %1 FROM recurring_transactions"_s.arg(state)).toString();
    }

    QDate today{2024, 2, 1};
    RecurringService::Clock clock = [this] { return today; };
    RecurringService service{&recurring, &transactions, &accounts, nullptr, get(), clock};
};

bool warned(const QString &words)
{
    return LogCatcher::warnings().join(u'\n').contains(words);
}

} // namespace

class RecurringServiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void transferGetsBothSidesOnce();
    void trouble_data();
    void trouble();
    void catchesUp_data();
    void catchesUp();
    void localDayDecides_data();
    void localDayDecides();
    void tickIsStoredAtOnce();
    void allDueAreConfirmedOnce();
};

void RecurringServiceTest::transferGetsBothSidesOnce()
{
    Household home;
    RecurringTransaction transfer = rent();
    transfer.transfer_dest_account_id = u"b"_s;
    home.recurring.insert(transfer);
    QVERIFY(home.service.confirm(transfer));

    const QVariant sides = home.value(
        u"SELECT group_concat(side, '; ') FROM (SELECT id || ' ' || account_id || ' ' || amount || "
        "' ' || transfer_link_id || ' ' || transfer_dest_account_id AS side FROM transactions "
        "WHERE date = '2024-01-31' AND payee = ? AND memo = ? AND category_id = 'c' "
        "AND recurring_id = 'r' AND created_at = updated_at ORDER BY account_id)"_s,
        {transfer.payee, transfer.memo});
    const QString near = u"c5580428-5f42-5e95-9256-f89f837092a9"_s;
    const QString far = u"e5cda0db-365a-5afc-9113-c8c0f94675ea"_s;
    QCOMPARE(sides.toString(),
             u"%1 a -9007199254740993 %2 b; %2 b 9007199254740993 %1 a"_s.arg(near, far));

    home.recurring.update(transfer); // due again, as on a second device
    const LogCatcher log;
    QVERIFY(!home.service.confirm(transfer));
    QVERIFY(warned(u"TransactionRepository::insert failed:"_s));
    QCOMPARE(home.posted(), 2);
    QVERIFY(home.recurring.findById(u"r"_s) == transfer);
}

void RecurringServiceTest::trouble_data()
{
    QTest::addColumn<QString>("harm"); // done to template "r" or its accounts
    QTest::addColumn<QString>("actions");
    // Results added up, postings, is_active, next_due_date; "*": to be synchronized.
    QTest::addColumn<QString>("outcome");
    QTest::addColumn<QString>("warning");
    const auto row = [](const char *name, auto... columns) {
        (QTest::newRow(name) << ... << QString(columns));
    };
    const QString set = u"UPDATE recurring_transactions SET "_s;
    const QString old = set + u"auto_post=0, next_due_date='1999-12-31'"_s;
    const QString refused = u"RecurringService::confirm refusing record with broken date: \"r\""_s;
    const QString reason = u"— auto-deactivating. Reason: broken next_due_date nextDueDate="_s;
    const QString insert = u"TransactionRepository::insert failed:"_s;
    row("old", set + u"next_due_date='1999-12-31'"_s, u"tick"_s, u"0  0 1999-12-31*"_s, reason);
    row("old, confirmed", old, u"confirm"_s, u"0  0 1999-12-31*"_s, refused);
    row("old, skipped", old, u"skip"_s, u"1  1 2000-01-31*"_s, u""_s);
    row("old, not automatic", old, u"tick"_s, u"0  1 1999-12-31"_s, u""_s);
    row("no date", set + u"next_due_date='2023-02-30'"_s, u"tick"_s, u"0  0 2023-02-30*"_s, reason);
    row("no date, confirmed", set + u"next_due_date=''"_s, u"confirm"_s, u"0  0 *"_s, refused);
    row("no date, skipped", set + u"next_due_date=''"_s, u"skip"_s, u"0  1 "_s,
        u"RecurringRepository::update failed:"_s);
    row("no date at all", set + u"start_date='', next_due_date='1999-12-31'"_s, u"tick"_s,
        u"0  0 1999-12-31*"_s, reason);
    const QString currencies = u"UPDATE accounts SET currency='EUR' WHERE id='b'\n"_s + set
        + u"transfer_dest_account_id='b'"_s;
    row("currencies differ", currencies, u"tick"_s, u"0 a/c 1 2024-01-31"_s,
        u"skipping transfer post for \"r\" — source and destination currencies differ"_s);
    row("currencies differ, again", currencies, u"tick confirm"_s, u"0 a/c 1 2024-01-31"_s, insert);
    row("currencies differ, skipped", currencies, u"tick skip"_s, u"1 a/c 1 2024-02-29*"_s,
        u"currencies differ"_s);
    row("destination gone", set + u"transfer_dest_account_id='gone'"_s, u"tick"_s,
        u"1 a/c>gone 1 2024-02-29*"_s, insert);
    const QString gone = u"PRAGMA foreign_keys=OFF\nDELETE FROM %1\nPRAGMA foreign_keys=ON"_s;
    row("account gone", gone.arg(u"accounts"_s), u"tick"_s, u"0  1 2024-01-31"_s, insert);
    row("category gone", gone.arg(u"categories"_s), u"tick"_s, u"0  1 2024-01-31"_s, insert);
    row("category deleted in use", u"UPDATE categories SET deleted_at=created_at"_s, u"tick"_s,
        u"1 a/c 1 2024-02-29*"_s, u""_s);
    row("template gone", u"DELETE FROM recurring_transactions"_s, u"skip"_s, u"0  "_s, u""_s);
    row("template refused", set + u"start_date=''"_s, u"tick"_s, u"0 a/c 1 2024-01-31"_s,
        u"RecurringRepository::update failed:"_s);
    row("date breaks on the way",
        u"CREATE TRIGGER x AFTER UPDATE ON recurring_transactions BEGIN "
        "UPDATE recurring_transactions SET next_due_date='1999-01-31'; END"_s,
        u"tick"_s, u"1 a/c 0 1999-01-31*"_s, u"Reason: advanced to broken date during catchup"_s);
}

void RecurringServiceTest::trouble()
{
    Household home;
    QFETCH(QString, actions);
    QFETCH(QString, warning);
    QFETCH(QString, harm);
    home.recurring.insert(rent());
    for (const QString &statement : harm.split(u'\n'))
        home.run(statement);

    const LogCatcher log;
    const QSignalSpy pending(&home.service, &RecurringService::pendingCountChanged);
    int result = 0;
    for (const QString &action : actions.split(u' ')) {
        result += action == u"tick"_s ? home.service.processAutoPost()
            : action == u"skip"_s     ? int(home.service.skip(rent()))
                                      : int(home.service.confirm(rent()));
    }
    const bool isPending = !home.recurring.listPending().isEmpty();
    QTEST(u"%1 %2 %3%4"_s.arg(QString::number(result), home.postings(), home.templateState(),
                              isPending ? u"*"_s : QString()),
          "outcome");
    QVERIFY2(warned(warning), qPrintable(LogCatcher::warnings().join(u'\n')));
    QCOMPARE(LogCatcher::warnings().isEmpty(), warning.isEmpty());
    QCOMPARE(pending.size(), result);
}

void RecurringServiceTest::catchesUp_data()
{
    QTest::addColumn<QString>("dates"); // today, first due, end if any
    QTest::addColumn<QString>("frequency");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("state");
    const auto row = [](const char *name, auto... columns) {
        (QTest::newRow(name) << ... << columns);
    };
    row("due today", u"2024-12-31 2024-12-31"_s, u"daily"_s, 1, u"1 2025-01-01"_s);
    row("below the cap", u"2024-12-31 2024-01-03"_s, u"daily"_s, 364, u"1 2025-01-01"_s);
    row("mark", u"2024-12-31 2024-01-02"_s, u"daily"_s, 365, u"0 2025-01-01"_s);
    row("limit", u"2024-12-31 2024-01-01"_s, u"daily"_s, 366, u"0 2025-01-01"_s);
    row("ten years", u"2024-03-05 2014-03-05"_s, u"weekly"_s, 366, u"0 2021-03-10"_s);
    row("month ends", u"2024-04-29 2023-10-31"_s, u"monthly"_s, 7, u"1 2024-05-29"_s);
    row("no midnight today", u"2018-11-04 2018-11-03"_s, u"daily"_s, 2, u"1 2018-11-05"_s);
    row("two midnights", u"2018-02-18 2018-02-04"_s, u"biweekly"_s, 2, u"1 2018-03-04"_s);
    row("quarters", u"2024-03-01 2023-08-31"_s, u"quarterly"_s, 3, u"1 2024-05-29"_s);
    row("half years", u"2024-03-01 2023-08-31"_s, u"semi_annual"_s, 2, u"1 2024-08-29"_s);
    row("leap day", u"2026-02-27 2024-02-29"_s, u"annual"_s, 2, u"1 2026-02-28"_s);
    row("end due", u"2024-05-01 2024-01-31 2024-02-29"_s, u"monthly"_s, 2, u"0 2024-03-29"_s);
    row("end passed", u"2024-05-01 2024-01-31 2024-02-28"_s, u"monthly"_s, 1, u"0 2024-02-29"_s);
}

void RecurringServiceTest::catchesUp()
{
    const ZoneChange zone("America/Sao_Paulo"); // its clocks changed at midnight
    Household home;
    QFETCH(QString, dates);
    QFETCH(QString, frequency);
    QFETCH(int, count);
    const QStringList days = dates.split(u' ');
    RecurringTransaction recurring = rent();
    home.today = QDate::fromString(days[0], Qt::ISODate);
    recurring.next_due_date = QDate::fromString(days[1], Qt::ISODate);
    if (days.size() > 2)
        recurring.end_date = QDate::fromString(days[2], Qt::ISODate);
    recurring.frequency = frequencyFromString(frequency);
    home.recurring.insert(recurring);

    const LogCatcher log;
    QCOMPARE(home.service.processAutoPost(), count);
    QCOMPARE(home.value(u"SELECT COUNT(DISTINCT date) FROM transactions"_s).toInt(), count);
    QTEST(home.templateState(), "state");
    QCOMPARE(warned(u"Reason: hit catchup cap in single tick nextDueDate="_s), count >= 365);
}

void RecurringServiceTest::localDayDecides_data()
{
    QTest::addColumn<QByteArray>("zone");
    QTest::addColumn<int>("hours"); // ahead of UTC: at no moment do both have its date
    QTest::newRow("far east") << QByteArray("Pacific/Kiritimati") << 14;
    QTest::newRow("far west") << QByteArray("Etc/GMT+12") << -12;
}

void RecurringServiceTest::localDayDecides()
{
    QFETCH(QByteArray, zone);
    QFETCH(int, hours);
    const ZoneChange change(zone);
    Household home;
    RecurringService service(&home.recurring, &home.transactions, &home.accounts);
    RecurringTransaction recurring = rent();
    recurring.frequency = Frequency::Daily;
    recurring.next_due_date = QDateTime::currentDateTimeUtc().addSecs(hours * 3600).date();
    home.recurring.insert(recurring);
    QCOMPARE(service.processAutoPost(), 1);
    QCOMPARE(service.pendingCount(), 0);
}

void RecurringServiceTest::tickIsStoredAtOnce()
{
    Household home;
    home.recurring.insert(rent(u"r"_s));
    home.recurring.insert(rent(u"s"_s));
    QList<int> seen;
    {
        QSqlDatabase other = QSqlDatabase::cloneDatabase(home.get()->connection(), u"other"_s);
        QVERIFY(other.open());
        const auto lookFromOutside = [&] {
            QSqlQuery query(u"SELECT COUNT(*) FROM transactions"_s, other);
            seen << (query.next() ? query.value(0).toInt() : -1);
        };
        connect(&home.transactions, &TransactionRepository::transactionsChanged, this,
                lookFromOutside);
        QCOMPARE(home.service.processAutoPost(), 2);
        lookFromOutside();
    }
    QSqlDatabase::removeDatabase(u"other"_s);
    QCOMPARE(seen, (QList<int>{0, 0, 2}));
}

void RecurringServiceTest::allDueAreConfirmedOnce()
{
    Household home;
    RecurringTransaction ending = rent(u"ending"_s);
    ending.end_date = ending.next_due_date;
    home.recurring.insert(ending);
    RecurringTransaction byHand = rent(u"by hand"_s);
    byHand.auto_post = false;
    home.recurring.insert(byHand);
    QCOMPARE(home.service.pendingCount(), 2);
    QList<int> told;
    connect(&home.service, &RecurringService::pendingCountChanged, this,
            [&](int count) { told << count; });
    QCOMPARE(home.service.confirmAllDue(), 2);
    QCOMPARE(home.posted(), 2);
    QCOMPARE(told, (QList<int>{1, 1})); // the one by hand stays months behind
    QCOMPARE(home.service.listAll().size(), 2);
}

PURSEWELL_TEST_MAIN(RecurringServiceTest)
#include "RecurringServiceTest.moc"
