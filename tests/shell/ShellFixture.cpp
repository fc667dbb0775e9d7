#include "shell/ShellFixture.h"

#include "core/Dates.h"
#include "core/Ids.h"
#include "data/AccountRepository.h"
#include "data/Database.h"
#include "data/TransactionRepository.h"
#include "register/RegisterScreen.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

ShellFixture::ShellFixture()
{
    QSettings().clear();
    qputenv("PURSEWELL_DATA_DIR", m_directory.path().toUtf8());
    m_state = std::make_unique<AppState>();
    if (!m_state->initialize())
        qFatal("no database in %s", qPrintable(m_directory.path()));
}

MainWindow *ShellFixture::openWindow()
{
    m_window.reset();
    m_window = std::make_unique<MainWindow>(m_state.get());
    showActive(m_window.get());
    return m_window.get();
}

void ShellFixture::addAccount(const QString &name, Account account)
{
    account.id = account.name = name;
    account.sort_order = m_accountCount++;
    account.created_at = account.updated_at = currentStamp();
    if (!m_state->accounts()->insert(account))
        qFatal("account not stored");
}

void ShellFixture::addTransaction(const QString &accountId, qint64 amount)
{
    Transaction row{.id = newId(), .account_id = accountId, .amount = amount};
    row.date = QDate(2026, 3, 14);
    row.payee = u"Grocer"_s;
    row.created_at = row.updated_at = currentStamp();
    if (!m_state->transactions()->insert(row))
        qFatal("transaction not stored");
}

QString ShellFixture::valueOf(const QString &sql) const
{
    QSqlQuery query(sql, m_state->database()->connection());
    return query.next() ? query.value(0).toString() : QString();
}

QLabel *ShellFixture::rowLabel(int row, const char *name) const
{
    const QWidget *widget = list()->itemWidget(list()->item(row));
    return widget ? widget->findChild<QLabel *>(QLatin1StringView(name)) : nullptr;
}

QStringList ShellFixture::listedNames() const
{
    QStringList names;
    for (int row = 0; row < list()->count(); ++row) {
        const QLabel *label = rowLabel(row, "nameLabel"); // a moved row has lost it
        names << (label ? label->text() : QString());
    }
    return names;
}

QString ShellFixture::opened() const
{
    const auto *registerScreen = find<RegisterScreen>(u"registerScreen"_s);
    const QWidget *page = find<QStackedWidget>(u"stack"_s)->currentWidget();
    const QString id = m_state->currentAccountId();
    if (page != registerScreen)
        return id + page->objectName();
    const bool agreed =
        registerScreen->accountId() == id && list()->accountIdAt(list()->currentRow()) == id;
    return agreed ? id : u"not agreed on "_s + id;
}
