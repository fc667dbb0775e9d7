#include "ReconciliationBenches.h"

#include "PaintWatch.h"
#include "PairedBench.h"
#include "Statements.h"
#include "Workbench.h"

#include "screens/ReconciliationScreen.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace {

constexpr int kManyRowsAccount = 0; // all of its 10,000 rows are unreconciled
constexpr int kFewRowsAccount = 1; // as long, but reconciled save for 100 rows

// A reconciliation of an account, shown and painted.
class ShownRun
{
public:
    ShownRun(Workbench &bench, int account)
        : m_screen(bench.state())
        , m_table(m_screen.findChild<QTableView *>())
        , m_paints({m_table->viewport(), m_screen.findChild<QLabel *>(u"differenceValue"_s)})
    {
        m_screen.startForAccount(bench.accountId(account));
        m_paints.start();
        m_screen.resize(1100, 720);
        m_screen.show();
        m_paints.wait();
    }

    void selectMiddleRow()
    {
        m_table->selectRow(m_table->model()->rowCount() / 2);
        QCoreApplication::processEvents();
    }

    void tick()
    {
        QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, u" "_s);
        QCoreApplication::sendEvent(m_table, &space);
    }

    void tickUntilPainted()
    {
        m_paints.start();
        tick();
        m_paints.wait();
    }

private:
    ReconciliationScreen m_screen;
    QTableView *m_table;
    PaintWatch m_paints;
};

void addLoading(const char *name, int account)
{
    registerPair({name, 2.5}, [account] {
        Workbench &bench = workbench(BenchDatabase::Shape::Neglected);
        const QByteArray id = bench.accountId(account).toUtf8();
        const auto run = std::make_shared<std::unique_ptr<ShownRun>>();
        return Pair{
            .prepare = [run] { run->reset(); },
            .program = [&bench, account,
                        run] { *run = std::make_unique<ShownRun>(bench, account); },
            .counterpart =
                [&bench, id] {
                    bench.plain()->readAll(Statements::accountRows(), {id});
                    bench.plain()->readAll(Statements::unreconciled(), {id});
                },
        };
    });
}

// Both sides are the program: the counterpart ticks the same key among few rows.
void addTick(const PairLine &line, void (ShownRun::*tick)())
{
    registerPair(line, [tick] {
        Workbench &bench = workbench(BenchDatabase::Shape::Neglected);
        const auto many = std::make_shared<ShownRun>(bench, kManyRowsAccount);
        const auto few = std::make_shared<ShownRun>(bench, kFewRowsAccount);
        many->selectMiddleRow();
        few->selectMiddleRow();
        return Pair{
            .prepare = [] { QCoreApplication::processEvents(); },
            .program = [many, tick] { ((*many).*tick)(); },
            .restore = [] { QCoreApplication::processEvents(); },
            .counterpart = [few, tick] { ((*few).*tick)(); },
        };
    });
}

} // namespace

void registerReconciliationBenches()
{
    addLoading("reconcile 10,000 rows, painted", kManyRowsAccount);
    addLoading("reconcile 100 rows out of 10,000, painted", kFewRowsAccount);
    addTick({"tick one of 10,000 rows, beside one of 100"}, &ShownRun::tick);
    addTick({"tick one of 10,000 rows, painted, beside 100"}, &ShownRun::tickUntilPainted);
}
