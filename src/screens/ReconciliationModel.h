#pragma once

#include "data/Transaction.h"

#include <QAbstractTableModel>

// What the ticked rows add up to, in minor units.
struct ClearedTotals
{
    qint64 deposits = 0;
    qint64 withdrawals = 0; // zero or below
};

// The unreconciled transactions of an account with a tick each. The ticks live here alone: nothing
// is written, and a tick has no influence on the record it stands beside.
class ReconciliationModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Tick, Date, Payee, Amount, Cleared, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    // A row that was there before keeps its tick; a new one is ticked if it is cleared.
    void setTransactions(QList<Transaction> transactions);
    const QList<Transaction> &transactions() const { return m_transactions; }
    int rowOf(const QString &transactionId) const; // -1 if it is not there

    bool isTicked(int row) const { return m_checked.at(row); }
    void toggle(int row);
    ClearedTotals totals() const;

Q_SIGNALS:
    void ticksChanged(); // by a tick, and whenever the rows were set

private:
    QString displayText(const Transaction &transaction, int column) const;
    QVariant spokenText(const QModelIndex &index) const;

    QList<Transaction> m_transactions; // oldest first
    QList<bool> m_checked; // one per transaction
};
