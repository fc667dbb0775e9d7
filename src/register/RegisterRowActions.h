#pragma once

#include <QObject>

class AppState;
class RegisterModel;
class QWidget;

// What is done to one whole row of the register, rather than typed into it. The writes are done at
// once; the rows are numbered as in the model.
class RegisterRowActions : public QObject
{
    Q_OBJECT

public:
    // Dialogs open over the parent. Nothing is owned; all must outlive the actions.
    RegisterRowActions(AppState *appState, const RegisterModel *model, QWidget *parent);

    bool addInDialog(const QString &accountId); // false when the dialog was given up

    // These do nothing on the insertion row.
    void editInDialog(int row);
    void showDetails(int row);
    void deleteRow(int row);
    void toggleCleared(int row);

Q_SIGNALS:
    void stored(); // what the model shows may have changed

private:
    bool isWithinReach(int row) const;
    void editTransaction(const QString &transactionId);

    AppState *m_appState;
    const RegisterModel *m_model;
    QWidget *m_parent;
};
