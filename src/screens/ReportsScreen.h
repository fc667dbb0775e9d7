#pragma once

#include <QDate>
#include <QTimer>
#include <QWidget>

#include <functional>

class AppState;
class ComparisonBar;
class QComboBox;
class QDateEdit;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QTabWidget;
class ReportTable;

// The eight reports in tabs under one account and one period, and the tab in front as a CSV file.
// All tabs are filled together, so that turning them costs nothing. An export that fails says
// nothing.
class ReportsScreen : public QWidget
{
    Q_OBJECT

public:
    using Clock = std::function<QDate()>; // the local date

    // Empty until it is shown. The state is not owned.
    explicit ReportsScreen(AppState *appState, QWidget *parent = nullptr,
                           Clock today = &QDate::currentDate);

    // Accounts, dates and figures anew; nothing while hidden, since being shown does the same.
    void refresh();

public Q_SLOTS:
    void onDatePresetChanged(int index);
    void onFilterChanged();
    void runReport();
    void exportCurrentTab();

protected:
    void showEvent(QShowEvent *event) override;

private:
    enum Tab {
        CategorySpending,
        PayeeSummary,
        TaxReport,
        IncomeVsExpenses,
        CashFlow,
        YearOverYear,
        AccountSummary,
        Transactions,
    };

    void build();
    QHBoxLayout *buildFilters();
    QDateEdit *makeDateEdit(const QString &name, const QString &spokenName);
    void buildTabs();
    void addTab(const QString &title, ReportTable *table, QWidget *above = nullptr);
    void listen();
    void reloadAccounts();
    void applyPreset(int index);
    void onTabChanged();
    QString accountId() const; // empty: all accounts
    QString exportName() const; // of the tab in front

    AppState *m_appState;
    Clock m_today;
    QComboBox *m_accountCombo = nullptr;
    QComboBox *m_periodCombo = nullptr;
    QLabel *m_rangeLabel = nullptr;
    QDateEdit *m_fromDate = nullptr;
    QDateEdit *m_toDate = nullptr;
    QPushButton *m_exportButton = nullptr;
    ComparisonBar *m_comparison = nullptr;
    QTabWidget *m_tabs = nullptr;
    QList<ReportTable *> m_tables{}; // by tab
    QTimer m_accountsTimer{};
    bool m_updating = false; // several filters change at once: no report between
    bool m_stale = true; // transactions or categories changed since the last run
};
