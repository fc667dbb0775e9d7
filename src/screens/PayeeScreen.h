#pragma once

#include <QWidget>

class AppState;
class QLineEdit;
class QListWidget;

// Cleans up the names of the payees, which are no records but the text that transactions carry.
// Recurring templates keep theirs.
class PayeeScreen : public QWidget
{
    Q_OBJECT

public:
    // Empty until refresh(). The state is not owned.
    explicit PayeeScreen(AppState *appState, QWidget *parent = nullptr);

    void refresh(); // every payee in use; nothing is selected afterwards

Q_SIGNALS:
    void payeesChanged(); // the repository does not hear of what is renamed here

public Q_SLOTS:
    void onRename();
    void onMerge();

private:
    void build();
    QString typedName() const;
    QStringList selectedPayees() const; // as they were selected
    // In one go; how many transactions it changed. A name that fails counts as none.
    int renamePayees(const QStringList &oldNames, const QString &newName);
    bool confirmMerge(qsizetype count, const QString &target);
    void tell(const QString &title, const QString &text);
    void finish(const QString &title, const QString &text);

    AppState *m_appState;
    QListWidget *m_payeeList;
    QLineEdit *m_renameEdit;
};
