#pragma once

#include "data/RecurringTransaction.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QList>

#include <functional>

class AccountRepository;

// The recurring templates as a table, one row each, in the order in which they were set.
class RecurringModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using Clock = std::function<QDate()>;
    enum Column {
        kAccount,
        kPayee,
        kAmount,
        kFrequency,
        kNextDue,
        kAuto,
        kStatus,
        kColumnCount,
    };

    // The repository, for the names of the accounts, is not owned.
    explicit RecurringModel(const AccountRepository *accounts, QObject *parent = nullptr,
                            Clock today = QDate::currentDate);

    void setTemplates(QList<RecurringTransaction> templates);
    const RecurringTransaction *templateAt(int row) const; // null for a row that is none
    bool isDue(int row) const; // active, and its day has come
    int rowOf(const QString &id) const; // -1 if it is not listed

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString displayText(const RecurringTransaction &recurring, int column) const;
    QVariant foreground(int row, int column) const;
    QString accountName(const QString &accountId) const; // empty for an unknown one

    const AccountRepository *m_accounts;
    Clock m_today;
    QList<RecurringTransaction> m_templates{};
    mutable QHash<QString, QString> m_accountNames{}; // filled as the names are asked for
};
