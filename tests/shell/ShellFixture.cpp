#include "shell/ShellFixture.h"

#include "core/Dates.h"
#include "core/Ids.h"
#include "data/AccountRepository.h"
#include "data/Database.h"
#include "data/TransactionRepository.h"

using namespace Qt::StringLiterals;

ShellFixture::ShellFixture()
{
    qputenv("PURSEWELL_DATA_DIR", m_directory.path().toUtf8());
    m_state = std::make_unique<AppState>();
    if (!m_state->initialize())
        qFatal("no database in %s", qPrintable(m_directory.path()));
}

ShellFixture::~ShellFixture()
{
    m_window.reset(); // before the repositories it listens to
}

MainWindow *ShellFixture::openWindow()
{
    m_window = std::make_unique<MainWindow>(m_state.get());
    m_window->show();
    if (!QTest::qWaitForWindowExposed(m_window.get()))
        qFatal("the window does not show");
    m_window->activateWindow();
    if (!QTest::qWaitForWindowActive(m_window.get()))
        qFatal("the window does not become active");
    return m_window.get();
}

void ShellFixture::closeWindow()
{
    m_window->close();
    m_window.reset();
}

Account ShellFixture::addAccount(const QString &name, Account account)
{
    account.id = name;
    account.name = name;
    account.sort_order = m_accountCount++;
    account.created_at = currentStamp();
    account.updated_at = account.created_at;
    if (!m_state->accounts()->insert(account))
        qFatal("account not stored");
    return account;
}

void ShellFixture::addTransaction(const QString &accountId, qint64 amount)
{
    Transaction transaction;
    transaction.id = newId();
    transaction.account_id = accountId;
    transaction.date = QDate(2026, 3, 14);
    transaction.payee = u"Grocer"_s;
    transaction.amount = amount;
    transaction.created_at = currentStamp();
    transaction.updated_at = transaction.created_at;
    if (!m_state->transactions()->insert(transaction))
        qFatal("transaction not stored");
}

QVariant ShellFixture::valueOf(const QString &sql) const
{
    QSqlQuery query(m_state->database()->connection());
    if (!query.exec(sql) || !query.next())
        return {};
    return query.value(0);
}

QLabel *ShellFixture::rowLabel(int row, const QString &name) const
{
    const QWidget *widget = list()->itemWidget(list()->item(row));
    return widget ? widget->findChild<QLabel *>(name) : nullptr;
}

QStringList ShellFixture::listedNames() const
{
    QStringList names;
    for (int row = 0; row < list()->count(); ++row) {
        const QLabel *label = rowLabel(row, u"nameLabel"_s);
        names << (label ? label->text() : u"(no widget)"_s);
    }
    return names;
}

QString ShellFixture::currentPage() const
{
    return find<QStackedWidget>(u"stack"_s)->currentWidget()->objectName();
}
