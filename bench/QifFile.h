#pragma once

#include "HouseholdRows.h"

#include <QByteArray>
#include <QList>

// The text of a QIF file that another program could have exported, the same in every run: a
// category list and ten accounts, 8% of the records one side of a transfer whose other side is also
// there, 5% split over two or three categories, month-first dates with apostrophe years.
class QifFile
{
public:
    static constexpr int kAccounts = 10;

    explicit QifFile(int records);

    QByteArray text() const; // UTF-8, LF
    static QByteArray accountName(int account); // 0 to 9

private:
    void write(const HouseholdRow &row, bool split);
    void writeSplits(const HouseholdRow &row);

    QList<QByteArray> m_records; // by account
};
