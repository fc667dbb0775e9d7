#pragma once

#include <QStringList>

// The texts whose access key (the letter after "&") another text before them has already.
QStringList accessKeyClashes(const QStringList &texts);
