#pragma once

#include "core/Currency.h"

#include <QWidget>

class QGridLayout;
class QLabel;

// One state of a reconciliation, in minor units.
struct ReconciliationFigures
{
    qint64 previous = 0; // what earlier statements settled
    qint64 deposits = 0; // ticked
    qint64 withdrawals = 0; // ticked, zero or below
    qint64 statement = 0; // what the bank says

    qint64 cleared() const; // where the ticks bring the balance
    qint64 difference() const; // what the bank says beyond that; zero when done
};

// The column of figures beside the table.
class ReconciliationSummary : public QWidget
{
    Q_OBJECT

public:
    explicit ReconciliationSummary(QWidget *parent = nullptr);

    void showFigures(const ReconciliationFigures &figures, Currency currency);

private:
    QLabel *addFigure(int row, QLabel *name, const QString &objectName);
    void addLine(int row);

    QGridLayout *m_grid;
    QLabel *m_previous;
    QLabel *m_deposits;
    QLabel *m_withdrawals;
    QLabel *m_cleared;
    QLabel *m_statement;
    QLabel *m_difference;
};
