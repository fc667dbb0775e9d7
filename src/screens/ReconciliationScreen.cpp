#include "screens/ReconciliationScreen.h"

#include "core/Dates.h"
#include "core/Ids.h"
#include "core/Money.h"
#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/ReconciliationRepository.h"
#include "data/SqlTransaction.h"
#include "data/TransactionRepository.h"
#include "register/AmountBox.h"
#include "register/DateField.h"
#include "register/FieldLabel.h"
#include "register/SmartAmountField.h"
#include "register/TransactionFormDialog.h"
#include "screens/ReconciliationModel.h"
#include "screens/ReconciliationSummary.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/ThemeManager.h"

#include <QAccessible>
#include <QDebug>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTickWidth = 30;
constexpr int kMinTextWidth = 100;

// Banks send statements a month apart. Invalid when nothing tells when the last one was.
QDate nextStatementDate(const std::optional<Reconciliation> &last, QDate latestReconciled)
{
    if (last && (!latestReconciled.isValid() || last->statement_date >= latestReconciled))
        return last->statement_date.addMonths(1);
    return latestReconciled.addMonths(1);
}

// One list without doubles: a key that stands in two shortcuts is ambiguous and runs neither.
QList<QKeySequence> keysOf(QKeySequence::StandardKey standard, Qt::Key plain)
{
    QList<QKeySequence> keys = QKeySequence::keyBindings(standard);
    if (!keys.contains(QKeySequence(plain)))
        keys << QKeySequence(plain);
    return keys;
}

bool isTickKey(const QKeyEvent *event)
{
    if (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false; // Ctrl+C copies
    return event->key() == Qt::Key_Space || event->key() == Qt::Key_C || event->key() == Qt::Key_R;
}

} // namespace

ReconciliationScreen::ReconciliationScreen(AppState *appState, QWidget *parent)
    : QWidget(parent)
    , m_appState(appState)
    , m_model(new ReconciliationModel(this))
    , m_statementDate(new DateField)
    , m_statementBalance(new SmartAmountField)
    , m_summary(new ReconciliationSummary)
    , m_table(new QTableView)
{
    auto *splitter = new QSplitter(Qt::Horizontal);
    splitter->addWidget(buildStatementPanel());
    splitter->addWidget(buildTransactionPanel());
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(splitter);
    buildShortcuts();

    connect(m_statementBalance, &QDoubleSpinBox::valueChanged, this,
            &ReconciliationScreen::updateDifference);
    connect(m_model, &ReconciliationModel::ticksChanged, this,
            &ReconciliationScreen::updateDifference);
    connect(m_appState->themeManager(), &ThemeManager::themeChanged, this,
            &ReconciliationScreen::updateDifference);
    connect(m_appState->themeManager(), &ThemeManager::fontScaleChanged, this,
            &ReconciliationScreen::fitColumns);
    // The date is mostly right already, and the balance has to be typed.
    m_statementBalance->setFocus();
    m_statementBalance->selectAll();
}

QWidget *ReconciliationScreen::buildStatementPanel()
{
    auto *heading = new QLabel(tr("Reconcile Account"));
    applyFontRole(heading, FontRole::Subheading, QFont::Bold);
    m_statementDate->setObjectName(u"statementDate"_s);
    m_statementBalance->setObjectName(u"statementBalance"_s);
    m_statementBalance->setRange(-AmountBox::kLargest, AmountBox::kLargest);
    m_statementBalance->setPrefix(tr("$ ")); // alike for every account, as in the other forms
    m_summary->setObjectName(u"summary"_s);
    m_finishButton = addButton(u"finishButton"_s, tr("Finish Reconciliation"), QString(),
                               &ReconciliationScreen::finish);
    m_finishButton->setEnabled(false);
    QPushButton *cancel =
        addButton(u"cancelButton"_s, tr("Cancel"), QString(), &ReconciliationScreen::cancelled);

    auto *panel = new QWidget;
    auto *column = new QVBoxLayout(panel);
    column->setContentsMargins(16, 16, 16, 16);
    column->addWidget(heading);
    column->addSpacing(16);
    column->addWidget(makeFieldLabel(tr("Statement Date:"), m_statementDate));
    column->addWidget(m_statementDate);
    column->addSpacing(8);
    column->addWidget(makeFieldLabel(tr("Statement Balance:"), m_statementBalance));
    column->addWidget(m_statementBalance);
    column->addSpacing(16);
    column->addWidget(m_summary);
    column->addWidget(m_finishButton);
    column->addWidget(cancel);
    column->addStretch();
    return panel;
}

QWidget *ReconciliationScreen::buildTransactionPanel()
{
    buildTable();
    auto *buttons = new QHBoxLayout;
    const QString newKey = QKeySequence(QKeySequence::New).toString(QKeySequence::NativeText);
    buttons->addWidget(addButton(u"addButton"_s, tr("Add Transaction"),
                                 tr("Add a transaction (%1)").arg(newKey),
                                 &ReconciliationScreen::addTransaction));
    buttons->addWidget(addButton(u"editButton"_s, tr("Edit"), tr("Edit selected transaction (F2)"),
                                 &ReconciliationScreen::editSelectedTransaction));
    buttons->addWidget(addButton(u"deleteButton"_s, tr("Delete"),
                                 tr("Delete selected transaction (Del)"),
                                 &ReconciliationScreen::deleteSelectedTransaction));
    buttons->addStretch();

    auto *panel = new QWidget;
    auto *column = new QVBoxLayout(panel);
    column->addWidget(m_table);
    column->addLayout(buttons);
    return panel;
}

void ReconciliationScreen::buildTable()
{
    m_table->setObjectName(u"transactionTable"_s);
    m_table->setAccessibleName(tr("Transactions"));
    m_table->setModel(m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection); // the buttons take one row
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setTabKeyNavigation(false); // Tab leads on to the buttons
    QHeaderView *header = m_table->horizontalHeader();
    header->setMinimumSectionSize(kTickWidth); // a wide font would ask for more
    header->setSectionResizeMode(ReconciliationModel::Tick, QHeaderView::Fixed);
    header->resizeSection(ReconciliationModel::Tick, kTickWidth);
    header->setSectionResizeMode(ReconciliationModel::Payee, QHeaderView::Stretch);
    header->setSectionResizeMode(ReconciliationModel::Amount, QHeaderView::Fixed);
    fitColumns();
    m_table->installEventFilter(this);
    connect(m_table, &QTableView::doubleClicked, this, [this](const QModelIndex &index) {
        if (index.column() != ReconciliationModel::Tick)
            editSelectedTransaction();
    });
}

// By the font and not by the contents: looking those through would take long for long tables.
void ReconciliationScreen::fitColumns()
{
    const auto fit = [this](int column, const QString &widest) {
        const int width = m_table->fontMetrics().horizontalAdvance(widest + u"--"_s);
        m_table->horizontalHeader()->resizeSection(column, std::max(kMinTextWidth, width));
    };
    fit(ReconciliationModel::Date, u"00/00/0000"_s);
    fit(ReconciliationModel::Amount, u"-$99,999.99"_s);
}

QPushButton *ReconciliationScreen::addButton(const QString &name, const QString &text,
                                             const QString &toolTip,
                                             void (ReconciliationScreen::*slot)())
{
    auto *button = new QPushButton(text);
    button->setObjectName(name);
    button->setToolTip(toolTip);
    connect(button, &QPushButton::clicked, this, slot);
    return button;
}

void ReconciliationScreen::buildShortcuts()
{
    addShortcut(keysOf(QKeySequence::New, Qt::Key_Insert), &ReconciliationScreen::addTransaction);
    addShortcut({Qt::Key_F2}, &ReconciliationScreen::editSelectedTransaction);
    addShortcut(keysOf(QKeySequence::Delete, Qt::Key_Delete),
                &ReconciliationScreen::deleteSelectedTransaction);
}

void ReconciliationScreen::addShortcut(const QList<QKeySequence> &keys,
                                       void (ReconciliationScreen::*slot)())
{
    auto *shortcut = new QShortcut(this);
    shortcut->setKeys(keys);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, slot);
}

void ReconciliationScreen::startForAccount(const QString &accountId)
{
    m_accountId = accountId;
    const std::optional<Account> account = m_appState->accounts()->findById(accountId);
    if (!account)
        return;
    proposeStatementDate(readSettledPart(*account));
    m_model->setTransactions({}); // the ticks of an earlier run
    loadTransactions();
}

void ReconciliationScreen::reload()
{
    const std::optional<Account> account = m_appState->accounts()->findById(m_accountId);
    if (!account)
        return;
    readSettledPart(*account);
    loadTransactions();
    updateDifference();
}

QDate ReconciliationScreen::readSettledPart(const Account &account)
{
    m_previousBalance = account.starting_balance;
    QDate latest;
    for (const Transaction &transaction : m_appState->transactions()->listByAccount(account.id)) {
        if (!transaction.reconciled)
            continue;
        m_previousBalance = addMoney(m_previousBalance, transaction.amount);
        latest = std::max(latest, transaction.date); // an invalid date comes before all others
    }
    return latest;
}

void ReconciliationScreen::proposeStatementDate(QDate latestSettled)
{
    const QDate next = nextStatementDate(
        m_appState->reconciliations()->latestForAccount(m_accountId), latestSettled);
    if (next.isValid())
        m_statementDate->setDate(next);
}

void ReconciliationScreen::loadTransactions()
{
    const Transaction *selected = selectedTransaction();
    const QString selectedId = selected ? selected->id : QString();
    const int selectedRow = m_table->currentIndex().row();
    m_model->setTransactions(m_appState->transactions()->listUnreconciled(m_accountId));
    const int row = m_model->rowOf(selectedId);
    m_table->selectRow(row < 0 ? std::min(selectedRow, m_model->rowCount() - 1) : row);
}

const Transaction *ReconciliationScreen::selectedTransaction() const
{
    const QModelIndex current = m_table->currentIndex();
    return current.isValid() ? &m_model->transactions().at(current.row()) : nullptr;
}

void ReconciliationScreen::onTransactionToggled(int row)
{
    if (row < 0 || row >= m_model->rowCount())
        return;
    m_model->toggle(row);
    tellTick(row);
}

// A view does not tell screen readers of a change in the cell that has the focus.
void ReconciliationScreen::tellTick(int row)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleTableInterface *table =
        QAccessible::queryAccessibleInterface(m_table)->tableInterface();
    QAccessibleEvent event(table->cellAt(row, ReconciliationModel::Tick), QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

qint64 ReconciliationScreen::statementBalance() const
{
    return AmountBox::amountOf(m_statementBalance);
}

Currency ReconciliationScreen::currency() const
{
    const std::optional<Account> account = m_appState->accounts()->findById(m_accountId);
    return account ? account->currency : Currency::USD;
}

void ReconciliationScreen::updateDifference()
{
    const ClearedTotals totals = m_model->totals();
    const ReconciliationFigures figures{
        .previous = m_previousBalance,
        .deposits = totals.deposits,
        .withdrawals = totals.withdrawals,
        .statement = statementBalance(),
    };
    m_summary->showFigures(figures, currency());
    m_finishButton->setEnabled(figures.difference() == 0);
}

bool ReconciliationScreen::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_table || event->type() != QEvent::KeyPress
        || !isTickKey(static_cast<QKeyEvent *>(event)))
        return QWidget::eventFilter(watched, event);
    onTransactionToggled(m_table->currentIndex().row());
    return true; // also without a row: a letter would start a search in the table
}

void ReconciliationScreen::finish()
{
    storeRun();
    QMessageBox message(QMessageBox::Information, tr("Reconciliation Complete"),
                        tr("Account reconciled successfully."), QMessageBox::Ok, this);
    message.setObjectName(u"reconciliationCompleteBox"_s);
    message.exec();
    Q_EMIT reconciliationCompleted();
}

// One transaction: a stop in between must not leave rows marked that no statement accounts for,
// and thousands of rows are one write to the disk.
void ReconciliationScreen::storeRun()
{
    const QDateTime now = currentStamp();
    SqlTransaction run(m_appState->database());
    Reconciliation reconciliation;
    reconciliation.id = newId();
    reconciliation.account_id = m_accountId;
    reconciliation.statement_date = m_statementDate->date();
    reconciliation.statement_balance = statementBalance();
    reconciliation.reconciled_balance = markTicked(now);
    reconciliation.completed_at = now;
    reconciliation.created_at = now;
    reconciliation.updated_at = now;
    m_appState->reconciliations()->insert(reconciliation);
    if (!run.commit())
        qWarning() << "ReconciliationScreen::finish failed: the database refused the commit";
}

qint64 ReconciliationScreen::markTicked(const QDateTime &now)
{
    qint64 balance = m_previousBalance;
    for (int row = 0; row < m_model->rowCount(); ++row) {
        if (!m_model->isTicked(row))
            continue;
        Transaction transaction = m_model->transactions().at(row);
        transaction.cleared = true;
        transaction.reconciled = true;
        transaction.updated_at = now;
        transaction.sync_status = SyncStatus::Pending;
        m_appState->transactions()->update(transaction);
        balance = addMoney(balance, transaction.amount);
    }
    return balance;
}

void ReconciliationScreen::addTransaction()
{
    if (m_accountId.isEmpty())
        return;
    TransactionFormDialog dialog(m_appState, m_accountId, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    // The lines of a split are entered in the register; here only the transaction itself counts.
    m_appState->transactions()->insert(dialog.transaction());
    loadTransactions();
}

void ReconciliationScreen::editSelectedTransaction()
{
    const Transaction *selected = selectedTransaction();
    if (!selected)
        return;
    TransactionFormDialog dialog(m_appState, *selected, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_appState->transactions()->update(dialog.transaction());
    loadTransactions();
}

void ReconciliationScreen::deleteSelectedTransaction()
{
    const Transaction *selected = selectedTransaction();
    if (!selected)
        return;
    // A copy: the question runs an event loop in which the rows may be loaded anew.
    const Transaction transaction = *selected;
    if (!confirmDelete(transaction))
        return;
    // The other side of a transfer stays: it belongs to the statement of its own account.
    m_appState->transactions()->softDelete(transaction.id);
    loadTransactions();
}

bool ReconciliationScreen::confirmDelete(const Transaction &transaction)
{
    QMessageBox question(QMessageBox::Question, tr("Delete Transaction"),
                         tr("Delete the transaction for %1?").arg(transaction.payee),
                         QMessageBox::Yes | QMessageBox::No, this);
    question.setObjectName(u"deleteTransactionQuestion"_s);
    question.setTextFormat(Qt::PlainText); // a payee is a person's words
    question.setDefaultButton(QMessageBox::No);
    return question.exec() == QMessageBox::Yes;
}
