#pragma once

#include "core/Currency.h"

#include <QWidget>

class AppState;
class QLabel;
class QTableWidget;
struct Reconciliation;

// Lists the finished reconciliations of one account, the latest statement first. They cannot be
// changed here.
class ReconciliationHistoryScreen : public QWidget
{
    Q_OBJECT

public:
    explicit ReconciliationHistoryScreen(AppState *appState, QWidget *parent = nullptr);

    void setAccount(const QString &accountId);
    void refresh();

private:
    void buildTable();
    void buildEmptyLabel();
    void showRow(int row, const Reconciliation &reconciliation, Currency currency);
    void setText(int row, int column, const QString &text);
    void setAmount(int row, int column, qint64 amount, Currency currency);

    AppState *m_appState; // not owned
    QString m_accountId;
    QLabel *m_titleLabel;
    QTableWidget *m_table;
    QLabel *m_emptyLabel;
};
