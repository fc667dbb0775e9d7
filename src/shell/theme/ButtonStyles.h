#pragma once

#include <QString>

class QWidget;

QString primaryButtonStyle(); // the one button of a page that leads on
QString primaryButtonFocusStyle(); // goes with it, which shows no focus by itself
QString linkButtonStyle(); // for a flat button that reads like a link

// A style sheet takes what it wants of the palette when it is set: to be called after each change.
void restyleButtons(QWidget *parent);
