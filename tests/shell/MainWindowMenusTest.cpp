#include "shell/MainWindow.h"

#include "core/Deployment.h"
#include "shell/ShellFixture.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

class MainWindowMenusTest : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void keepUrl(const QUrl &url) { m_opened = url; }

private Q_SLOTS:
    void init();
    void cleanup() { m_shell.reset(); }
    void menusHoldTheirEntries_data();
    void menusHoldTheirEntries();
    void keysAreUnique();
    void boxTellsTheKeys();
    void boxTellsTheVersion();
    void feedbackOpensThePage();
    void quitClosesTheWindow();

private:
    QString textOfBox(const QString &actionName, const QString &boxName);

    std::unique_ptr<ShellFixture> m_shell;
    QUrl m_opened;
};

void MainWindowMenusTest::init()
{
    m_shell = std::make_unique<ShellFixture>();
    m_shell->openWindow();
}

void MainWindowMenusTest::menusHoldTheirEntries_data()
{
    QTest::addColumn<QString>("menuName");
    QTest::addColumn<QStringList>("entries");

    QTest::newRow("file") << u"fileMenu"_s
                          << QStringList{u"New &Account Ctrl+Shift+N"_s, u"-"_s, u"&Quit"_s};
    QTest::newRow("account") << u"accountMenu"_s
                             << QStringList{u"&Edit..."_s, u"-"_s, u"&Delete"_s};
    QTest::newRow("help") << u"helpMenu"_s
                          << QStringList{u"&About Kestrelwood Pursewell"_s, u"Send &Feedback..."_s,
                                         u"-"_s, u"&Keyboard Shortcuts"_s};
}

void MainWindowMenusTest::menusHoldTheirEntries()
{
    QFETCH(QString, menuName);
    QFETCH(QStringList, entries);

    QStringList found;
    for (const QAction *action : m_shell->find<QMenu>(menuName)->actions()) {
        // Which key quits is the desktop's choice.
        const bool quits = action->shortcut() == QKeySequence(QKeySequence::Quit);
        const QString entry =
            action->text() + u' ' + (quits ? QString() : action->shortcut().toString());
        found << (action->isSeparator() ? u"-"_s : entry.trimmed());
    }
    QCOMPARE(found, entries);
}

void MainWindowMenusTest::keysAreUnique()
{
    for (const QMenu *menu : m_shell->window()->menuBar()->findChildren<QMenu *>()) {
        QSet<QString> accessKeys;
        for (const QAction *action : menu->actions()) {
            if (action->isSeparator())
                continue;
            const QString key = QKeySequence::mnemonic(action->text()).toString();
            QVERIFY2(!key.isEmpty() && !accessKeys.contains(key), qPrintable(action->text()));
            accessKeys << key;
        }
    }
}

QString MainWindowMenusTest::textOfBox(const QString &actionName, const QString &boxName)
{
    QString text;
    const DialogAnswer answer(boxName, [&text](QDialog *box) {
        text = qobject_cast<QMessageBox *>(box)->text();
        QTest::keyClick(box, Qt::Key_Return);
    });
    m_shell->trigger(actionName);
    QTextDocument shown;
    shown.setHtml(text);
    return shown.toPlainText();
}

void MainWindowMenusTest::boxTellsTheKeys()
{
    QString text = textOfBox(u"shortcutsAction"_s, u"shortcutsBox"_s);
    const QStringList lines = text.replace(QChar::ParagraphSeparator, u'\n').split(u'\n');
    const auto textOf = [&lines](const QString &key) -> QStringList {
        QStringList found;
        for (qsizetype line = 0; line + 1 < lines.size(); ++line) {
            if (lines.at(line).trimmed() == key)
                found << lines.at(line + 1).trimmed();
        }
        return found;
    };
    QVERIFY2(!text.contains(u'%'), qPrintable(text));
    QCOMPARE(textOf(u"Ctrl+Return"_s), QStringList{u"Save transaction"_s});
    QCOMPARE(textOf(u"Ctrl+N"_s), (QStringList{u"Insert new transaction"_s, u"New transaction"_s}));
    QCOMPARE(textOf(u"Ctrl+Shift+N"_s), QStringList{u"New account"_s});
    QCOMPARE(textOf(u"Ctrl+I"_s), QStringList{u"Import"_s});
    QCOMPARE(textOf(u"Ctrl+3"_s), QStringList{u"Recurring transactions"_s});
    QCOMPARE(textOf(u"Ctrl+4"_s), QStringList{u"Categories"_s});
    QCOMPARE(textOf(u"Alt+1 – Alt+9"_s), QStringList{u"Switch to account 1–9"_s});
    QCOMPARE(textOf(u"Alt+0"_s), QStringList{u"Switch to account 10"_s});
    QCOMPARE(textOf(u"y / r"_s), QStringList{u"First / last day of year"_s});
}

void MainWindowMenusTest::boxTellsTheVersion()
{
    QCoreApplication::setApplicationVersion(u"7.8.9"_s);
    const QString text = textOfBox(u"aboutAction"_s, u"aboutBox"_s);
    QVERIFY2(text.contains(u"Version 7.8.9"_s), qPrintable(text));
    QVERIFY2(text.contains(u"LGPL v3"_s) && text.contains(kSourceUrl), qPrintable(text));
}

void MainWindowMenusTest::feedbackOpensThePage()
{
    QDesktopServices::setUrlHandler(u"https"_s, this, "keepUrl");
    m_shell->trigger(u"feedbackAction"_s);
    QDesktopServices::unsetUrlHandler(u"https"_s);
    QCOMPARE(m_opened.query(), u"tags=pursewell"_s);
    QVERIFY(m_opened.path().endsWith(u'/'));
}

void MainWindowMenusTest::quitClosesTheWindow()
{
    m_shell->window()->resize(1000, 700);
    QSettings().remove(u"mainwindow/geometry"_s);
    QTimer::singleShot(0, m_shell->window(), [this] { m_shell->trigger(u"quitAction"_s); });
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(!m_shell->window()->isVisible());
    QVERIFY(QSettings().contains(u"mainwindow/geometry"_s));
}

PURSEWELL_TEST_MAIN(MainWindowMenusTest)
#include "MainWindowMenusTest.moc"
