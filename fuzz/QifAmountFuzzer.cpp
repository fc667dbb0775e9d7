#include "Require.h"

#include "services/QifAmount.h"

#include <QRegularExpression>
#include <QStringList>

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

using Amount = std::optional<qint64>;

bool groupsAreWhole(const QStringList &groups)
{
    for (qsizetype i = 1; i < groups.size(); ++i) {
        if (groups.at(i).size() != 3)
            return false;
    }
    return !groups.front().isEmpty() && groups.front().size() <= 3;
}

// The number without its groups, with a point before the decimals; "x" where it is none.
QString plainDigits(QString text)
{
    const qsizetype point = text.lastIndexOf(u'.');
    const qsizetype comma = text.lastIndexOf(u',');
    if (point >= 0 && comma >= 0)
        return text.remove(point > comma ? u',' : u'.').replace(u',', u'.');
    static const QRegularExpression lone_group(u"^[^.,]+[.,][0-9]{3}$"_s);
    if (text.count(u'.') + text.count(u',') == 1 && !lone_group.match(text).hasMatch())
        return text.replace(u',', u'.');
    if (point < 0 && comma < 0)
        return text;
    const QChar separator = point >= 0 ? u'.' : u',';
    return groupsAreWhole(text.split(separator)) ? text.remove(separator) : u"x"_s;
}

// The same reading by way of texts, slow and plain.
Amount slowAmount(const QString &original)
{
    QString text = original.trimmed();
    bool negative = text.startsWith(u'(') && text.endsWith(u')');
    if (negative)
        text = text.mid(1, text.size() - 2);
    text.removeIf(
        [](QChar character) { return character.isSpace() || u"$€£¥¢"_s.contains(character); });
    if (text.startsWith(u'+'))
        text.remove(0, 1);
    if (text.startsWith(u'-')) {
        text.remove(0, 1);
        negative = !negative;
    }
    text = plainDigits(text);
    static const QRegularExpression number(u"^([0-9]+[.]?[0-9]*|[.][0-9]+)$"_s);
    bool fits = false;
    const double cents = std::round((negative ? -1 : 1) * text.toDouble(&fits) * 100);
    const double limit = std::ldexp(1, 63);
    if (!fits || !number.match(text).hasMatch() || cents < -limit || cents >= limit)
        return std::nullopt;
    return static_cast<qint64>(cents);
}

QString withSeparatorsSwapped(QString text)
{
    for (QChar &character : text)
        character = character == u'.' ? u',' : character == u',' ? u'.' : character;
    return text;
}

// The smallest amount has no positive counterpart.
bool areOpposite(const Amount &left, const Amount &right)
{
    constexpr qint64 kSmallest = std::numeric_limits<qint64>::min();
    if (left == kSmallest || right == kSmallest)
        return !left || !right;
    return left.has_value() == right.has_value() && (!left || *left == -*right);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const Amount amount = parseQifAmount(text);
    require(amount == slowAmount(text));
    require(amount == parseQifAmount(withSeparatorsSwapped(text)));
    if (text.contains(u'('))
        return 0;
    require(areOpposite(amount, parseQifAmount(u'(' + text + u')')));
    QString spaced = text;
    require(parseQifAmount(spaced.insert(text.size() / 2, u" €\u00A0"_s)) == amount);
    return 0;
}
