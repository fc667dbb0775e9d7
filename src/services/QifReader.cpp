#include "services/QifReader.h"

#include "services/QifDate.h"
#include "services/QifLines.h"
#include "services/QifParser.h"

namespace {

constexpr QStringView kTypePrefix = u"!Type:";

bool hasPrefix(QStringView line, QStringView prefix)
{
    return line.startsWith(prefix, Qt::CaseInsensitive);
}

// The word behind the prefix, in lower case.
QString typeWord(QStringView header)
{
    return header.sliced(kTypePrefix.size()).trimmed().toString().toLower();
}

QifSection sectionOfType(const QString &word)
{
    if (word == u"cat")
        return QifSection::CategoryList;
    for (const QStringView ignored : {u"class", u"memorized", u"tag", u"security", u"prices"}) {
        if (word == ignored)
            return QifSection::Ignored;
    }
    return QifSection::Transactions;
}

} // namespace

QifParseResult parseQif(const QString &text, QifDateOrder order)
{
    const QList<QStringView> lines = qifLines(text);
    QifParser parser(order == QifDateOrder::Auto ? detectDateOrder(lines) : order);
    for (const QStringView rawLine : lines) {
        const QStringView line = cleanQifLine(rawLine);
        if (!line.isEmpty())
            parser.readLine(line);
    }
    return parser.finish();
}

QifCategoryField parseCategoryField(QStringView text)
{
    const qsizetype classMark = text.indexOf(u'/');
    const QStringView name = (classMark < 0 ? text : text.first(classMark)).trimmed();
    if (name.startsWith(u'[') && name.endsWith(u']'))
        return {.transferAccount = name.sliced(1, name.size() - 2).trimmed().toString()};
    return {.category = name.toString()};
}

QifSection classifyHeader(QStringView line)
{
    const QStringView header = line.trimmed();
    if (hasPrefix(header, kTypePrefix))
        return sectionOfType(typeWord(header));
    if (hasPrefix(header, u"!Account"))
        return QifSection::AccountBlock;
    if (hasPrefix(header, u"!Option") || hasPrefix(header, u"!Clear"))
        return QifSection::Ignored;
    return QifSection::None;
}

QifAccountKind accountKindOf(QStringView line)
{
    struct Kind
    {
        QStringView word;
        QifAccountKind kind;
    };
    constexpr Kind kKinds[] = {{u"ccard", QifAccountKind::CreditCard},
                               {u"invst", QifAccountKind::Investment},
                               {u"cash", QifAccountKind::Cash},
                               {u"oth a", QifAccountKind::OtherAsset},
                               {u"oth l", QifAccountKind::OtherLiability}};
    const QStringView header = line.trimmed();
    if (!hasPrefix(header, kTypePrefix))
        return QifAccountKind::Bank;
    const QString word = typeWord(header);
    for (const Kind &kind : kKinds) {
        if (word == kind.word)
            return kind.kind;
    }
    return QifAccountKind::Bank;
}
