#include "i18n/LanguageChange.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

using namespace Qt::StringLiterals;

LanguageChange::LanguageChange(const QString &language)
{
    const QString directory = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (language != u"en"_s && !m_qtTexts.load(QLocale(language), u"qtbase"_s, u"_"_s, directory))
        qFatal("no texts of Qt in %s", qPrintable(directory));
    if (!m_texts.load(u":/i18n/pursewell_%1.qm"_s.arg(language), u""_s, u""_s, u""_s))
        qFatal("no texts in %s", qPrintable(language));
    QCoreApplication::installTranslator(&m_qtTexts);
    QCoreApplication::installTranslator(&m_texts);
}
