#pragma once

#include <QString>

// A person's words in places that would read markup into them.
QString menuWords(const QString &words); // no access key, no shortcut column
QString toolTipWords(const QString &words); // never rich text
