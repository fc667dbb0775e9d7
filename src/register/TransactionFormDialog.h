#pragma once

#include "data/SplitLine.h"
#include "data/Transaction.h"

#include <QDialog>
#include <QList>

class AppState;
class DateField;
class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;
class SmartAmountField;

// Enters or changes a transaction, and is the only way to split one. Nothing is stored and nothing
// checked: the caller takes transaction() and splitLines() when it is accepted.
class TransactionFormDialog : public QDialog
{
    Q_OBJECT

public:
    // A new transaction of the account, or a change to one. The state is not owned.
    TransactionFormDialog(AppState *appState, const QString &accountId, QWidget *parent = nullptr);
    TransactionFormDialog(AppState *appState, const Transaction &transaction,
                          QWidget *parent = nullptr);

    // The transaction as typed, pending. A new one gets another id at each call, so call it once.
    // The next new transaction starts on its date.
    Transaction transaction() const;
    // Lines that were not opened in the split editor keep their ids; those of a new transaction
    // have no transaction_id.
    const QList<SplitLine> &splitLines() const { return m_splitLines; }

public Q_SLOTS:
    void onPayeeSelected(const QString &payee); // fills in what the payee got last
    void onOpenSplitEditor();
    void onClearSplit();

private:
    void build();
    QHBoxLayout *buildType();
    void buildPayee();
    void buildAmount();
    QHBoxLayout *buildCategory();
    QLineEdit *makeOptionalEdit(const QString &objectName);

    void showTransaction();
    void showAmount(qint64 amount);
    void updateSplitDisplay();
    void negateLines();
    qint64 typedAmount() const; // negative for a payment
    QString typedCategoryId() const;

    AppState *m_appState;
    QString m_accountId;
    Transaction m_transaction{};
    bool m_editMode;
    QList<SplitLine> m_splitLines{};
    double m_shownAmount = -1.0; // what the box made of the stored amount; -1: there is none

    QRadioButton *m_payment = nullptr;
    QRadioButton *m_deposit = nullptr;
    DateField *m_date = nullptr;
    QLineEdit *m_payee = nullptr;
    SmartAmountField *m_amount = nullptr;
    QComboBox *m_category = nullptr;
    QPushButton *m_splitButton = nullptr;
    QPushButton *m_clearSplitButton = nullptr;
    QLineEdit *m_memo = nullptr;
    QLineEdit *m_checkNumber = nullptr;
    QCheckBox *m_cleared = nullptr;
};
