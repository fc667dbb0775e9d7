#pragma once

#include "core/state/AppState.h"
#include "data/Account.h"
#include "shell/AccountList.h"
#include "shell/MainWindow.h"
#include "support/DialogAnswer.h"

// The state and the window on a database of their own. One at a time: the program has one
// connection. The last member goes first: the window, before the repositories it listens to.
class ShellFixture
{
public:
    ShellFixture();

    AppState *state() const { return m_state.get(); }
    MainWindow *window() const { return m_window.get(); }
    MainWindow *openWindow(); // anew, when one is open

    // Sorted as added. The id is the name, so that failures can be read.
    void addAccount(const QString &name, Account account = {});
    void addTransaction(const QString &accountId, qint64 amount);
    QString valueOf(const QString &sql) const; // the first column of the first row

    AccountList *list() const { return find<AccountList>(QStringLiteral("accountList")); }
    QLabel *rowLabel(int row, const char *name) const;
    QStringList listedNames() const;
    QPoint centerOf(int row) const { return list()->visualItemRect(list()->item(row)).center(); }
    QString labelText(const QString &name) const { return find<QLabel>(name)->text(); }
    QString opened() const; // the account that all parts agree on, or the name of another page
    void trigger(const QString &actionName) const { find<QAction>(actionName)->trigger(); }

    template <typename Type> Type *find(const QString &name) const
    {
        return m_window->findChild<Type *>(name);
    }

private:
    QTemporaryDir m_directory;
    int m_accountCount = 0;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<MainWindow> m_window;
};
