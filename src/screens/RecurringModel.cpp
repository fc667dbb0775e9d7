#include "screens/RecurringModel.h"

#include "core/Money.h"
#include "data/AccountRepository.h"

#include <QColor>
#include <QGuiApplication>
#include <QLocale>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace {

const QColor kDueColor(0, 136, 0);

// The cells lie on the base colour, so it decides here and not the window's.
QColor paymentColor()
{
    const bool light = QGuiApplication::palette().color(QPalette::Base).lightness() >= 128;
    return light ? QColor(0xC6, 0x28, 0x28) : QColor(0xFF, 0x8A, 0x80);
}

} // namespace

RecurringModel::RecurringModel(const AccountRepository *accounts, QObject *parent, Clock today)
    : QAbstractTableModel(parent)
    , m_accounts(accounts)
    , m_today(std::move(today))
{
}

void RecurringModel::setTemplates(QList<RecurringTransaction> templates)
{
    beginResetModel();
    m_templates = std::move(templates);
    m_accountNames.clear(); // an account may have been renamed meanwhile
    endResetModel();
}

const RecurringTransaction *RecurringModel::templateAt(int row) const
{
    return row >= 0 && row < m_templates.size() ? &m_templates.at(row) : nullptr;
}

bool RecurringModel::isDue(int row) const
{
    const RecurringTransaction *recurring = templateAt(row);
    return recurring && recurring->is_active && recurring->next_due_date <= m_today();
}

int RecurringModel::rowOf(const QString &id) const
{
    for (int row = 0; row < m_templates.size(); ++row) {
        if (m_templates.at(row).id == id)
            return row;
    }
    return -1;
}

int RecurringModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_templates.size());
}

int RecurringModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : kColumnCount;
}

QVariant RecurringModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return displayText(m_templates.at(index.row()), index.column());
    case Qt::TextAlignmentRole:
        return index.column() == kAmount
            ? QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter))
            : QVariant();
    case Qt::ForegroundRole:
        return foreground(index.row(), index.column());
    default:
        return {};
    }
}

QString RecurringModel::displayText(const RecurringTransaction &recurring, int column) const
{
    switch (static_cast<Column>(column)) {
    case kAccount:
        return accountName(recurring.account_id);
    case kPayee:
        return recurring.payee;
    case kAmount:
        return formatMoney(recurring.amount);
    case kFrequency:
        return frequencyToString(recurring.frequency);
    case kNextDue:
        return QLocale().toString(recurring.next_due_date, QLocale::ShortFormat);
    case kAuto:
        return recurring.auto_post ? tr("Yes") : tr("No");
    case kStatus:
        return recurring.is_active ? tr("Active") : tr("Inactive");
    case kColumnCount:
        break;
    }
    return {};
}

QVariant RecurringModel::foreground(int row, int column) const
{
    const RecurringTransaction &recurring = m_templates.at(row);
    if (column == kAmount && recurring.amount < 0)
        return paymentColor();
    if (column == kNextDue && isDue(row))
        return kDueColor;
    if (column == kStatus && !recurring.is_active)
        return QColor(Qt::gray);
    return {};
}

QString RecurringModel::accountName(const QString &accountId) const
{
    const auto known = m_accountNames.constFind(accountId);
    if (known != m_accountNames.constEnd())
        return *known;
    const std::optional<Account> account = m_accounts->findById(accountId);
    return *m_accountNames.insert(accountId, account ? account->name : QString());
}

QVariant RecurringModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (static_cast<Column>(section)) {
    case kAccount:
        return tr("Account");
    case kPayee:
        return tr("Payee");
    case kAmount:
        return tr("Amount");
    case kFrequency:
        return tr("Frequency");
    case kNextDue:
        return tr("Next Due");
    case kAuto:
        return tr("Auto");
    case kStatus:
        return tr("Status");
    case kColumnCount:
        break;
    }
    return {};
}
