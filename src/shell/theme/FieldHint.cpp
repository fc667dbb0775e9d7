#include "shell/theme/FieldHint.h"

#include <QLineEdit>

namespace {
constexpr int kFrame = 16; // pixels, both sides with the margins of the text
}

void setFieldHint(QLineEdit *edit, const QString &hint)
{
    edit->setPlaceholderText(hint);
    edit->setMinimumWidth(edit->fontMetrics().horizontalAdvance(hint) + kFrame);
}
