#include "register/RegisterFixture.h"

#include "core/Ids.h"
#include "data/AccountRepository.h"
#include "data/Database.h"
#include "data/TransactionRepository.h"
#include "support/DialogAnswer.h"

#include <QLabel>
#include <QMetaProperty>
#include <QSettings>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QWindow>

using namespace Qt::StringLiterals;

void RegisterFixture::init()
{
    QSettings().clear();
    m_nextStamp = QDateTime(QDate(2024, 1, 1), QTime(12, 0), Qt::UTC);
    m_directory = std::make_unique<QTemporaryDir>();
    qputenv("PURSEWELL_DATA_DIR", m_directory->path().toUtf8());
    m_state = std::make_unique<AppState>();
    QVERIFY(m_state->initialize());
    m_screen = std::make_unique<RegisterScreen>(m_state.get());
    m_view = m_screen->findChild<RegisterTableView *>();
    m_model = m_screen->findChild<RegisterModel *>();
    m_checking = addAccount(u"Checking"_s);
}

void RegisterFixture::cleanup()
{
    m_screen.reset();
    m_state.reset();
}

QString RegisterFixture::addAccount(const QString &name, const Account &rest)
{
    Account account = rest;
    account.id = newId();
    account.name = name;
    account.created_at = account.updated_at = m_nextStamp;
    m_state->accounts()->insert(account);
    return account.id;
}

Transaction RegisterFixture::addTransaction(const QString &date, const QString &payee,
                                            qint64 amount, const Transaction &rest)
{
    m_nextStamp = m_nextStamp.addSecs(1);
    Transaction transaction = rest;
    transaction.id = newId();
    transaction.account_id = rest.account_id.isEmpty() ? m_checking : rest.account_id;
    transaction.date = QDate::fromString(date, Qt::ISODate);
    transaction.payee = payee;
    transaction.amount = amount;
    transaction.created_at = transaction.updated_at = m_nextStamp;
    m_state->transactions()->insert(transaction);
    return transaction;
}

void RegisterFixture::openAccount(const QString &accountId)
{
    m_screen->resize(1280, 600);
    m_screen->show();
    m_screen->setAccount(accountId.isEmpty() ? m_checking : accountId);
    m_screen->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_screen.get()));
    m_view->setFocus();
}

void RegisterFixture::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(m_screen->windowHandle(), key, modifiers);
    QCoreApplication::processEvents(); // the hop of Tab waits for the event loop
}

void RegisterFixture::type(const QString &text)
{
    for (const QChar character : text)
        QTest::keyClick(m_screen->windowHandle(), character.toLatin1());
}

void RegisterFixture::enter(const QString &text, Qt::Key key)
{
    type(text);
    if (key == Qt::Key_Return && QApplication::activePopupWidget())
        press(key); // the first only closes the completion list
    press(key);
}

void RegisterFixture::click(int row, int column)
{
    const QRect cell = m_view->visualRect(m_model->index(row, column));
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, cell.center());
}

void RegisterFixture::edit(int row, int column, const QString &text)
{
    goTo(row, column);
    press(Qt::Key_F2);
    type(text);
}

QString RegisterFixture::answering(QMessageBox::StandardButton button,
                                   const std::function<void()> &act)
{
    QString asked;
    const DialogAnswer answer(u"deleteTransactionQuestion"_s, [&](QDialog *question) {
        const auto *box = qobject_cast<QMessageBox *>(question);
        asked = box->text();
        box->button(button)->click();
    });
    act();
    return asked;
}

QString RegisterFixture::editorText()
{
    const QWidget *focused = QApplication::focusWidget();
    return focused ? focused->metaObject()->userProperty().read(focused).toString() : QString();
}

QString RegisterFixture::message()
{
    return m_screen->findChild<QLabel *>(u"messageLabel"_s)->text();
}

QString RegisterFixture::stored(const QString &columns, const QString &where)
{
    return run(u"SELECT %1 FROM transactions WHERE deleted_at IS NULL AND %2 "
               "ORDER BY date, created_at, amount"_s.arg(columns, where));
}

QString RegisterFixture::run(const QString &statement)
{
    QSqlQuery query(m_state->database()->connection());
    if (!query.exec(statement))
        qFatal("%s", qPrintable(query.lastError().text()));
    QStringList rows;
    while (query.next()) {
        QStringList values;
        for (int i = 0; i < query.record().count(); ++i)
            values << query.value(i).toString();
        rows << values.join(u'|');
    }
    return rows.join(u"; "_s);
}

QString RegisterFixture::categoryId(const QString &name, const QString &parent)
{
    return run(u"SELECT c.id FROM categories c LEFT JOIN categories p ON p.id = c.parent_id "
               "WHERE c.name = '%1' AND ifnull(p.name, '') = '%2'"_s.arg(name, parent));
}
