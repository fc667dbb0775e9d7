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
    void seedsAreUtf8();
};

void IdsTest::newIdsAreRandomUuids()
{
    static const QRegularExpression form(
        u"^[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}$"_s);
    const QString id = newId();
    QVERIFY2(form.match(id).hasMatch(), qPrintable(id));
    QVERIFY(id != newId());
}

// Other devices hold rows under such ids.
void IdsTest::seedsAreUtf8()
{
    QCOMPARE(deterministicId(categoryNamespace(), u"expense::Épicerie"_s),
             u"2d580637-b17e-55f9-82f3-fd2763169192"_s);
}

PURSEWELL_TEST_MAIN(IdsTest)
#include "IdsTest.moc"
