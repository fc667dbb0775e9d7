#include "core/Ids.h"

#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

class IdsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newIdsAreRandomUuids();
    void seedsGiveTheirIds_data();
    void seedsGiveTheirIds();
};

void IdsTest::newIdsAreRandomUuids()
{
    static const QRegularExpression form(
        u"^[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}$"_s);
    const QString id = newId();
    QVERIFY2(form.match(id).hasMatch(), qPrintable(id));
    QVERIFY(id != newId());
}

// Other devices hold rows under these ids.
void IdsTest::seedsGiveTheirIds_data()
{
    QTest::addColumn<QUuid>("nameSpace");
    QTest::addColumn<QString>("seed");
    QTest::addColumn<QString>("id");

    QTest::newRow("category") << categoryNamespace() << u"expense::Groceries"_s
                              << u"f80ec558-0a5d-59fd-bb97-1216bc91c991"_s;
    QTest::newRow("UTF-8 seed") << categoryNamespace() << u"expense::Épicerie"_s
                                << u"2d580637-b17e-55f9-82f3-fd2763169192"_s;
    QTest::newRow("occurrence") << occurrenceNamespace() << u"template:2024-02-29"_s
                                << u"5515ee93-4af9-55a3-90a1-4682d15c8157"_s;
}

void IdsTest::seedsGiveTheirIds()
{
    QFETCH(QUuid, nameSpace);
    QFETCH(QString, seed);
    QTEST(deterministicId(nameSpace, seed), "id");
}

PURSEWELL_TEST_MAIN(IdsTest)
#include "IdsTest.moc"
