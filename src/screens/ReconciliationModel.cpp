#include "screens/ReconciliationModel.h"

#include "core/Money.h"
#include "shell/theme/MoneyColors.h"

#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

int ReconciliationModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_transactions.size());
}

int ReconciliationModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ReconciliationModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const Transaction &transaction = m_transactions.at(index.row());
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
        return displayText(transaction, column);
    case Qt::CheckStateRole:
        if (column == Tick)
            return m_checked.at(index.row()) ? Qt::Checked : Qt::Unchecked;
        return {};
    case Qt::AccessibleTextRole:
        return spokenText(index);
    case Qt::TextAlignmentRole:
        return column == Amount ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case Qt::ForegroundRole:
        return column == Amount && transaction.amount < 0 ? QVariant(negativeColor()) : QVariant();
    default:
        return {};
    }
}

QString ReconciliationModel::displayText(const Transaction &transaction, int column) const
{
    switch (column) {
    case Date:
        return transaction.date.toString(u"MM/dd/yyyy"_s);
    case Payee:
        return transaction.payee;
    case Amount:
        return formatMoney(transaction.amount); // alike for every account, as in the register
    case Cleared:
        return transaction.cleared ? u"C"_s : QString();
    default:
        return {};
    }
}

// The tick and the sign as words; invalid where what is shown can be read out as it stands.
QVariant ReconciliationModel::spokenText(const QModelIndex &index) const
{
    if (index.column() == Tick)
        return m_checked.at(index.row()) ? tr("Ticked") : tr("Not ticked");
    if (index.column() == Cleared)
        return m_transactions.at(index.row()).cleared ? tr("Cleared") : tr("Uncleared");
    return {};
}

bool ReconciliationModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.column() != Tick || role != Qt::CheckStateRole)
        return false;
    if (m_checked.at(index.row()) != (value.toInt() == Qt::Checked))
        toggle(index.row());
    return true;
}

QVariant ReconciliationModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::AccessibleTextRole && section == Tick)
        return tr("Ticked"); // its head is blank
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case Date:
        return tr("Date");
    case Payee:
        return tr("Payee");
    case Amount:
        return tr("Amount");
    case Cleared:
        return tr("Clr");
    default:
        return QString();
    }
}

Qt::ItemFlags ReconciliationModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.column() == Tick ? flags | Qt::ItemIsUserCheckable : flags;
}

void ReconciliationModel::setTransactions(QList<Transaction> transactions)
{
    QHash<QString, bool> known;
    known.reserve(m_transactions.size());
    for (int row = 0; row < rowCount(); ++row)
        known.insert(m_transactions.at(row).id, m_checked.at(row));

    beginResetModel();
    m_transactions = std::move(transactions);
    m_checked.clear();
    m_checked.reserve(m_transactions.size());
    for (const Transaction &transaction : std::as_const(m_transactions))
        m_checked << known.value(transaction.id, transaction.cleared);
    endResetModel();
    Q_EMIT ticksChanged();
}

int ReconciliationModel::rowOf(const QString &transactionId) const
{
    const auto found =
        std::find_if(m_transactions.cbegin(), m_transactions.cend(),
                     [&transactionId](const Transaction &row) { return row.id == transactionId; });
    return found == m_transactions.cend() ? -1 : static_cast<int>(found - m_transactions.cbegin());
}

void ReconciliationModel::toggle(int row)
{
    m_checked[row] = !m_checked.at(row);
    const QModelIndex box = index(row, Tick);
    Q_EMIT dataChanged(box, box, {Qt::CheckStateRole});
    Q_EMIT ticksChanged();
}

ClearedTotals ReconciliationModel::totals() const
{
    ClearedTotals totals;
    for (int row = 0; row < rowCount(); ++row) {
        if (!m_checked.at(row))
            continue;
        const qint64 amount = m_transactions.at(row).amount;
        qint64 &side = amount < 0 ? totals.withdrawals : totals.deposits;
        side = addMoney(side, amount);
    }
    return totals;
}
