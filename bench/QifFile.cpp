#include "QifFile.h"

#include "core/Money.h"

namespace {

const QList<QByteArray> &categories()
{
    static const QList<QByteArray> names{
        "Auto:Fuel",     "Auto:Repairs", "Books",     "Clothing",  "Dining",    "Education",
        "Gifts",         "Groceries",    "Household", "Insurance", "Interest",  "Medical",
        "Pets & Garden", "Rent",         "Salary",    "Travel",    "Utilities", "Water"};
    return names;
}

bool isIncome(const QByteArray &category)
{
    return category == "Interest" || category == "Salary";
}

QByteArray amountText(qint64 cents)
{
    return formatAmount(cents).toLatin1();
}

QByteArray dateText(QDate date)
{
    return QByteArray::number(date.month()) + '/' + QByteArray::number(date.day()) + '\''
        + date.toString(u"yy").toLatin1();
}

QByteArray clearedMark(const HouseholdRow &row)
{
    if (row.reconciled)
        return "CR\n";
    return row.cleared ? "C*\n" : "";
}

QByteArray lineUnlessEmpty(char code, const QByteArray &value)
{
    return value.isEmpty() ? QByteArray() : code + value + '\n';
}

QByteArray categoryList()
{
    QByteArray list("!Type:Cat\n");
    for (const QByteArray &name : categories())
        list += 'N' + name + "\nD" + name.toLower() + '\n' + (isIncome(name) ? "I\n^\n" : "E\n^\n");
    return list;
}

} // namespace

QifFile::QifFile(int records)
    : m_records(kAccounts)
{
    HouseholdRows rows(records, categories());
    for (int i = 0; i < records; ++i) {
        HouseholdRow row = rows.draw(i, i % kAccounts);
        const bool transfer = rows.drawsChance(4) && i + 1 < records; // makes two records
        if (transfer) {
            write(HouseholdRows::otherSide(row, (row.account + 1) % kAccounts, rows.drawId()),
                  false);
            ++i;
        }
        write(row, !transfer && rows.drawsChance(5));
    }
}

QByteArray QifFile::text() const
{
    QByteArray text = categoryList();
    for (int account = 0; account < kAccounts; ++account)
        text += "!Account\nN" + accountName(account) + "\nTBank\n^\n!Type:Bank\n"
            + m_records.at(account);
    return text;
}

QByteArray QifFile::accountName(int account)
{
    return "Account " + QByteArray::number(account);
}

void QifFile::write(const HouseholdRow &row, bool split)
{
    QByteArray &text = m_records[row.account];
    text += 'D' + dateText(row.date) + "\nT" + amountText(row.amount_cents) + '\n';
    text += clearedMark(row) + lineUnlessEmpty('N', row.check_number);
    text += lineUnlessEmpty('P', row.payee) + lineUnlessEmpty('M', row.memo);
    if (row.linked_account >= 0)
        text += "L[" + accountName(row.linked_account) + "]\n";
    else
        text += 'L' + row.category_id + '\n'; // which is its name here
    if (split)
        writeSplits(row);
    text += "^\n";
}

// The shares sum up to the amount, whatever is left by the division.
void QifFile::writeSplits(const HouseholdRow &row)
{
    QByteArray &text = m_records[row.account];
    const qint64 count = row.amount_cents % 2 == 0 ? 2 : 3;
    const qsizetype first = categories().indexOf(row.category_id);
    for (qint64 i = 0; i < count; ++i) {
        const qint64 share = row.amount_cents / count;
        const qint64 rest = i == 0 ? row.amount_cents - share * count : 0;
        text += 'S' + categories().at((first + i) % categories().size());
        text += "\nEpart " + QByteArray::number(i + 1) + "\n$" + amountText(share + rest) + '\n';
    }
}
