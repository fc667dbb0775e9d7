#include "register/FieldLabel.h"

#include <QLabel>

QLabel *makeFieldLabel(const QString &text, QWidget *field)
{
    auto *label = new QLabel(text, field->parentWidget());
    label->setBuddy(field);
    return label;
}
