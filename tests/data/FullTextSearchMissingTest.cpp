#include "data/Database.h"

#include "support/TestSupport.h"

#include <QtSql>
#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

namespace {

QStringList executedStatements;

// Takes every statement and has no row for any: an SQLite without modules.
class BareResult : public QSqlResult
{
public:
    explicit BareResult(const QSqlDriver *driver)
        : QSqlResult(driver)
    {
    }

protected:
    QVariant data(int) override { return {}; }
    bool isNull(int) override { return true; }
    bool reset(const QString &statement) override
    {
        executedStatements << statement;
        setActive(true);
        setSelect(true);
        return true;
    }
    bool fetch(int) override { return false; }
    bool fetchFirst() override { return false; }
    bool fetchLast() override { return false; }
    int size() override { return 0; }
    int numRowsAffected() override { return 0; }
};

class BareDriver : public QSqlDriver
{
public:
    bool hasFeature(DriverFeature) const override { return false; }
    bool open(const QString &, const QString &, const QString &, const QString &, int,
              const QString &) override
    {
        setOpen(true);
        return true;
    }
    void close() override { setOpen(false); }
    QSqlResult *createResult() const override { return new BareResult(this); }
};

} // namespace

class FullTextSearchMissingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void driverWithoutItIsRefusedBeforeAnythingIsWritten();
};

void FullTextSearchMissingTest::driverWithoutItIsRefusedBeforeAnythingIsWritten()
{
    QSqlDatabase::registerSqlDriver(u"QSQLITE"_s, new QSqlDriverCreator<BareDriver>);
    const LogCatcher log;
    Database database;
    QVERIFY(database.open(u"unused"_s));
    executedStatements.clear();
    QVERIFY(!database.migrate());
    QCOMPARE(LogCatcher::criticals().size(), 1);
    QVERIFY(LogCatcher::criticals().first().contains(u"FTS5"_s));
    QCOMPARE(executedStatements.size(), 1);
    QVERIFY(executedStatements.first().startsWith(u"SELECT "_s));
}

PURSEWELL_TEST_MAIN(FullTextSearchMissingTest)
#include "FullTextSearchMissingTest.moc"
