#pragma once

#include <QListWidget>

struct Account;

QString accountListStyle(); // in the font size of the moment

// The sidebar's list of accounts: a row widget each, the account's id under Qt::UserRole.
class AccountList : public QListWidget
{
    Q_OBJECT

public:
    explicit AccountList(QWidget *parent = nullptr);

    void addAccount(const Account &account, qint64 balance);
    QString accountIdAt(int row) const;
    int rowOf(const QString &accountId) const; // -1 when it is not listed

    // Row widgets keep the width they were made with; this gives them the list's.
    void fitRows();

    bool isDragging() const { return m_dragging; } // refilling it now would pull the row away

Q_SIGNALS:
    void dragFinished(); // also of a drag that moved nothing

protected:
    void startDrag(Qt::DropActions actions) override;

private:
    bool m_dragging = false;
};
