#include "core/state/AppState.h"
#include "data/PreferencesRepository.h"
#include "register/RegisterColumn.h"
#include "register/RegisterFixture.h"
#include "support/TestSupport.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QMenu>
#include <QSettings>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

class RegisterColumnLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void defaultWidths();
    void layoutComesBackInTheNextScreen();
    void storedNonsenseIsPutRight();
    void firstSortFollowsThePreference_data();
    void firstSortFollowsThePreference();
    void preferenceSortsAtOnce();
    void headerMenuHidesColumnsAndResets();
    void twoLineModeGivesTheMemoColumnBack();

private:
    std::unique_ptr<RegisterFixture> m_fixture;
};

void RegisterColumnLayoutTest::init()
{
    m_fixture = std::make_unique<RegisterFixture>();
}

void RegisterColumnLayoutTest::cleanup()
{
    m_fixture.reset();
}

void RegisterColumnLayoutTest::defaultWidths()
{
    QList<int> widths;
    for (int column = 0; column < RegisterColumn::kCount; ++column)
        widths << m_fixture->view().columnWidth(column);
    QCOMPARE(widths, QList<int>({130, 60, 250, 180, 180, 100, 100, 35, 110}));
}

void RegisterColumnLayoutTest::layoutComesBackInTheNextScreen()
{
    m_fixture->view().setColumnWidth(RegisterColumn::Payee, 333);
    m_fixture->view().sortByColumn(RegisterColumn::Memo, Qt::DescendingOrder);
    QSettings().setValue(u"register/colHidden/1"_s, true);

    RegisterScreen next(&m_fixture->state());
    const auto *view = next.findChild<RegisterTableView *>();
    QCOMPARE(view->columnWidth(RegisterColumn::Payee), 333);
    QVERIFY(view->isColumnHidden(RegisterColumn::CheckNumber));
    const auto *model = next.findChild<RegisterModel *>();
    QCOMPARE(model->sortColumn(), int(RegisterColumn::Memo));
    QCOMPARE(model->sortOrder(), Qt::DescendingOrder);
    // A hidden column keeps the width that it had.
    QVERIFY(!QSettings().contains(u"register/colWidth/1"_s));
}

void RegisterColumnLayoutTest::storedNonsenseIsPutRight()
{
    QSettings settings;
    settings.setValue(u"register/colHidden/0"_s, true);
    settings.setValue(u"register/colHidden/8"_s, true);
    settings.setValue(u"register/sortColumn"_s, 9);
    settings.setValue(u"register/sortOrder"_s, 1);
    RegisterScreen next(&m_fixture->state());
    const auto *view = next.findChild<RegisterTableView *>();
    QVERIFY(!view->isColumnHidden(RegisterColumn::Date));
    QVERIFY(!view->isColumnHidden(RegisterColumn::Balance));
    QCOMPARE(next.findChild<RegisterModel *>()->sortColumn(), 0);
    QCOMPARE(next.findChild<RegisterModel *>()->sortOrder(), Qt::DescendingOrder);
}

void RegisterColumnLayoutTest::firstSortFollowsThePreference_data()
{
    QTest::addColumn<bool>("newestFirst");
    QTest::newRow("oldest first") << false;
    QTest::newRow("newest first") << true;
}

void RegisterColumnLayoutTest::firstSortFollowsThePreference()
{
    QFETCH(bool, newestFirst);
    m_fixture->state().preferences()->setBool(u"registerNewestFirst"_s, newestFirst);
    QSettings().remove(u"register"_s);
    RegisterScreen next(&m_fixture->state());
    QCOMPARE(next.findChild<RegisterModel *>()->sortOrder(),
             newestFirst ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void RegisterColumnLayoutTest::preferenceSortsAtOnce()
{
    m_fixture->view().sortByColumn(RegisterColumn::Payee, Qt::AscendingOrder);
    m_fixture->state().preferences()->setBool(u"registerNewestFirst"_s, true);
    QCOMPARE(m_fixture->model().sortColumn(), 0);
    QCOMPARE(m_fixture->model().sortOrder(), Qt::DescendingOrder);
    m_fixture->state().preferences()->setBool(u"registerNewestFirst"_s, false);
    QCOMPARE(m_fixture->model().sortOrder(), Qt::AscendingOrder);
}

void RegisterColumnLayoutTest::headerMenuHidesColumnsAndResets()
{
    m_fixture->openAccount(m_fixture->addAccount(u"Checking"_s));
    QStringList disabled;
    const auto choose = [&](const QString &text) {
        disabled.clear();
        QTimer::singleShot(0, this, [&disabled, text] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            QVERIFY(menu);
            for (QAction *action : menu->actions()) {
                if (!action->isEnabled() && !action->isSeparator())
                    disabled << action->text();
            }
            for (QAction *action : menu->actions()) {
                if (action->text() == text)
                    action->trigger();
            }
            menu->close();
        });
        m_fixture->screen().showHeaderContextMenu({5, 5});
    };
    choose(u"Chk #"_s);
    QCOMPARE(disabled, QStringList({u"Date"_s, u"Balance"_s}));
    QVERIFY(m_fixture->view().isColumnHidden(RegisterColumn::CheckNumber));
    QVERIFY(QSettings().value(u"register/colHidden/1"_s).toBool());
    m_fixture->view().setColumnWidth(RegisterColumn::Payee, 99);
    choose(u"Reset register layout"_s);
    QVERIFY(!m_fixture->view().isColumnHidden(RegisterColumn::CheckNumber));
    QCOMPARE(m_fixture->view().columnWidth(RegisterColumn::Payee), 250);

    m_fixture->state().preferences()->setBool(u"registerTwoLine"_s, true);
    m_fixture->screen().refresh();
    choose(QString());
    QCOMPARE(disabled, QStringList({u"Date"_s, u"Memo"_s, u"Balance"_s}));
}

void RegisterColumnLayoutTest::twoLineModeGivesTheMemoColumnBack()
{
    m_fixture->openAccount(m_fixture->addAccount(u"Checking"_s));
    for (const bool hidden : {true, false}) {
        QSettings().setValue(u"register/colHidden/4"_s, hidden);
        m_fixture->state().preferences()->setBool(u"registerTwoLine"_s, true);
        m_fixture->screen().refresh();
        QVERIFY(m_fixture->view().isColumnHidden(RegisterColumn::Memo));
        m_fixture->state().preferences()->setBool(u"registerTwoLine"_s, false);
        m_fixture->screen().refresh();
        QCOMPARE(m_fixture->view().isColumnHidden(RegisterColumn::Memo), hidden);
    }
    QCOMPARE(m_fixture->view().columnWidth(RegisterColumn::Memo), 180);
}

PURSEWELL_TEST_MAIN(RegisterColumnLayoutTest)
#include "RegisterColumnLayoutTest.moc"
