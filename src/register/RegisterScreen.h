#pragma once

#include "register/RegisterNavigator.h"

#include <QWidget>

class AppState;
class QModelIndex;
class RegisterColumnLayout;
class RegisterDelegate;
class RegisterFooter;
class RegisterHeader;
class RegisterModel;
class RegisterRowActions;
class RegisterTableView;

// The register of one account: a grid in which a transaction is typed from left to right and saved
// without the mouse. A row is written by commitCurrentRow() alone; moving on to another row drops
// what was typed.
class RegisterScreen : public QWidget
{
    Q_OBJECT

public:
    explicit RegisterScreen(AppState *appState, QWidget *parent = nullptr); // not owned

    void setAccount(const QString &accountId); // and puts the cursor where the next row is typed
    const QString &accountId() const { return m_accountId; }
    // Reads everything anew, and drops what was typed; does nothing while an editor is open.
    void refresh();
    void goToInsertionRow();
    void showMessage(const QString &text, int milliseconds = 3000);

    void moveToNextField();
    void moveToPreviousField();
    bool focusNextPrevChild(bool next) override;

Q_SIGNALS:
    void newTransactionRequested(const QString &accountId);
    void editTransactionRequested(const QString &transactionId);
    void reconcileRequested(const QString &accountId); // by the Reconcile button
    void errorMessage(const QString &text); // for the window's status bar

public Q_SLOTS:
    void onContextMenu(QPoint pos);
    void commitCurrentRow();
    void deleteCurrentRow();
    void copyFromAbove();
    void advanceToNextField();
    void advanceToPreviousField();
    void startEditingRow(int row);
    void newTransactionDialog();
    void showHeaderContextMenu(QPoint pos);
    void resetColumnLayout();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static QString keyHints();
    void setUpView();
    void connectView();

    bool handleKey(const QKeyEvent &key);
    void onEnter();
    void onClicked(const QModelIndex &index);
    void onDoubleClicked(const QModelIndex &index);
    void insertNew();
    void memorizeCurrentRow();

    bool splitLinesOwn(const QModelIndex &index) const;
    void refreshAfterWrite();
    void applyTwoLineMode();

    AppState *m_appState;
    QString m_accountId;
    RegisterModel *m_model;
    RegisterTableView *m_view;
    RegisterDelegate *m_delegate;
    RegisterColumnLayout *m_columnLayout = nullptr;
    RegisterNavigator m_navigator;
    RegisterRowActions *m_rowActions;
    RegisterHeader *m_header;
    RegisterFooter *m_footer;
};
