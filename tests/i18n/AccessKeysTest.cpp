#include "i18n/AccessKeys.h"

#include "core/Language.h"
#include "i18n/LanguageChange.h"
#include "shell/ShellFixture.h"
#include "support/LanguageRows.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

class AccessKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void menusHaveOneEntryToAKey_data() { addLanguageRows(); }
    void menusHaveOneEntryToAKey();
    void contextMenusHaveOneEntryToAKey_data();
    void contextMenusHaveOneEntryToAKey();
};

namespace {

QStringList entriesOf(const QList<QAction *> &actions)
{
    QStringList texts;
    for (const QAction *action : actions) {
        if (!action->isSeparator())
            texts << action->text();
    }
    return texts;
}

// Asks the view for its menu over the first row.
QStringList entriesOfContextMenu(QAbstractItemView *view)
{
    const QPoint place = view->visualRect(view->model()->index(0, 0)).center();
    const auto entries = chooseInMenu([&] { Q_EMIT view->customContextMenuRequested(place); });
    return entries.value(true) + entries.value(false);
}

} // namespace

void AccessKeysTest::menusHaveOneEntryToAKey()
{
    QFETCH(QString, language);
    const LanguageChange change(language);
    qputenv("PURSEWELL_DEV", "1"); // with the developers' entries
    ShellFixture shell;
    const QMenuBar *bar = shell.openWindow()->menuBar();
    qunsetenv("PURSEWELL_DEV");
    QCOMPARE(accessKeyClashes(entriesOf(bar->actions())).join(u'\n'), QString());
    for (const QMenu *menu : bar->findChildren<QMenu *>()) {
        QStringList entries = entriesOf(menu->actions());
        for (const QString &entry : entries)
            QVERIFY2(!QKeySequence::mnemonic(entry).isEmpty(), qPrintable(entry));
        // In English the two entries on accounts share their key: pressed again, it goes on to the
        // other.
        if (language == u"en"_s)
            entries.removeAll(u"Kestrelwood &Account..."_s);
        QCOMPARE(accessKeyClashes(entries).join(u'\n'), QString());
    }
}

void AccessKeysTest::contextMenusHaveOneEntryToAKey_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : Language::supported()) {
        if (language != u"en"_s) // there "Show &Details..." and "&Delete" share theirs
            QTest::newRow(qPrintable(language)) << language;
    }
}

void AccessKeysTest::contextMenusHaveOneEntryToAKey()
{
    QFETCH(QString, language);
    const LanguageChange change(language);
    qputenv("PURSEWELL_DEV", "1");
    ShellFixture shell;
    shell.openWindow();
    qunsetenv("PURSEWELL_DEV");
    shell.trigger(u"loadSampleDataAction"_s);
    shell.window()->selectAccount(shell.list()->accountIdAt(0));
    for (const auto &[opener, view] : {std::pair{QString(), u"accountList"_s},
                                       {QString(), u"registerTable"_s},
                                       {u"recurringAction"_s, u"recurringTable"_s},
                                       {u"categoriesAction"_s, u"categoryTree"_s}}) {
        if (!opener.isEmpty())
            shell.trigger(opener);
        const QStringList entries = entriesOfContextMenu(shell.find<QAbstractItemView>(view));
        QVERIFY2(entries.size() > 1, qPrintable(view));
        QCOMPARE(accessKeyClashes(entries).join(u'\n'), QString());
    }
}

PURSEWELL_TEST_MAIN(AccessKeysTest)
#include "AccessKeysTest.moc"
