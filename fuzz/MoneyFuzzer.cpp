#include "Require.h"

#include "core/Dates.h"
#include "core/Money.h"

namespace {

// Whatever was read stands for an amount that can be written and read again.
void checkMoney(const QString &text, Currency currency)
{
    const qint64 amount = parseMoney(text, currency);
    const QString written = formatMoney(amount, currency);
    require(written.startsWith(u'-') == (amount < 0));
    require(formatMoney(negateMoney(amount), currency).startsWith(u'-') == (amount > 0));
    require(addMoney(amount, absoluteMoney(amount)) >= 0);
    if (moneyMagnitude(amount) < quint64(1) << 51) // beyond, floating point loses cents
        require(parseMoney(written, currency) == amount);
}

void checkDates(const QString &text)
{
    require(dateFromIso(text) == QDate::fromString(text, Qt::ISODate));
    const QDateTime stamp = stampFromIso(text);
    const QDateTime expected = QDateTime::fromString(text, Qt::ISODate);
    require(stamp == expected && stamp.timeSpec() == expected.timeSpec());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const auto currency = static_cast<Currency>(data[0] % 6);
    const auto *bytes = reinterpret_cast<const char *>(data + 1);
    const QString text = QString::fromUtf8(bytes, static_cast<qsizetype>(size - 1));
    checkMoney(text, currency);
    checkDates(text);
    return 0;
}
