#include "services/CategoryService.h"

#include "support/SampleRecords.h"
#include "support/TestDatabase.h"
#include "support/TestSupport.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::StringLiterals;

namespace {

// A language in which every name is the English one in brackets.
class BracketLanguage : public QTranslator
{
public:
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        return qstrcmp(context, "CategoryService") == 0
            ? u"[%1]"_s.arg(QString::fromUtf8(sourceText))
            : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class CategoryServiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void emptyDatabaseGetsTheDefaults();
    void namesDecideTheIds_data();
    void namesDecideTheIds();
    void translatedNamesGiveOtherIds();
    void oneLiveCategoryIsEnough();
    void deletedCategoriesAreInTheWay();
};

void CategoryServiceTest::emptyDatabaseGetsTheDefaults()
{
    TestDatabase db;
    CategoryService service(&db.categories);
    service.seedDefaults();
    const QString counts =
        u"SELECT COUNT(*) || ' ' || COUNT(parent_id) || ' ' || SUM(is_tax_relevant) || ' ' || "
        "SUM(tax_category != '') || ' ' || SUM(is_default AND sync_status = 'pending' AND "
        "created_at != '' AND updated_at = created_at) FROM categories"_s;
    QCOMPARE(db.value(counts).toString(), u"56 27 12 12 56"_s);
}

void CategoryServiceTest::namesDecideTheIds_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("parent");
    QTest::addColumn<QString>("taxCategory");
    QTest::newRow("top level") << u"f80ec558-0a5d-59fd-bb97-1216bc91c991"_s << u"Groceries"_s
                               << u""_s << u""_s;
    QTest::newRow("the maintenance of a house")
        << u"daf59c16-ae84-5a09-be11-bd9dcd047413"_s << u"Maintenance"_s << u"Housing"_s << u""_s;
    QTest::newRow("the maintenance of a car") << u"5128844d-e078-502e-877e-a6a67d8a3261"_s
                                              << u"Maintenance"_s << u"Transportation"_s << u""_s;
    QTest::newRow("child with a tax code")
        << u"7ac27a40-d9d3-5c60-af4b-fc3c84e61133"_s << u"Home Office"_s << u"Business Expenses"_s
        << u"home_office"_s;
    QTest::newRow("ampersand") << u"376b4690-cf3e-5136-bd4a-e04c2f10d736"_s
                               << u"State & Local Taxes"_s << u""_s << u"salt"_s;
    QTest::newRow("income") << u"f9b00ad8-7eac-57a5-9647-b289b1b606aa"_s << u"Interest Income"_s
                            << u""_s << u"interest_income"_s;
}

void CategoryServiceTest::namesDecideTheIds()
{
    TestDatabase db;
    CategoryService service(&db.categories);
    QFETCH(QString, id);
    QFETCH(QString, parent);
    service.seedDefaults();
    const std::optional<Category> category = db.categories.findById(id);
    QVERIFY(category);
    QTEST(category->name, "name");
    QTEST(category->tax_category, "taxCategory");
    const std::optional<Category> above = db.categories.findById(category->parent_id);
    QCOMPARE(above ? above->name : QString(), parent);
}

void CategoryServiceTest::translatedNamesGiveOtherIds()
{
    TestDatabase db;
    CategoryService service(&db.categories);
    BracketLanguage language;
    QCoreApplication::installTranslator(&language);
    service.seedDefaults();
    QCoreApplication::removeTranslator(&language);
    const std::optional<Category> category =
        db.categories.findById(u"a27c4213-9d8c-54e6-8f00-78d1b2c9898d"_s);
    QVERIFY(category);
    QCOMPARE(category->name, u"[HOA]"_s);
    QCOMPARE(db.categories.findById(category->parent_id)->name, u"[Housing]"_s);
}

void CategoryServiceTest::oneLiveCategoryIsEnough()
{
    TestDatabase db;
    CategoryService service(&db.categories);
    QVERIFY(db.categories.insert(sampleCategory()));
    service.seedDefaults();
    QCOMPARE(db.categories.countActive(), 1);
    QVERIFY(db.categories.softDelete(u"c"_s));
    service.seedDefaults();
    QCOMPARE(db.categories.countActive(), 56);
}

void CategoryServiceTest::deletedCategoriesAreInTheWay()
{
    TestDatabase db;
    CategoryService service(&db.categories);
    service.seedDefaults();
    for (const Category &category : db.categories.listActive())
        QVERIFY(db.categories.softDelete(category.id));
    const LogCatcher log;
    service.seedDefaults();
    QCOMPARE(db.categories.countActive(), 0);
    QCOMPARE(LogCatcher::warnings().size(), 56);
}

PURSEWELL_TEST_MAIN(CategoryServiceTest)
#include "CategoryServiceTest.moc"
