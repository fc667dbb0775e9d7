#include "services/QifLines.h"

QList<QStringView> qifLines(QStringView text)
{
    QList<QStringView> lines;
    const QChar *begin = text.begin();
    for (const QChar *end = begin; end != text.end(); ++end) {
        if (*end != u'\n' && *end != u'\r')
            continue;
        lines.append(QStringView(begin, end));
        begin = end + 1;
    }
    lines.append(QStringView(begin, text.end()));
    return lines;
}

QStringView cleanQifLine(QStringView line)
{
    const QChar *begin = line.begin();
    while (begin != line.end() && (*begin == QChar::ByteOrderMark || *begin == u'\r'))
        ++begin;
    return QStringView(begin, line.end()).trimmed();
}
