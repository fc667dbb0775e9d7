#pragma once

#include <QTranslator>

// For its lifetime new widgets speak that language, Qt's own texts in them included. Construct it
// before the state, since the default categories take their names from it.
class LanguageChange
{
public:
    explicit LanguageChange(const QString &language);

private:
    QTranslator m_qtTexts{}; // a translator that goes takes its texts with it
    QTranslator m_texts{};
};
