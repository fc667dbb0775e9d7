#pragma once

#include "data/Account.h"

#include <QDialog>

class QComboBox;
class QDateEdit;
class QDoubleSpinBox;
class QLineEdit;

// Enters or changes an account. Nothing is stored: the caller takes account() when it is accepted.
class AccountFormDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AccountFormDialog(QWidget *parent = nullptr); // a new account
    explicit AccountFormDialog(const Account &account, QWidget *parent = nullptr); // changes one

    // The account as typed, pending; a new one has its id. The name may be empty.
    Account account() const;
    // The day of a new account's opening balance; no record keeps it.
    QDate startDate() const;

private:
    void build();
    void buildChoices();
    void showAccount();

    Account m_account;
    bool m_editMode;
    double m_shownBalance = 0.0;
    QLineEdit *m_name;
    QComboBox *m_type;
    QComboBox *m_currency;
    QDoubleSpinBox *m_balance;
    QDateEdit *m_startDate;
    QLineEdit *m_institution;
    QLineEdit *m_number;
};
