#pragma once

class QLabel;
class QString;
class QWidget;

// A label in the field's parent that has the field as its buddy, for rows that no form layout
// labels: screen readers take a field's name from it.
QLabel *makeFieldLabel(const QString &text, QWidget *field);
