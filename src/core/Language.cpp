#include "core/Language.h"

#include <QLocale>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kLanguageKey{"ui/language"};

QString languageOfSystem()
{
    const QString code = QLocale().name().left(2);
    return Language::supported().contains(code) ? code : u"en"_s;
}

} // namespace

QStringList Language::supported()
{
    return {u"en"_s, u"es"_s, u"de"_s, u"fr"_s, u"ja"_s};
}

QString Language::current(bool resolveSystem)
{
    const QString stored = QSettings().value(kLanguageKey, u"system"_s).toString();
    return resolveSystem && stored == u"system"_s ? languageOfSystem() : stored;
}

void Language::store(const QString &word)
{
    QSettings().setValue(kLanguageKey, word);
}
