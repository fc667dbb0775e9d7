#include "services/TransferHint.h"

using namespace Qt::StringLiterals;

namespace {
constexpr QStringView kOpening = u"[→ ";
}

QString memoWithHint(const QString &accountName, const QString &memo)
{
    const QString hint = u"[→ "_s + accountName + u']';
    return memo.isEmpty() ? hint : QString(hint + u' ' + memo);
}

std::optional<TransferHint> parseTransferHint(const QString &memo)
{
    if (!memo.startsWith(kOpening))
        return std::nullopt;
    const qsizetype closing = memo.indexOf(u']', kOpening.size());
    if (closing <= kOpening.size())
        return std::nullopt;
    qsizetype rest = closing + 1;
    if (rest < memo.size() && memo.at(rest) == u' ')
        ++rest;
    return TransferHint{memo.sliced(kOpening.size(), closing - kOpening.size()), memo.sliced(rest)};
}
