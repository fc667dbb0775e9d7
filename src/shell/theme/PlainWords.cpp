#include "shell/theme/PlainWords.h"

#include <QTextDocument>

using namespace Qt::StringLiterals;

QString menuWords(const QString &words)
{
    QString text = words;
    return text.replace(u'&', u"&&"_s).replace(u'\t', u' ');
}

QString toolTipWords(const QString &words)
{
    // A tool tip has no format of its own to set: it guesses, and has to guess rich text here.
    return Qt::mightBeRichText(words) ? Qt::convertFromPlainText(words) : words;
}
