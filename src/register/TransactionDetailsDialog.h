#pragma once

#include "data/Transaction.h"

#include <QDialog>

class AppState;
class QFormLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

// Shows one transaction with its split lines and time stamps, and marks or deletes it. Both are
// written at once; the caller refreshes after it, and opens the form if an edit was asked for.
class TransactionDetailsDialog : public QDialog
{
    Q_OBJECT

public:
    TransactionDetailsDialog(AppState *appState, const Transaction &transaction,
                             QWidget *parent = nullptr); // the state is not owned

    bool isEditRequested() const { return m_editRequested; }
    bool isDeleted() const { return m_deleted; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void buildFields(QFormLayout *form);
    void buildSplitLines(QVBoxLayout *layout);
    void buildStamps(QVBoxLayout *layout);
    void buildButtons(QVBoxLayout *layout);
    QLabel *addField(QFormLayout *form, const QString &name, const QString &value,
                     const QString &objectName);
    QString categoryText() const;
    QString categoryName(const QString &categoryId) const; // empty if none or unknown
    void showStatus();
    void requestEdit();
    void toggleCleared();
    void deleteTransaction();

    AppState *m_appState;
    Transaction m_transaction;
    bool m_editRequested = false;
    bool m_deleted = false;
    QLabel *m_statusLabel = nullptr;
    QPushButton *m_markButton = nullptr; // null for a reconciled transaction
};
