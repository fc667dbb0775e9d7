#pragma once

#include "core/state/AppState.h"
#include "data/Account.h"
#include "shell/AccountList.h"
#include "shell/MainWindow.h"
#include "support/DialogAnswer.h"

#include <QAction>
#include <QLabel>
#include <QTemporaryDir>

#include <memory>

// The state and the window on a database of their own. One at a time: the program has one
// connection.
class ShellFixture
{
public:
    ShellFixture();
    ~ShellFixture();

    AppState *state() const { return m_state.get(); }
    MainWindow *window() const { return m_window.get(); }
    MainWindow *openWindow();
    void closeWindow();

    // Sorted as added. The id is the name, so that failures can be read.
    Account addAccount(const QString &name, Account account = {});
    void addTransaction(const QString &accountId, qint64 amount);
    QVariant valueOf(const QString &sql) const; // the first column of the first row

    AccountList *list() const { return find<AccountList>(QStringLiteral("accountList")); }
    QLabel *rowLabel(int row, const QString &name) const;
    QStringList listedNames() const;
    QString totalText() const { return find<QLabel>(QStringLiteral("totalLabel"))->text(); }
    QString currentPage() const;
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
