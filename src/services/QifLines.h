#pragma once

#include <QList>
#include <QStringView>

// The lines of a text, whichever of CR, LF and CR LF ends them. They point into the text; empty
// ones may be among them.
QList<QStringView> qifLines(QStringView text);

// The line without the byte order marks that joined files leave inside, and without the white space
// around it.
QStringView cleanQifLine(QStringView line);
