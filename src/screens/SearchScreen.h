#pragma once

#include <QTimer>
#include <QWidget>

class AppState;
class QCheckBox;
class QComboBox;
class QDateEdit;
class QHBoxLayout;
class QLineEdit;
class QModelIndex;
class QTableView;
class RegisterModel;

// Finds transactions of all accounts, by full-text search and by filters, and lists them as the
// register does. Words that the search cannot read find nothing, without a message.
class SearchScreen : public QWidget
{
    Q_OBJECT

public:
    // Empty until reloadFilters(). The state is not owned.
    explicit SearchScreen(AppState *appState, QWidget *parent = nullptr);

    void reloadFilters(); // keeps what is chosen, if it is still there, and searches anew
    void focusSearchField(); // and selects what stands in it

public Q_SLOTS:
    void performSearch();

Q_SIGNALS:
    void editTransactionRequested(const QString &transactionId); // a stored one

private:
    void build();
    QHBoxLayout *buildFilters();
    QDateEdit *makeDateEdit(const QString &name, QDate date);
    void setUpTable();
    void listen();
    void onDateRangeToggled(bool checked);
    void onDoubleClicked(const QModelIndex &index);

    AppState *m_appState;
    RegisterModel *m_model;
    QLineEdit *m_searchField = nullptr;
    QComboBox *m_accountCombo = nullptr;
    QComboBox *m_categoryCombo = nullptr;
    QCheckBox *m_dateRangeCheck = nullptr;
    QDateEdit *m_dateFrom = nullptr;
    QDateEdit *m_dateTo = nullptr;
    QCheckBox *m_clearedCheck = nullptr;
    QTableView *m_resultsView = nullptr;
    QTimer m_searchTimer{};
};
