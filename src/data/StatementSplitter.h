#pragma once

#include <QStringList>

// Takes a migration script apart into statements without their final ';'. It goes by lines and
// knows nothing of strings or of comments behind code: enough for our scripts, which keep to its
// layout. A line that begins with "--" is a comment; a trigger stays whole from the line with BEGIN
// to the line that begins with END.
QStringList splitStatements(const QString &script);
