#include "screens/CategoriesScreen.h"

#include "core/Dates.h"
#include "data/CategoryRepository.h"
#include "data/SplitLineRepository.h"
#include "screens/CategoryFormDialog.h"
#include "screens/CategoryTreeModel.h"
#include "support/DialogAnswer.h"
#include "support/SampleRecords.h"
#include "support/StateFixture.h"

using namespace Qt::StringLiterals;

class CategoriesScreenTest : public StateFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void parentsInACircleStayVisible();
    void searchShowsParents();
    void changesKeepWhatIsExpanded_data();
    void changesKeepWhatIsExpanded();
    void categoryInUseLeavesTheTreeAlone();
    void formKeepsWhatItDoesNotShow();

private:
    Category add(const QString &id, const QString &parentId = {});
    QString shown(const QModelIndex &parent = {}) const; // "A (a b) C": open ones with children
    QModelIndex find(const QString &name) const;
    void choose(const QString &name, const QString &entry); // in the context menu

    CategoriesScreen *m_screen = nullptr;
    QTreeView *m_tree = nullptr;
};

void CategoriesScreenTest::init()
{
    StateFixture::init();
    run(u"UPDATE categories SET deleted_at = created_at"_s);
    add(u"Food"_s);
    add(u"bread"_s, u"Food"_s);
    add(u"Fun %1"_s);
    add(u"zoo"_s, u"Fun %1"_s);
    add(u"apples"_s, u"Food"_s);
    m_screen = keep<CategoriesScreen>(&state());
    m_tree = m_screen->findChild<QTreeView *>();
    new QAbstractItemModelTester(m_screen->findChild<CategoryTreeModel *>(), m_tree);
    new QAbstractItemModelTester(m_tree->model(), m_tree);
    m_screen->reloadTree();
    showActive(m_screen, {600, 500});
}

Category CategoriesScreenTest::add(const QString &id, const QString &parentId)
{
    Category category;
    category.id = id;
    category.name = id;
    category.parent_id = parentId;
    category.created_at = sampleStamp();
    category.updated_at = sampleStamp();
    if (!state().categories()->insert(category))
        qFatal("category not stored");
    return category;
}

QString CategoriesScreenTest::shown(const QModelIndex &parent) const
{
    QStringList rows;
    for (int row = 0; row < m_tree->model()->rowCount(parent); ++row) {
        const QModelIndex index = m_tree->model()->index(row, 0, parent);
        rows << index.data().toString();
        if (m_tree->isExpanded(index) && m_tree->model()->hasChildren(index))
            rows << u'(' + shown(index) + u')';
    }
    return rows.join(u' ');
}

QModelIndex CategoriesScreenTest::find(const QString &name) const
{
    const QModelIndexList found =
        m_tree->model()->match(m_tree->model()->index(0, 0), Qt::DisplayRole, name, 1,
                               Qt::MatchExactly | Qt::MatchRecursive);
    return found.value(0);
}

void CategoriesScreenTest::choose(const QString &name, const QString &entry)
{
    const QPoint place = m_tree->visualRect(find(name)).center();
    chooseInMenu([&] { Q_EMIT m_tree->customContextMenuRequested(place); }, entry);
}

void CategoriesScreenTest::parentsInACircleStayVisible()
{
    run(u"UPDATE categories SET parent_id = 'zoo' WHERE id = 'Fun %1'"_s);
    run(u"UPDATE categories SET parent_id = 'Food' WHERE id = 'Food'"_s);
    m_screen->reloadTree();
    m_tree->expandAll();
    QCOMPARE(shown(), u"Food (apples bread) zoo (Fun %1)"_s);
}

void CategoriesScreenTest::searchShowsParents()
{
    QCOMPARE(shown(), u"Food Fun %1"_s);
    auto *search = m_screen->findChild<QLineEdit *>(u"searchEdit"_s);
    search->setText(u"BREA"_s);
    QCOMPARE(shown(), u"Food (bread)"_s);
    search->setText(u"%1"_s);
    QCOMPARE(shown(), u"Fun %1"_s);
    search->clear();
    QCOMPARE(shown(), u"Food Fun %1"_s);
}

void CategoriesScreenTest::changesKeepWhatIsExpanded_data()
{
    QTest::addColumn<QString>("row");
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("name"); // typed; empty: a question is answered
    QTest::addColumn<QString>("tree");
    QTest::addColumn<QString>("current");
    QTest::newRow("add") << u"Food"_s << u"&New Category"_s << u" Car "_s
                         << u"Car Food (apples bread) Fun %1"_s << u"Car"_s;
    QTest::newRow("add below") << u"Fun %1"_s << u"Add &Subcategory"_s << u"cinema"_s
                               << u"Food (apples bread) Fun %1 (cinema zoo)"_s << u"cinema"_s;
    QTest::newRow("edit") << u"bread"_s << u"&Edit"_s << u"Aa \"%1\""_s
                          << u"Food (Aa \"%1\" apples) Fun %1"_s << u"Aa \"%1\""_s;
    QTest::newRow("delete a child")
        << u"bread"_s << u"&Delete"_s << QString() << u"Food (apples) Fun %1"_s << QString();
    QTest::newRow("delete a parent")
        << u"Fun %1"_s << u"&Delete"_s << QString() << u"Food (apples bread) zoo"_s << QString();
}

void CategoriesScreenTest::changesKeepWhatIsExpanded()
{
    QFETCH(QString, row);
    QFETCH(QString, entry);
    QFETCH(QString, name);
    QFETCH(QString, tree);
    m_tree->expand(find(u"Food"_s));
    std::optional<DialogAnswer> answer;
    if (name.isEmpty()) {
        answer.emplace(u"deleteCategoryQuestion"_s, [&row](QDialog *dialog) {
            const QString text = qobject_cast<QMessageBox *>(dialog)->text();
            QVERIFY2(text.startsWith(u"Delete \"%1\"? Trans"_s.arg(row)), qPrintable(text));
            clickYes(dialog);
        });
    } else {
        answer.emplace(u"categoryFormDialog"_s, [&name](QDialog *dialog) {
            dialog->findChild<QLineEdit *>(u"nameEdit"_s)->setText(name);
            QTest::keyClick(dialog, Qt::Key_Return);
        });
    }
    choose(row, entry);
    QVERIFY(answer->wasAsked());
    QCOMPARE(shown(), tree);
    QTEST(m_tree->currentIndex().data().toString(), "current");
    QCoreApplication::processEvents(); // the repository's own notification comes later
    QCOMPARE(shown(), tree);
}

// What is filed under it stays as it is, and so do its subcategories.
void CategoriesScreenTest::categoryInUseLeavesTheTreeAlone()
{
    const Transaction split =
        addTransaction(u"2024-02-29"_s, u"Market"_s, -100,
                       {.category_id = u"Food"_s, .sync_status = SyncStatus::Synced});
    QVERIFY(state().splitLines()->insert(
        {u"line"_s, split.id, u"Food"_s, -100, {}, sampleStamp(), sampleStamp()}));
    run(u"UPDATE categories SET sync_status = 'synced'"_s);
    const QString stamp = isoStamp(currentStamp());
    for (const bool refused : {true, false}) {
        run(refused ? refusing(u"UPDATE ON categories"_s) : u"DROP TRIGGER refusing"_s);
        const LogCatcher log;
        const DialogAnswer answer(u"deleteCategoryQuestion"_s, clickYes);
        choose(u"Food"_s, u"&Delete"_s);
        QCOMPARE(shown(), refused ? u"Food Fun %1"_s : u"Fun %1 apples bread"_s);
        const QStringList logged = log.warnings().filter(u"CategoryRepository::"_s);
        QCOMPARE(logged.size(), refused ? 1 : 0);
        if (refused)
            QVERIFY(logged.first().startsWith(u"CategoryRepository::softDelete failed:"_s));
    }
    QCOMPARE(run(u"SELECT id, ifnull(parent_id, ''), deleted_at >= '%1', sync_status, version "
                 "FROM categories WHERE length(id) < 9 ORDER BY id"_s.arg(stamp)),
             u"Food||1|pending|1; Fun %1|||synced|1; apples|Food||synced|1; bread|Food||synced|1; "
             "zoo|Fun %1||synced|1"_s);
    QCOMPARE(run(u"SELECT t.category_id, s.category_id, t.sync_status, t.version "
                 "FROM transactions t JOIN split_lines s ON s.transaction_id = t.id"_s),
             u"Food|Food|synced|1"_s);
}

void CategoriesScreenTest::formKeepsWhatItDoesNotShow()
{
    Category stored = sampleCategory(); // of transfers, which the form has no item for
    stored.parent_id = u"Food"_s;
    const CategoryFormDialog dialog(stored, state().categories()->listActive());
    QCOMPARE(dialog.findChild<QLabel *>(u"parentLabel"_s)->text(), u"Food"_s);
    Category edited = dialog.category();
    stored.category_type = CategoryType::Expense;
    stored.sync_status = SyncStatus::Pending;
    stored.updated_at = edited.updated_at;
    QVERIFY(edited == stored);
    dialog.findChild<QCheckBox *>()->click();
    QCOMPARE(dialog.category().tax_category, QString());
}

PURSEWELL_TEST_MAIN(CategoriesScreenTest)
#include "CategoriesScreenTest.moc"
