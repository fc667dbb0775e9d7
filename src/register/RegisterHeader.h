#pragma once

#include <QWidget>

class BalanceLabel;
class ElidedLabel;
class QLabel;
class QPushButton;
struct Account;

// The register's head: the account's name, its balance and its bank.
class RegisterHeader : public QWidget
{
    Q_OBJECT

public:
    explicit RegisterHeader(QWidget *parent = nullptr);

    void showAccount(const Account &account, qint64 balance); // minor units

Q_SIGNALS:
    void reconcileClicked();

private:
    ElidedLabel *m_titleLabel;
    BalanceLabel *m_balanceLabel;
    QPushButton *m_reconcileButton;
    QLabel *m_subtitleLabel;
};
