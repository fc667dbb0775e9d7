#include "screens/ScreenFixture.h"

#include "core/Ids.h"
#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/Database.h"
#include "data/TransactionRepository.h"
#include "register/PayeeMemoEditor.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;

ScreenFixture::ScreenFixture()
    : m_nextStamp(QDate(2024, 1, 1), QTime(12, 0), Qt::UTC)
{
    QSettings().clear();
    qputenv("PURSEWELL_DATA_DIR", m_directory.path().toUtf8());
    m_state = std::make_unique<AppState>();
    if (!m_state->initialize())
        qFatal("the fixture's database cannot be opened");
    m_screen = std::make_unique<RegisterScreen>(m_state.get());
    m_view = m_screen->findChild<RegisterTableView *>();
    m_model = m_screen->findChild<RegisterModel *>();
}

ScreenFixture::~ScreenFixture() = default;

QString ScreenFixture::addAccount(const QString &name, const QString &currency,
                                  qint64 startingBalance)
{
    Account account;
    account.id = newId();
    account.name = name;
    account.currency = currencyFromString(currency);
    account.starting_balance = startingBalance;
    account.created_at = m_nextStamp;
    account.updated_at = m_nextStamp;
    m_state->accounts()->insert(account);
    return account.id;
}

Transaction ScreenFixture::addTransaction(const QString &accountId, const QString &date,
                                          const QString &payee, qint64 amount,
                                          const Transaction &rest)
{
    m_nextStamp = m_nextStamp.addSecs(1);
    Transaction transaction = rest;
    transaction.id = newId();
    transaction.account_id = accountId;
    transaction.date = QDate::fromString(date, Qt::ISODate);
    transaction.payee = payee;
    transaction.amount = amount;
    transaction.created_at = m_nextStamp;
    transaction.updated_at = m_nextStamp;
    m_state->transactions()->insert(transaction);
    return transaction;
}

void ScreenFixture::openAccount(const QString &accountId)
{
    m_screen->resize(1280, 600);
    m_screen->show();
    m_screen->setAccount(accountId);
    m_screen->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_screen.get()));
    m_view->setFocus();
}

void ScreenFixture::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(m_screen->windowHandle(), key, modifiers);
    QCoreApplication::processEvents(); // the hop of Tab waits for the event loop
}

void ScreenFixture::type(const QString &text)
{
    for (const QChar character : text)
        QTest::keyClick(m_screen->windowHandle(), character.toLatin1());
}

void ScreenFixture::typeAndEnter(const QString &text)
{
    type(text);
    if (QApplication::activePopupWidget())
        press(Qt::Key_Return); // the first only closes the completion list
    press(Qt::Key_Return);
}

void ScreenFixture::click(int row, int column)
{
    const QRect cell = m_view->visualRect(m_model->index(row, column));
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, cell.center());
}

void ScreenFixture::goTo(int row, int column)
{
    m_view->setCurrentIndex(m_model->index(row, column));
}

QWidget *ScreenFixture::editor()
{
    return m_view->activeEditor();
}

QString ScreenFixture::editorText()
{
    if (auto *line = qobject_cast<QLineEdit *>(editor()))
        return line->text();
    if (auto *combo = qobject_cast<QComboBox *>(editor()))
        return combo->currentText();
    const auto *focused = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    return focused && PayeeMemoEditor::around(QApplication::focusWidget()) ? focused->text()
                                                                           : QString();
}

QString ScreenFixture::shown(int row, int column)
{
    return m_model->index(row, column).data(Qt::DisplayRole).toString();
}

QStringList ScreenFixture::shownRow(int row)
{
    QStringList texts;
    for (int column = 0; column < m_model->columnCount(); ++column)
        texts << shown(row, column);
    return texts;
}

QString ScreenFixture::message()
{
    return m_screen->findChild<QLabel *>(u"messageLabel"_s)->text();
}

QStringList ScreenFixture::stored(const QString &columns, const QString &where)
{
    QSqlQuery query(m_state->database()->connection());
    const QString text = u"SELECT %1 FROM transactions WHERE deleted_at IS NULL AND %2 "
                         "ORDER BY date, created_at, amount"_s.arg(columns, where);
    if (!query.exec(text))
        qFatal("%s", qPrintable(query.lastError().text()));
    QStringList rows;
    while (query.next()) {
        QStringList values;
        for (int i = 0; i < query.record().count(); ++i)
            values << query.value(i).toString();
        rows << values.join(u'|');
    }
    return rows;
}

void ScreenFixture::run(const QString &statement)
{
    QSqlQuery query(m_state->database()->connection());
    if (!query.exec(statement))
        qFatal("%s", qPrintable(query.lastError().text()));
}

QString ScreenFixture::categoryId(const QString &name, const QString &parent)
{
    QSqlQuery query(m_state->database()->connection());
    query.prepare(u"SELECT c.id FROM categories c LEFT JOIN categories p ON p.id = c.parent_id "
                  "WHERE c.name = ? AND ifnull(p.name, '') = ?"_s);
    query.addBindValue(name);
    query.addBindValue(parent.isNull() ? u""_s : parent);
    return query.exec() && query.next() ? query.value(0).toString() : QString();
}
