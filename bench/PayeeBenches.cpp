#include "PayeeBenches.h"

#include "PaintWatch.h"
#include "PairedBench.h"
#include "Statements.h"
#include "Workbench.h"

#include "screens/PayeeScreen.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

// Says yes to each of the next message boxes as soon as it stands.
void answerBoxes(int count)
{
    if (count == 0)
        return;
    QTimer::singleShot(0, [count] {
        const auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box)
            qFatal("bench: no message box");
        answerBoxes(count - 1);
        QAbstractButton *yes = box->button(QMessageBox::Yes);
        (yes ? yes : box->button(QMessageBox::Ok))->click();
    });
}

// The payee screen, shown and painted, and the ten most frequent payees, which get their names
// back from a copy of them.
class PayeeStage
{
public:
    explicit PayeeStage(Workbench &bench)
        : m_plain(*bench.plain())
        , m_screen(bench.state())
        , m_list(m_screen.findChild<QListWidget *>())
        , m_paints({m_list->viewport()})
        , m_frequent(m_plain.firstColumn("SELECT payee FROM transactions WHERE deleted_at IS NULL "
                                         "AND transfer_link_id IS NULL GROUP BY payee "
                                         "ORDER BY COUNT(*) DESC, payee LIMIT 10"))
    {
        m_plain.execute("CREATE TEMP TABLE original AS SELECT rowid AS place, payee "
                        "FROM transactions WHERE payee IN ("
                        + quoted(m_frequent) + ")");
        m_screen.resize(550, 500);
        m_screen.show();
        open();
    }
    ~PayeeStage()
    {
        restoreNames();
        m_plain.execute("DROP TABLE original");
    }
    PayeeStage(const PayeeStage &) = delete;
    PayeeStage &operator=(const PayeeStage &) = delete;

    PlainSqlite &plain() { return m_plain; }
    const QList<QByteArray> &frequent() const { return m_frequent; }

    void open()
    {
        m_screen.refresh();
        waitForPaint();
    }

    void restoreNames()
    {
        m_plain.execute("UPDATE transactions SET payee = original.payee FROM original "
                        "WHERE transactions.rowid = original.place; "
                        "PRAGMA wal_checkpoint(TRUNCATE)");
    }

    void select(qsizetype count)
    {
        m_list->clearSelection();
        for (const QByteArray &payee : m_frequent.first(count)) {
            const QString name = QString::fromUtf8(payee);
            m_list->findItems(name, Qt::MatchExactly).first()->setSelected(true);
        }
        QCoreApplication::processEvents();
    }

    void changeNames(const QString &button, int boxes)
    {
        m_screen.findChild<QLineEdit *>()->setText(Statements::newPayee());
        answerBoxes(boxes);
        m_screen.findChild<QPushButton *>(button)->click();
        waitForPaint();
    }

    void goToFirst()
    {
        m_list->setCurrentRow(0);
        m_list->keyboardSearch(QString()); // forgets what was typed before
        QCoreApplication::processEvents();
    }

    void rememberCurrent() { m_remembered = m_list->currentRow(); }
    void goToRemembered()
    {
        m_list->setCurrentRow(m_remembered);
        waitForPaint();
    }

    void press(const QString &letter)
    {
        QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, letter);
        QCoreApplication::sendEvent(m_list, &key);
        waitForPaint();
    }

    static QByteArray quoted(const QList<QByteArray> &names)
    {
        return "'" + names.join("', '") + "'"; // none holds an apostrophe
    }

private:
    void waitForPaint()
    {
        m_paints.start();
        m_paints.wait();
    }

    PlainSqlite &m_plain;
    PayeeScreen m_screen;
    QListWidget *m_list;
    PaintWatch m_paints;
    QList<QByteArray> m_frequent;
    int m_remembered = 0;
};

std::shared_ptr<PayeeStage> payeeStage()
{
    return std::make_shared<PayeeStage>(workbench(BenchDatabase::Shape::Neglected));
}

void addOpening()
{
    registerPair({"payee screen of 5,000 payees, painted", 2.5}, [] {
        const std::shared_ptr<PayeeStage> stage = payeeStage();
        return Pair{
            .program = [stage] { stage->open(); },
            .counterpart = [stage] { stage->plain().readAll(Statements::payees()); },
        };
    });
}

// No work of the database: the counterpart goes to the same row without looking for it.
void addSearchKey()
{
    registerPair({"letter typed in 5,000 payees, painted", 2.5}, [] {
        const std::shared_ptr<PayeeStage> stage = payeeStage();
        return Pair{
            .prepare = [stage] { stage->goToFirst(); },
            .program = [stage] { stage->press(u"W"_s); }, // Willow comes last of all places
            .restore =
                [stage] {
                    stage->rememberCurrent();
                    stage->goToFirst();
                },
            .counterpart = [stage] { stage->goToRemembered(); },
        };
    });
}

struct NameChange
{
    QString button{};
    qsizetype payees = 0;
    int boxes = 0; // message boxes on the way
};

void addNameChange(const char *name, const NameChange &change)
{
    registerPair({name, 2.5}, [change] {
        const std::shared_ptr<PayeeStage> stage = payeeStage();
        return Pair{
            .prepare =
                [stage, change] {
                    stage->restoreNames();
                    stage->open();
                    stage->select(change.payees);
                },
            .program = [stage, change] { stage->changeNames(change.button, change.boxes); },
            .restore = [stage] { stage->restoreNames(); },
            .counterpart =
                [stage, change] {
                    const QList<QByteArray> names = stage->frequent().first(change.payees);
                    stage->plain().execute(Statements::renamePayees(PayeeStage::quoted(names)));
                    stage->plain().readAll(Statements::payees());
                },
        };
    });
}

} // namespace

void registerPayeeBenches()
{
    addOpening();
    addSearchKey();
    addNameChange("rename one of 5,000 payees, painted", {u"renameButton"_s, 1, 1});
    addNameChange("merge ten of 5,000 payees, painted", {u"mergeButton"_s, 10, 2});
}
