#pragma once

#include <QObject>

class AppState;
class QTableView;
class RegisterModel;

// Keeps widths, hidden columns and sort of the register's columns in the settings, and offers the
// header's menu for them.
class RegisterColumnLayout : public QObject
{
    Q_OBJECT

public:
    // All are not owned. Applies the stored layout.
    RegisterColumnLayout(AppState *appState, QTableView *view, RegisterModel *model,
                         QObject *parent = nullptr);

    void apply();
    void reset(); // forgets everything stored, and applies the defaults
    void setTwoLineMode(bool enabled); // hides the memo column, or gives it back its stored state
    void showHeaderMenu(QPoint position); // in the header's coordinates

private:
    void applyWidths();
    void setColumnShown(int column, bool shown);
    void storeWidth(int column, int width);

    AppState *m_appState;
    QTableView *m_view;
    RegisterModel *m_model;
    bool m_restoring = false; // while widths and hidden columns are being applied
    bool m_twoLineMode = false;
};
