#include "screens/ReportFill.h"

#include "core/Money.h"
#include "data/AccountType.h"
#include "register/AccountTypeName.h"
#include "screens/ReportTable.h"
#include "screens/ScreenDates.h"

void ReportFill::show(ReportTable *table, const QList<CategorySpendingRow> &rows)
{
    table->startRows(rows.size());
    for (const CategorySpendingRow &row : rows)
        table->addRow({row.categoryName, formatMoney(row.total)});
    table->finishRows();
}

void ReportFill::show(ReportTable *table, const QList<PayeeSummaryRow> &rows)
{
    table->startRows(rows.size());
    for (const PayeeSummaryRow &row : rows)
        table->addRow({row.payee, formatMoney(row.total), QString::number(row.count)});
    table->finishRows();
}

void ReportFill::show(ReportTable *table, const QList<TaxReportRow> &rows)
{
    table->startRows(rows.size());
    for (const TaxReportRow &row : rows)
        table->addRow({row.categoryName, row.taxCategory, formatMoney(row.total)});
    table->finishRows();
}

void ReportFill::show(ReportTable *table, const QList<MonthlyRow> &rows)
{
    table->startRows(rows.size());
    MonthlyRow total;
    for (const MonthlyRow &row : rows) {
        table->addRow({row.month, formatMoney(row.in), formatMoney(row.out), formatMoney(row.net)});
        total.in = addMoney(total.in, row.in);
        total.out = addMoney(total.out, row.out);
        total.net = addMoney(total.net, row.net);
    }
    if (!rows.isEmpty())
        table->addTotalRow(
            {tr("Total"), formatMoney(total.in), formatMoney(total.out), formatMoney(total.net)});
    table->finishRows();
}

void ReportFill::show(ReportTable *table, const QList<YearOverYearRow> &rows)
{
    table->startRows(rows.size());
    for (const YearOverYearRow &row : rows)
        table->addRow({row.categoryName, formatMoney(row.period1), formatMoney(row.period2),
                       formatMoney(row.difference)});
    table->finishRows();
}

void ReportFill::show(ReportTable *table, const QList<AccountSummaryRow> &rows)
{
    table->startRows(rows.size());
    for (const AccountSummaryRow &row : rows)
        table->addRow({row.accountName, AccountTypeName::of(accountTypeFromString(row.accountType)),
                       formatMoney(row.cleared), formatMoney(row.uncleared),
                       formatMoney(row.total)});
    table->finishRows();
}

void ReportFill::show(ReportTable *table, const QList<TransactionReportRow> &rows)
{
    table->startRows(rows.size());
    QDate day;
    QString dayText; // the rows come by date, and a locale takes its time over the text of one
    for (const TransactionReportRow &row : rows) {
        if (row.date != day) {
            day = row.date;
            dayText = shortDate(day);
        }
        table->addRow({dayText, row.accountName, row.payee, row.categoryName, row.memo,
                       formatMoney(row.amount)});
    }
    table->finishRows();
}
