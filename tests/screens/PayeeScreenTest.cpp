#include "screens/PayeeScreen.h"

#include "core/state/AppState.h"
#include "data/TransactionRepository.h"
#include "support/DialogAnswer.h"
#include "support/SampleRecords.h"
#include "support/StateFixture.h"

using namespace Qt::StringLiterals;

namespace {
const QStringList kMany = QString(u"P1 P2 P3 P4 P5 P6 P7 P8 P9"_s).split(u' ');
}

class PayeeScreenTest : public StateFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void changesWhatIsSelected_data();
    void changesWhatIsSelected();

private:
    void select(const QStringList &payees);
    QStringList
    click(const QString &button); // the texts of the boxes, each answered with Yes or Ok

    PayeeScreen *m_screen = nullptr;
    QListWidget *m_list = nullptr;
};

void PayeeScreenTest::init()
{
    StateFixture::init();
    for (const QString &payee : {u"Amazon"_s, u"Amazon"_s, u"amazon.de"_s, awkwardWords(), u""_s,
                                 u"Transfer to Savings"_s, u"Stubborn"_s})
        addTransaction(u"2024-02-29"_s, payee, -100);
    for (const QString &payee : kMany)
        addTransaction(u"2024-02-29"_s, payee, -100);
    run(u"UPDATE transactions SET sync_status = 'synced'"_s);
    run(u"UPDATE transactions SET deleted_at = created_at, memo = 'gone' WHERE rowid = 1"_s);
    run(refusing(u"UPDATE ON transactions WHEN old.payee = 'Stubborn'"_s));
    m_screen = keep<PayeeScreen>(&state());
    m_list = m_screen->findChild<QListWidget *>();
    m_screen->refresh();
    showActive(m_screen, {550, 500});
    QCOMPARE(m_list->count(), 5 + kMany.size());
}

void PayeeScreenTest::select(const QStringList &payees)
{
    for (const QString &payee : payees)
        QTest::mouseClick(
            m_list->viewport(), Qt::LeftButton, Qt::ControlModifier,
            m_list->visualItemRect(m_list->findItems(payee, Qt::MatchExactly).value(0)).center());
}

QStringList PayeeScreenTest::click(const QString &button)
{
    QStringList texts;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&texts] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            return;
        texts << box->text();
        QAbstractButton *yes = box->button(QMessageBox::Yes);
        (yes ? yes : box->button(QMessageBox::Ok))->click();
    });
    timer.start(10);
    m_screen->findChild<QPushButton *>(button)->click();
    return texts;
}

void PayeeScreenTest::changesWhatIsSelected_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QStringList>("selected");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("target"); // empty: nothing happens
    QTest::addColumn<QStringList>("told");

    const QString rename = u"renameButton"_s;
    const QString merge = u"mergeButton"_s;
    const QString awkward = awkwardWords();
    QTest::newRow("rename, blanks trimmed")
        << rename << QStringList{awkward, u"Transfer to Savings"_s} << u"  A'B %1 "_s << u"A'B %1"_s
        << QStringList{u"Renamed 2 transaction(s)."_s};
    QTest::newRow("rename onto another payee")
        << rename << QStringList{u"amazon.de"_s} << u"Amazon"_s << u"Amazon"_s
        << QStringList{u"Renamed 1 transaction(s)."_s};
    QTest::newRow("rename, one refused")
        << rename << QStringList{u"Stubborn"_s, u"Amazon"_s} << u"Shop"_s << u"Shop"_s
        << QStringList{u"Renamed 1 transaction(s)."_s};
    QTest::newRow("rename many") << rename << kMany << u"P"_s << u"P"_s
                                 << QStringList{u"Renamed 9 transaction(s)."_s};
    QTest::newRow("rename to nothing")
        << rename << QStringList{u"Amazon"_s} << u"  "_s << QString() << QStringList();
    QTest::newRow("rename nothing")
        << rename << QStringList() << u"New"_s << QString() << QStringList();
    QTest::newRow("merge into the first")
        << merge << QStringList{awkward, u"Amazon"_s} << QString() << awkward
        << QStringList{u"Merge 2 payees into \"%1\"?"_s.arg(awkward),
                       u"Merged 1 transaction(s)."_s};
    QTest::newRow("merge one") << merge << QStringList{u"Amazon"_s} << u"New"_s << QString()
                               << QStringList{u"Select 2 or more payees to merge."_s};
}

void PayeeScreenTest::changesWhatIsSelected()
{
    QFETCH(QString, button);
    QFETCH(QStringList, selected);
    QFETCH(QString, typed);
    QFETCH(QString, target);
    const QSignalSpy changed(m_screen, &PayeeScreen::payeesChanged);
    const QSignalSpy repository(state().transactions(),
                                &TransactionRepository::transactionsChanged);
    select(selected);
    m_screen->findChild<QLineEdit *>(u"renameEdit"_s)->setText(typed);
    QTEST(click(button), "told");
    QCOMPARE(changed.size(), target.isEmpty() ? 0 : 1);
    QCOMPARE(repository.size(), 0);
    const QString leftover = u"EXISTS (SELECT 1 FROM sqlite_master WHERE name LIKE 'payees%')"_s;
    QCOMPARE(stored(u"id"_s, leftover), QString());
    for (const QString &payee : selected) {
        const bool stays = payee == target || target.isEmpty() || payee == u"Stubborn"_s;
        QCOMPARE(m_list->findItems(payee, Qt::MatchExactly).size(), stays ? 1 : 0);
    }
    QCOMPARE(stored(u"DISTINCT version, updated_at LIKE '____-__-__ __:__:__', payee"_s,
                    u"sync_status = 'pending'"_s),
             target.isEmpty() ? QString() : u"1|1|"_s + target);
    run(u"UPDATE transactions SET deleted_at = NULL WHERE memo = 'gone'"_s);
    QCOMPARE(stored(u"payee"_s, u"memo = 'gone'"_s), u"Amazon"_s);
}

PURSEWELL_TEST_MAIN(PayeeScreenTest)
#include "PayeeScreenTest.moc"
