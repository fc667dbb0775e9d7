#pragma once

#include "register/RegisterModel.h"
#include "register/RegisterScreen.h"
#include "register/RegisterTableView.h"

#include <QTemporaryDir>

#include <memory>

class AppState;

// A shown register over a database of its own, driven by key events that go the way of real ones:
// through the window, to whatever holds the focus or the open popup.
class ScreenFixture
{
public:
    ScreenFixture();
    ~ScreenFixture();

    AppState &state() { return *m_state; }
    RegisterScreen &screen() { return *m_screen; }
    RegisterTableView &view() { return *m_view; }
    RegisterModel &model() { return *m_model; }

    // Returns the account's id.
    QString addAccount(const QString &name, const QString &currency = QStringLiteral("USD"),
                       qint64 startingBalance = 0);
    // Stores a transaction as it would have been typed long ago. Later calls count as created
    // later.
    Transaction addTransaction(const QString &accountId, const QString &date, const QString &payee,
                               qint64 amount, const Transaction &rest = {});
    void openAccount(const QString &accountId); // and shows the window

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void type(const QString &text); // into whatever holds the focus, replacing its selection
    void typeAndEnter(const QString &text); // types, then Enter
    void click(int row, int column);
    void goTo(int row, int column); // moves the cursor without opening an editor

    QWidget *editor(); // open at the current cell, or null
    QString editorText();
    QString shown(int row, int column); // what the cell displays
    QStringList shownRow(int row);
    QString message(); // under the grid

    // The live rows of the table, one text a row, "|" between the columns asked for.
    QStringList stored(const QString &columns, const QString &where = QStringLiteral("1 = 1"));
    void run(const QString &statement);
    QString categoryId(const QString &name, const QString &parent = {});

private:
    QTemporaryDir m_directory;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<RegisterScreen> m_screen;
    RegisterTableView *m_view = nullptr;
    RegisterModel *m_model = nullptr;
    QDateTime m_nextStamp;
};
