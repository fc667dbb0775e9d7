#pragma once

#include "services/ReportRows.h"

#include <QCoreApplication>
#include <QList>

class ReportTable;

// Writes the rows of a report into its table, as the texts that a person reads.
class ReportFill
{
    Q_DECLARE_TR_FUNCTIONS(ReportFill)

public:
    static void show(ReportTable *table, const QList<CategorySpendingRow> &rows);
    static void show(ReportTable *table, const QList<PayeeSummaryRow> &rows);
    static void show(ReportTable *table, const QList<TaxReportRow> &rows);
    static void show(ReportTable *table, const QList<MonthlyRow> &rows); // with a total row
    static void show(ReportTable *table, const QList<YearOverYearRow> &rows);
    static void show(ReportTable *table, const QList<AccountSummaryRow> &rows);
    static void show(ReportTable *table, const QList<TransactionReportRow> &rows);
};
