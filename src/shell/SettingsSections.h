#pragma once

#include <QString>

class QFrame;
class QLabel;
class QPushButton;
class QWidget;

// What the pages of the preferences are put together from. The results have no parent yet.

QWidget *makeSection(const QString &title, const QString &description = {}); // its header alone
QFrame *makeDivider(); // between two sections
QLabel *makeHelpText(const QString &text);
QPushButton *makeLink(const QString &name, const QString &text, const QString &address);

// Gives the dividers and links below a widget the colours of the palette in force.
void restyleSections(const QWidget *root);
