#include "screens/RecurringScreen.h"

#include "core/state/AppState.h"
#include "data/RecurringRepository.h"
#include "support/DialogAnswer.h"
#include "support/SampleRecords.h"
#include "support/StateFixture.h"

using namespace Qt::StringLiterals;

class RecurringScreenTest : public StateFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void rowTellsWhatIsDue_data();
    void rowTellsWhatIsDue();
    void menuActsOnItsRow_data();
    void menuActsOnItsRow();
    void editMendsABrokenTemplate();

private:
    void add(const QString &payee, int days, bool active = true); // due in so many days
    QString cell(int row, int column, int role = Qt::DisplayRole) const;
    QStringList openMenu(int row, const QString &choice = {}); // its enabled entries
    QString dueText() const { return m_screen->findChild<QLabel *>(u"dueLabel"_s)->text(); }
    RecurringTransaction templateOf(const QString &id) const
    {
        return state().recurring()->findById(id).value();
    }

    RecurringScreen *m_screen = nullptr;
    QTableView *m_table = nullptr;
    QString m_account;
    QDate m_today = QDate::currentDate();
};

void RecurringScreenTest::init()
{
    StateFixture::init();
    m_account = addAccount(u"Giro \"%1\""_s);
    m_screen = keep<RecurringScreen>(&state());
    m_table = m_screen->findChild<QTableView *>();
    new QAbstractItemModelTester(m_table->model(), m_table);
    showActive(m_screen, {800, 500});
}

void RecurringScreenTest::add(const QString &payee, int days, bool active)
{
    const RecurringTransaction recurring{.id = payee,
                                         .account_id = m_account,
                                         .payee = payee,
                                         .amount = -150000,
                                         .start_date = m_today.addDays(days),
                                         .next_due_date = m_today.addDays(days),
                                         .is_active = active,
                                         .created_at = sampleStamp(),
                                         .updated_at = sampleStamp()};
    QVERIFY(state().recurring()->insert(recurring));
    m_screen->refresh();
}

QString RecurringScreenTest::cell(int row, int column, int role) const
{
    const QVariant value = m_table->model()->index(row, column).data(role);
    return value.typeId() == QMetaType::QColor ? value.value<QColor>().name() : value.toString();
}

QStringList RecurringScreenTest::openMenu(int row, const QString &choice)
{
    const QPoint place = m_table->visualRect(m_table->model()->index(row, 1)).center();
    return chooseInMenu([&] { m_screen->onContextMenu(place); }, choice).value(true);
}

void RecurringScreenTest::rowTellsWhatIsDue_data()
{
    QTest::addColumn<int>("days"); // from today
    QTest::addColumn<bool>("active");
    QTest::addColumn<bool>("due");
    QTest::newRow("today") << 0 << true << true;
    QTest::newRow("tomorrow") << 1 << true << false;
    QTest::newRow("long ago, inactive") << -4000 << false << false;
}

void RecurringScreenTest::rowTellsWhatIsDue()
{
    QFETCH(int, days);
    QFETCH(bool, active);
    QFETCH(bool, due);
    add(u"Rent %2"_s, days, active);
    QCOMPARE(cell(0, 0), u"Giro \"%1\""_s);
    QCOMPARE(cell(0, 2), u"-$1,500.00"_s);
    QCOMPARE(cell(0, 3), u"monthly"_s);
    QCOMPARE(cell(0, 4, Qt::ForegroundRole), due ? u"#008800"_s : QString());
    QCOMPARE(cell(0, 6), active ? u"Active"_s : u"Inactive"_s);
    QCOMPARE(dueText(), due ? u"(1 due)"_s : QString());
    QCOMPARE(openMenu(0),
             due ? (QStringList{u"&Edit"_s, u"&Confirm"_s, u"&Skip"_s, u"&Delete"_s})
                 : (QStringList{u"&Edit"_s, u"&Delete"_s}));
}

void RecurringScreenTest::menuActsOnItsRow_data()
{
    QTest::addColumn<QString>("entry");
    QTest::addColumn<bool>("refused"); // by the database
    QTest::addColumn<int>("signalled");
    QTest::addColumn<int>("posted");
    QTest::addColumn<bool>("movesOn");
    QTest::newRow("confirm") << u"&Confirm"_s << false << 1 << 1 << true;
    QTest::newRow("confirm in vain") << u"&Confirm"_s << true << 1 << 0 << false;
    QTest::newRow("skip") << u"&Skip"_s << false << 0 << 0 << true;
}

void RecurringScreenTest::menuActsOnItsRow()
{
    QFETCH(QString, entry);
    QFETCH(bool, refused);
    QFETCH(bool, movesOn);
    add(u"Earlier"_s, -1);
    add(u"Rent"_s, 0);
    if (refused)
        run(refusing(u"INSERT ON transactions"_s));
    const QSignalSpy changed(m_screen, &RecurringScreen::transactionsChanged);
    openMenu(1, entry);
    QTEST(int(changed.size()), "signalled");
    QTEST(stored(u"count(*)"_s, u"recurring_id = 'Rent'"_s).toInt(), "posted");
    QCOMPARE(templateOf(u"Rent"_s).next_due_date, movesOn ? m_today.addMonths(1) : m_today);
    QCOMPARE(dueText(), movesOn ? u"(1 due)"_s : u"(2 due)"_s);
    QCOMPARE(cell(m_table->currentIndex().row(), 1), u"Rent"_s);
}

void RecurringScreenTest::editMendsABrokenTemplate()
{
    add(u"Rent"_s, 0, false);
    run(u"UPDATE recurring_transactions SET next_due_date = 'soon'"_s);
    m_screen->refresh();
    const DialogAnswer answer(u"recurringFormDialog"_s, [](QDialog *dialog) {
        dialog->findChild<QCheckBox *>(u"activeCheck"_s)->setChecked(true);
        dialog->accept();
    });
    const QPoint row = m_table->visualRect(m_table->model()->index(0, 1)).center();
    QTest::mouseClick(m_table->viewport(), Qt::LeftButton, {}, row);
    QTest::mouseDClick(m_table->viewport(), Qt::LeftButton, {}, row);
    QVERIFY(answer.wasAsked());
    QCOMPARE(run(u"SELECT is_active, start_date = next_due_date FROM recurring_transactions"_s),
             u"1|1"_s);
    QCOMPARE(dueText(), u"(1 due)"_s);
}

PURSEWELL_TEST_MAIN(RecurringScreenTest)
#include "RecurringScreenTest.moc"
