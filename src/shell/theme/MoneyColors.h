#pragma once

#include <QColor>

// The palette in force decides, not the chosen theme: "system" has no colour of its own.
bool isDarkPalette();

QColor negativeColor();
QColor positiveColor(); // of zero too
QColor mutedColor(); // alike on both palettes
