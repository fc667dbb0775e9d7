#pragma once

#include <QByteArray>
#include <QString>

// The text of a file whose encoding nobody told: by its byte order mark, else as UTF-8 if all of it
// is valid, else as Windows-1252. A byte order mark at the start is not part of the text.
QString decodeText(const QByteArray &bytes);
