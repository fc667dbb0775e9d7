#include "screens/ReconciliationHistoryScreen.h"

#include "core/Money.h"
#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/ReconciliationRepository.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/MoneyColors.h"
#include "shell/theme/ThemeManager.h"

#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QTableWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {
enum Column { StatementDate, StatementBalance, ReconciledBalance, Completed, ColumnCount };
}

ReconciliationHistoryScreen::ReconciliationHistoryScreen(AppState *appState, QWidget *parent)
    : QWidget(parent)
    , m_appState(appState)
    , m_titleLabel(new QLabel(tr("Reconciliation History")))
    , m_table(new QTableWidget(0, ColumnCount))
    , m_emptyLabel(new QLabel(tr("No reconciliations yet. Reconcile your account from the register "
                                 "to see the history here.")))
{
    m_titleLabel->setObjectName(u"titleLabel"_s);
    m_titleLabel->setTextFormat(Qt::PlainText); // it holds the account's name
    m_titleLabel->setWordWrap(true);
    applyFontRole(m_titleLabel, FontRole::Title);
    auto *subtitle = new QLabel(tr("Past reconciliations for this account."));
    subtitle->setStyleSheet(u"color: %1;"_s.arg(mutedColor().name()));
    // A label with a style of its own does not hear of the application's font.
    applyFontRole(subtitle, FontRole::Body);
    buildTable();
    buildEmptyLabel();

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_titleLabel);
    layout->addWidget(subtitle);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_emptyLabel, 1);
    connect(m_appState->themeManager(), &ThemeManager::themeChanged, this,
            &ReconciliationHistoryScreen::refresh);
}

void ReconciliationHistoryScreen::buildTable()
{
    m_table->setObjectName(u"historyTable"_s);
    m_table->setHorizontalHeaderLabels(
        {tr("Statement Date"), tr("Statement Balance"), tr("Reconciled Balance"), tr("Completed")});
    QHeaderView *header = m_table->horizontalHeader();
    header->setSectionResizeMode(StatementDate, QHeaderView::ResizeToContents);
    header->setSectionResizeMode(StatementBalance, QHeaderView::Stretch);
    header->setSectionResizeMode(ReconciledBalance, QHeaderView::Stretch);
    header->setSectionResizeMode(Completed, QHeaderView::ResizeToContents);
    header->setTextElideMode(Qt::ElideRight); // a large font cuts the words at both ends otherwise
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setAlternatingRowColors(true);
    m_table->setTabKeyNavigation(false);
}

void ReconciliationHistoryScreen::buildEmptyLabel()
{
    m_emptyLabel->setObjectName(u"emptyLabel"_s);
    m_emptyLabel->setAlignment(Qt::AlignCenter);
    m_emptyLabel->setWordWrap(true);
    m_emptyLabel->setStyleSheet(u"color: %1; padding: 32px;"_s.arg(mutedColor().name()));
    applyFontRole(m_emptyLabel, FontRole::Body);
    m_emptyLabel->hide();
}

void ReconciliationHistoryScreen::setAccount(const QString &accountId)
{
    m_accountId = accountId;
    refresh();
}

void ReconciliationHistoryScreen::refresh()
{
    if (m_accountId.isEmpty())
        return;
    const std::optional<Account> account = m_appState->accounts()->findById(m_accountId);
    m_titleLabel->setText(account ? tr("Reconciliation History — %1").arg(account->name)
                                  : tr("Reconciliation History"));
    m_table->setAccessibleName(m_titleLabel->text());
    const Currency currency = account ? account->currency : Currency::USD;
    const QList<Reconciliation> history = m_appState->reconciliations()->listByAccount(m_accountId);
    m_table->setRowCount(static_cast<int>(history.size()));
    for (int row = 0; row < m_table->rowCount(); ++row)
        showRow(row, history.at(row), currency);
    m_table->setVisible(!history.isEmpty());
    m_emptyLabel->setVisible(history.isEmpty());
}

void ReconciliationHistoryScreen::showRow(int row, const Reconciliation &reconciliation,
                                          Currency currency)
{
    setText(row, StatementDate,
            QLocale().toString(reconciliation.statement_date, u"MMM d, yyyy"_s));
    setAmount(row, StatementBalance, reconciliation.statement_balance, currency);
    setAmount(row, ReconciledBalance, reconciliation.reconciled_balance, currency);
    setText(
        row, Completed,
        QLocale().toString(reconciliation.completed_at.toLocalTime(), u"MMM d, yyyy h:mm ap"_s));
}

void ReconciliationHistoryScreen::setText(int row, int column, const QString &text)
{
    m_table->setItem(row, column, new QTableWidgetItem(text));
}

void ReconciliationHistoryScreen::setAmount(int row, int column, qint64 amount, Currency currency)
{
    setText(row, column, formatMoney(amount, currency));
    if (amount < 0)
        m_table->item(row, column)->setForeground(negativeColor());
}
