#pragma once

#include <QString>
#include <QStringList>

class PlainSqlite;

// A household's database of 15 years, the same on every machine and in every run: 800 payees,
// memos, check numbers, the default categories, linked transfers, older rows reconciled.
class BenchDatabase
{
public:
    enum class Shape {
        TenAccounts, // 100,000 transactions, 10,000 in each of ten accounts
        OneAccount, // 100,000 in the first account; the second holds its transfers' other sides
        Neglected, // as TenAccounts, with 5,000 payees and nothing reconciled but the second
                   // account, where 100 rows are left
    };

    // Builds "pursewell.db" in the directory through the program's own schema.
    BenchDatabase(Shape shape, const QString &directory);

    QString path() const { return m_path; }
    QStringList accountIds() const { return m_accountIds; }

    // Words that the search benches look for.
    static QString commonWord(); // in every twentieth payee
    static QString rareWord(); // in the memo of five rows

private:
    void migrate() const;
    void fill(Shape shape);
    void reconcileButFew(PlainSqlite &plain) const;

    QString m_path;
    QStringList m_accountIds{};
};
