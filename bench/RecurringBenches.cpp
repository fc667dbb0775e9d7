#include "RecurringBenches.h"

#include "PaintWatch.h"
#include "PairedBench.h"
#include "Statements.h"
#include "Workbench.h"

#include "register/RegisterTableView.h"
#include "services/RecurringService.h"
#include "shell/MainWindow.h"

#include <QListWidget>

namespace {

// Daily templates that post by themselves, as far behind as they were before.
class DueTemplates
{
public:
    DueTemplates(Workbench &bench, int count, int occurrences)
        : m_bench(bench)
        , m_count(count)
        , m_occurrences(occurrences)
    {
    }

    void restore() const;
    void postThrough(PlainSqlite &plain) const;

private:
    QByteArray day(int occurrence) const
    {
        const QDate first = QDate::currentDate().addDays(1 - m_occurrences);
        return first.addDays(occurrence).toString(Qt::ISODate).toLatin1();
    }
    static QByteArray id(int number) { return QByteArray::number(number).rightJustified(36, '0'); }

    Workbench &m_bench;
    int m_count;
    int m_occurrences;
};

constexpr int kCatchUp = 365;
const QByteArray kStamp = "2026-11-01T08:00:00Z";

void DueTemplates::restore() const
{
    PlainSqlite &plain = *m_bench.plain();
    plain.execute("BEGIN; DELETE FROM transactions WHERE recurring_id IS NOT NULL; "
                  "DELETE FROM recurring_transactions");
    {
        PlainWrite insert(
            plain,
            "INSERT INTO recurring_transactions (id, account_id, payee, amount, "
            "frequency, start_date, next_due_date, auto_post, created_at, updated_at) "
            "VALUES (?, ?, ?, -4500, 'daily', ?, ?, 1, ?, ?)");
        for (int i = 0; i < m_count; ++i) {
            const QByteArray account = m_bench.accountId(i % 10).toLatin1();
            insert.run(
                {id(i), account, "Bill " + QByteArray::number(i), day(0), day(0), kStamp, kStamp});
        }
    }
    plain.execute("COMMIT; PRAGMA wal_checkpoint(TRUNCATE)");
}

void DueTemplates::postThrough(PlainSqlite &plain) const
{
    plain.execute("PRAGMA foreign_keys=ON; BEGIN");
    plain.readAll(Statements::dueTemplates(), {day(m_occurrences - 1)});
    {
        PlainWrite insert(plain, Statements::insertOccurrence());
        PlainWrite moveOn(plain, Statements::moveTemplateOn());
        for (int i = 0; i < m_count; ++i) {
            const QByteArray account = m_bench.accountId(i % 10).toLatin1();
            for (int k = 0; k < m_occurrences; ++k) {
                insert.run({id(i * m_occurrences + k), account, day(k),
                            "Bill " + QByteArray::number(i), "-4500", id(i), kStamp, kStamp});
                moveOn.run({day(k + 1), kStamp, id(i)});
            }
        }
    }
    plain.execute("COMMIT");
}

void addCatchUp()
{
    registerPair({"catch-up of 365 occurrences of a template", 2.5}, [] {
        Workbench &bench = workbench(BenchDatabase::Shape::Neglected);
        const DueTemplates templates(bench, 1, kCatchUp);
        return Pair{
            .prepare = [templates] { templates.restore(); },
            .program =
                [&bench] {
                    if (bench.state()->recurringService()->processAutoPost() != kCatchUp)
                        qFatal("bench: the template was not caught up");
                },
            .restore = [templates] { templates.restore(); },
            .counterpart = [&bench, templates] { templates.postThrough(*bench.plain()); },
        };
    });
}

// What main does, but for the application object, which a process has once.
std::shared_ptr<MainWindow> start(Workbench &bench)
{
    bench.openState();
    auto window = std::make_shared<MainWindow>(bench.state());
    PaintWatch paints({window->findChild<RegisterTableView *>()->viewport(),
                       window->findChild<QListWidget *>()->viewport()});
    paints.start();
    window->show();
    paints.wait();
    return window;
}

void addStart(const char *name, int dueTemplates)
{
    registerPair({name}, [dueTemplates] {
        Workbench &bench = workbench(BenchDatabase::Shape::Neglected);
        const DueTemplates templates(bench, dueTemplates, 1);
        const QString account = bench.accountId(0);
        bench.state()->setCurrentAccountId(account);
        const auto window = std::make_shared<std::shared_ptr<MainWindow>>();
        return Pair{
            .prepare =
                [&bench, templates, window] {
                    window->reset();
                    bench.closeState();
                    templates.restore();
                },
            .program = [&bench, window] { *window = start(bench); },
            .restore = [templates] { templates.restore(); },
            .counterpart =
                [&bench, templates, account] {
                    PlainSqlite plain(bench.path());
                    templates.postThrough(plain);
                    plain.readAll(Statements::balances());
                    plain.readAll(Statements::registerRows(), {account.toUtf8()});
                },
        };
    });
}

} // namespace

void registerRecurringBenches()
{
    addCatchUp();
    addStart("start with nothing due, painted", 0);
    addStart("start with 200 due templates, painted", 200);
}
