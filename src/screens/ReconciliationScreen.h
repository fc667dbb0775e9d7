#pragma once

#include "core/Currency.h"

#include <QKeySequence>
#include <QList>
#include <QWidget>

class AppState;
class DateField;
class QPushButton;
class QTableView;
class ReconciliationModel;
class ReconciliationSummary;
class SmartAmountField;
struct Account;
struct Transaction;

// Compares an account with a bank statement: the person ticks what the statement shows until the
// figures meet. Until finish() nothing but the additions, edits and deletions made here is written.
class ReconciliationScreen : public QWidget
{
    Q_OBJECT

public:
    explicit ReconciliationScreen(AppState *appState, QWidget *parent = nullptr); // not owned

    // Begins a run from what is stored; does nothing for an unknown account.
    void startForAccount(const QString &accountId);

    // What is stored anew, after it changed from elsewhere; the ticks and the figures typed stay.
    void reload();

Q_SIGNALS:
    void reconciliationCompleted(); // after the person has seen the message
    void cancelled();

public Q_SLOTS:
    void onTransactionToggled(int row);
    void updateDifference();
    void finish(); // the button alone sees to it that the difference is zero
    void addTransaction();
    void editSelectedTransaction();
    void deleteSelectedTransaction();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *buildStatementPanel();
    QWidget *buildTransactionPanel();
    void buildTable();
    void buildShortcuts();
    QPushButton *addButton(const QString &name, const QString &text, const QString &toolTip,
                           void (ReconciliationScreen::*slot)());
    void addShortcut(const QList<QKeySequence> &keys, void (ReconciliationScreen::*slot)());
    void fitColumns();
    void tellTick(int row);

    QDate readSettledPart(const Account &account); // the latest day in it
    void proposeStatementDate(QDate latestSettled);
    void loadTransactions();
    const Transaction *selectedTransaction() const; // null if there is none
    bool confirmDelete(const Transaction &transaction);
    qint64 statementBalance() const; // hundredths
    Currency currency() const;
    qint64 markTicked(const QDateTime &now); // returns the balance that the statement settles
    void storeRun();

    AppState *m_appState;
    QString m_accountId;
    qint64 m_previousBalance = 0; // minor units, of what is settled already
    ReconciliationModel *m_model;
    DateField *m_statementDate;
    SmartAmountField *m_statementBalance;
    ReconciliationSummary *m_summary;
    QPushButton *m_finishButton;
    QTableView *m_table;
};
