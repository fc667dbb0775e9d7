#pragma once

#include <QDate>
#include <QHashFunctions>
#include <QString>

// What two transactions of one account have in common if one of them is taken for a repetition: the
// date as stored, the amount and the payee to the letter.
struct DuplicateKey
{
    DuplicateKey(QDate day, qint64 minorUnits, const QString &name);

    QDate date{};
    qint64 amount = 0;
    QString payee{};

    bool operator==(const DuplicateKey &) const = default;
};

inline size_t qHash(const DuplicateKey &key, size_t seed = 0) noexcept
{
    return qHashMulti(seed, key.date, key.amount, key.payee);
}
