#pragma once

#include "data/RecurringTransaction.h"
#include "screens/RecurringModel.h"

#include <QTimer>
#include <QWidget>

class AppState;
class QLabel;
class QTableView;

// All recurring templates, to be confirmed, skipped, edited, deleted or entered. It shows no
// failure: a template that could not be posted stays in the list as it is.
class RecurringScreen : public QWidget
{
    Q_OBJECT

public:
    // Empty until refresh(). The state is not owned.
    explicit RecurringScreen(AppState *appState, QWidget *parent = nullptr,
                             RecurringModel::Clock today = QDate::currentDate);

    void refresh(); // keeps the current template current
    void scheduleRefresh(); // once for all calls of one turn of the event loop

Q_SIGNALS:
    void transactionsChanged(); // something may have been posted

public Q_SLOTS:
    void onContextMenu(QPoint pos); // in the table's viewport
    void showNewForm();
    void showEditForm(int row);
    void confirmSelected();
    void skipSelected();
    void deleteSelected();

private:
    void build();
    void setUpTable();
    void confirmAllDue();
    void showDueCount();
    const RecurringTransaction *selected() const; // null without a current row
    bool confirmDelete(const QString &payee);

    AppState *m_appState;
    RecurringModel::Clock m_today;
    RecurringModel *m_model;
    QLabel *m_dueLabel = nullptr;
    QTableView *m_table = nullptr;
    QTimer m_refreshTimer{};
};
