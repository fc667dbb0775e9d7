#pragma once

#include <QWidget>

class AccountRepository;
class QListWidget;
class QPushButton;

// The list of the deleted accounts; hidden without any.
class SettingsDeletedAccounts : public QWidget
{
    Q_OBJECT

public:
    // The repository is not owned. Empty until the first reload.
    explicit SettingsDeletedAccounts(AccountRepository *accounts, QWidget *parent = nullptr);

    void reload(); // keeps the selected account
    QString selectedId() const; // empty: none

Q_SIGNALS:
    void restoreRequested();

private:
    void updateRestoreButton();

    AccountRepository *m_accounts;
    QListWidget *m_list;
    QPushButton *m_restoreButton;
};
