#include "register/RegisterModel.h"

#include "core/Money.h"
#include "register/DateInput.h"
#include "register/RegisterColumn.h"
#include "register/RegisterSort.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/MoneyColors.h"

using namespace Qt::StringLiterals;

namespace {

// The grid shows two decimals whatever the account's currency.
QString paymentText(qint64 amount)
{
    return amount < 0 ? formatAmount(negateMoney(amount)) : QString();
}

// A zero amount counts as a deposit.
QString depositText(qint64 amount)
{
    return amount < 0 ? QString() : formatAmount(amount);
}

QString clrText(const RegisterRow &row)
{
    if (row.reconciled)
        return u"R"_s;
    return row.cleared ? u"C"_s : QString();
}

QString storedText(const RegisterRow &row, int column)
{
    switch (column) {
    case RegisterColumn::Date:
        return DateInput::toText(row.date);
    case RegisterColumn::CheckNumber:
        return row.check_number;
    case RegisterColumn::Payee:
        return row.payee;
    case RegisterColumn::Category:
        return row.category_name;
    case RegisterColumn::Memo:
        return row.memo;
    case RegisterColumn::Payment:
        return paymentText(row.amount);
    case RegisterColumn::Deposit:
        return depositText(row.amount);
    case RegisterColumn::Clr:
        return clrText(row);
    default:
        return formatAmount(row.balance);
    }
}

bool isMoneyColumn(int column)
{
    return column == RegisterColumn::Payment || column == RegisterColumn::Deposit
        || column == RegisterColumn::Balance;
}

} // namespace

RegisterModel::RegisterModel(QObject *parent)
    : QAbstractTableModel(parent)
{
    resetInsertionBuffers();
}

int RegisterModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size()) + 1;
}

int RegisterModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : RegisterColumn::kCount;
}

QVariant RegisterModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const int column = index.column();
    const RegisterRow *row = rowAt(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return row ? rowText(index.row(), column, role) : insertionText(column, role);
    case Qt::TextAlignmentRole:
        return row ? alignment(column) : QVariant();
    case Qt::FontRole:
        return row && isMoneyColumn(column) ? QVariant(monoFont()) : QVariant();
    case Qt::ForegroundRole:
        if (row)
            return foreground(*row, column);
        return m_editRow < 0 && m_buffers.at(column) && m_buffers.at(column)->isEmpty()
            ? QVariant(mutedColor())
            : QVariant();
    case Qt::BackgroundRole:
        return background(index.row());
    case Qt::AccessibleTextRole:
        return row ? spokenText(index) : spokenInsertionText(column);
    case Qt::AccessibleDescriptionRole:
        return m_twoLineMode && column == RegisterColumn::Payee
            ? index.siblingAtColumn(RegisterColumn::Memo).data(Qt::EditRole)
            : QVariant();
    default:
        return {};
    }
}

QVariant RegisterModel::insertionText(int column, int role) const
{
    // While a stored row is under edit the buffers are that row's, and this one stays blank.
    const QString *buffer = m_editRow < 0 ? m_buffers.at(column) : nullptr;
    if (!buffer)
        return {};
    if (role == Qt::DisplayRole && buffer->isEmpty())
        return columnName(column);
    return *buffer;
}

QVariant RegisterModel::rowText(int modelRow, int column, int role) const
{
    const RegisterRow &row = *rowAt(modelRow);
    if (role == Qt::DisplayRole && column == RegisterColumn::Category && row.is_split)
        return tr("—Split—");
    if (modelRow == m_editRow && column != RegisterColumn::Balance)
        return *m_buffers.at(column);
    if (role == Qt::EditRole && column == RegisterColumn::Balance && modelRow != m_editRow)
        return {};
    return storedText(row, column);
}

// Invalid where what is shown can be read out as it stands.
QVariant RegisterModel::spokenText(const QModelIndex &index) const
{
    if (index.column() != RegisterColumn::Clr)
        return {};
    const QString mark = index.data().toString().trimmed().toUpper();
    if (mark == u"R"_s)
        return tr("Reconciled");
    return mark == u"C"_s ? tr("Cleared") : tr("Uncleared");
}

QString RegisterModel::spokenInsertionText(int column) const
{
    const QString text = insertionText(column, Qt::EditRole).toString();
    return text.isEmpty() ? tr("New transaction, %1").arg(spokenColumnName(column))
                          : tr("New transaction, %1: %2").arg(spokenColumnName(column), text);
}

QString RegisterModel::spokenColumnName(int column) const
{
    switch (column) {
    case RegisterColumn::CheckNumber:
        return tr("Check number");
    case RegisterColumn::Clr:
        return tr("Cleared");
    default:
        return columnName(column);
    }
}

QVariant RegisterModel::alignment(int column) const
{
    if (isMoneyColumn(column))
        return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    if (column == RegisterColumn::Clr)
        return QVariant::fromValue(Qt::Alignment(Qt::AlignCenter));
    return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
}

QVariant RegisterModel::foreground(const RegisterRow &row, int column) const
{
    switch (column) {
    case RegisterColumn::Memo:
    case RegisterColumn::Clr:
        return mutedColor();
    case RegisterColumn::Payment:
        return negativeColor();
    case RegisterColumn::Deposit:
        return row.amount >= 0 ? QVariant(positiveColor()) : QVariant();
    case RegisterColumn::Balance:
        return row.balance < 0 ? QVariant(negativeColor()) : QVariant();
    default:
        return {};
    }
}

QVariant RegisterModel::background(int modelRow) const
{
    if (m_twoLineMode || !ownsBuffers(modelRow))
        return {};
    return isDarkPalette() ? QColor(u"#1A2E28"_s) : QColor(u"#E8F5E9"_s);
}

bool RegisterModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !index.isValid())
        return false;
    if (QString *buffer = m_buffers.at(index.column()))
        *buffer = value.toString();
    Q_EMIT dataChanged(index, index);
    return true;
}

QString RegisterModel::columnName(int column) const
{
    switch (column) {
    case RegisterColumn::Date:
        return tr("Date");
    case RegisterColumn::CheckNumber:
        return tr("Chk #");
    case RegisterColumn::Payee:
        return tr("Payee");
    case RegisterColumn::Category:
        return tr("Category");
    case RegisterColumn::Memo:
        return tr("Memo");
    case RegisterColumn::Payment:
        return tr("Payment");
    case RegisterColumn::Deposit:
        return tr("Deposit");
    case RegisterColumn::Clr:
        return tr("Clr");
    case RegisterColumn::Balance:
        return tr("Balance");
    default:
        return {};
    }
}

QVariant RegisterModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= RegisterColumn::kCount)
        return {};
    if (role == Qt::AccessibleTextRole)
        return spokenColumnName(section);
    if (role != Qt::DisplayRole)
        return {};
    if (section == RegisterColumn::Payee && m_twoLineMode)
        return tr("Payee / Memo");
    return columnName(section);
}

Qt::ItemFlags RegisterModel::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags shown = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    const bool insertion = index.row() == insertionRow();
    if (index.column() == RegisterColumn::Balance || (!insertion && index.row() != m_editRow))
        return shown;
    if (isSplitRow(index.row()) && RegisterColumn::belongsToSplitLines(index.column()))
        return shown;
    return shown | Qt::ItemIsEditable;
}

void RegisterModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= RegisterColumn::kCount)
        return;
    beginResetModel();
    m_sortColumn = column;
    m_sortOrder = order;
    sortRegisterRows(m_rows, m_sortColumn, m_sortOrder);
    endResetModel();
    Q_EMIT sortChanged(column, order);
}

void RegisterModel::setRows(QList<RegisterRow> rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    sortRegisterRows(m_rows, m_sortColumn, m_sortOrder);
    m_editRow = -1;
    resetInsertionBuffers();
    endResetModel();
}

bool RegisterModel::newestFirst() const
{
    return m_sortColumn == RegisterColumn::Date && m_sortOrder == Qt::DescendingOrder;
}

int RegisterModel::insertionRow() const
{
    return newestFirst() ? 0 : static_cast<int>(m_rows.size());
}

const RegisterRow *RegisterModel::rowAt(int modelRow) const
{
    const int place = newestFirst() ? modelRow - 1 : modelRow;
    return place >= 0 && place < m_rows.size() ? &m_rows.at(place) : nullptr;
}

bool RegisterModel::isSplitRow(int modelRow) const
{
    const RegisterRow *row = rowAt(modelRow);
    return row && row->is_split;
}

void RegisterModel::setEditRow(int row)
{
    const int previous = std::exchange(m_editRow, row);
    emitRowChanged(previous);
    emitRowChanged(m_editRow);
}

bool RegisterModel::ownsBuffers(int modelRow) const
{
    return modelRow == (m_editRow < 0 ? insertionRow() : m_editRow);
}

void RegisterModel::emitRowChanged(int modelRow)
{
    if (modelRow >= 0)
        Q_EMIT dataChanged(index(modelRow, 0), index(modelRow, RegisterColumn::kCount - 1));
}

void RegisterModel::loadRowIntoBuffers(int modelRow)
{
    const RegisterRow *row = rowAt(modelRow);
    if (!row)
        return;
    for (int column = 0; column <= RegisterColumn::kLastNavigable; ++column)
        *m_buffers.at(column) = storedText(*row, column);
    m_buffers.category_id = row->category_id;
}

void RegisterModel::resetInsertionBuffers()
{
    m_buffers = {};
    m_buffers.date =
        m_lastEnteredDate.isEmpty() ? DateInput::toText(QDate::currentDate()) : m_lastEnteredDate;
}
