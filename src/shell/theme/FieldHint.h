#pragma once

class QLineEdit;
class QString;

// The hint of an empty field, which becomes wide enough for all of it in the font of the moment.
void setFieldHint(QLineEdit *edit, const QString &hint);
