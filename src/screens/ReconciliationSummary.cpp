#include "screens/ReconciliationSummary.h"

#include "core/Money.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/MoneyColors.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

QLabel *mutedLabel(const QString &text)
{
    auto *label = new QLabel(text);
    label->setStyleSheet(u"color: %1;"_s.arg(mutedColor().name()));
    // A label with a style of its own does not hear of the application's font.
    applyFontRole(label, FontRole::Body);
    return label;
}

} // namespace

qint64 ReconciliationFigures::cleared() const
{
    return addMoney(addMoney(previous, deposits), withdrawals);
}

qint64 ReconciliationFigures::difference() const
{
    return addMoney(statement, negateMoney(cleared()));
}

ReconciliationSummary::ReconciliationSummary(QWidget *parent)
    : QWidget(parent)
    , m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(12);
    m_grid->setVerticalSpacing(4);
    m_grid->setColumnStretch(0, 1);
    auto *difference = new QLabel(tr("Difference"));
    applyFontRole(difference, FontRole::Body, QFont::Bold);

    m_previous = addFigure(0, mutedLabel(tr("Previous Balance")), u"previousBalanceValue"_s);
    m_deposits = addFigure(1, new QLabel(tr("Cleared Deposits")), u"clearedDepositsValue"_s);
    m_withdrawals =
        addFigure(2, new QLabel(tr("Cleared Withdrawals")), u"clearedWithdrawalsValue"_s);
    addLine(3);
    m_cleared = addFigure(4, new QLabel(tr("Cleared Balance")), u"clearedBalanceValue"_s);
    m_statement = addFigure(5, mutedLabel(tr("Statement Balance")), u"statementBalanceValue"_s);
    addLine(6);
    m_difference = addFigure(7, difference, u"differenceValue"_s);
    applyFontRole(m_difference, FontRole::Monospace, QFont::Bold);
}

QLabel *ReconciliationSummary::addFigure(int row, QLabel *name, const QString &objectName)
{
    auto *value = new QLabel;
    value->setObjectName(objectName);
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    applyFontRole(value, FontRole::Monospace);
    m_grid->addWidget(name, row, 0);
    m_grid->addWidget(value, row, 1);
    return value;
}

void ReconciliationSummary::addLine(int row)
{
    auto *line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    m_grid->addWidget(line, row, 0, 1, 2);
}

void ReconciliationSummary::showFigures(const ReconciliationFigures &figures, Currency currency)
{
    m_previous->setText(formatMoney(figures.previous, currency));
    m_deposits->setText(formatMoney(figures.deposits, currency));
    m_withdrawals->setText(formatMoney(figures.withdrawals, currency));
    m_cleared->setText(formatMoney(figures.cleared(), currency));
    m_statement->setText(formatMoney(figures.statement, currency));
    m_difference->setText(formatMoney(figures.difference(), currency));
    const QColor color = figures.difference() == 0 ? positiveColor() : negativeColor();
    m_difference->setStyleSheet(u"color: %1;"_s.arg(color.name()));
}
