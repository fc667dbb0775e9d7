#pragma once

#include <QStringList>

// The interface language, as kept in the settings of this machine.
namespace Language {

QStringList supported(); // language codes

// The stored word as it stands ("system", or a code that need not be supported); resolved, what
// "system" means on this machine.
QString current(bool resolveSystem);

void store(const QString &word); // takes effect at the next start

}
