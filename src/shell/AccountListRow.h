#pragma once

#include <QWidget>

struct Account;

// One account in the sidebar: its icon, name and balance, and a line about what it is. Dark in both
// themes, like the sidebar.
class AccountListRow : public QWidget
{
    Q_OBJECT

public:
    AccountListRow(const Account &account, qint64 balance, QWidget *parent = nullptr);

    static QString describe(const Account &account); // the second line
};
