#pragma once

#include <QFont>
#include <QPixmap>

// The icon font, whose glyphs stand at private code points. In pixels: icons do not grow with the
// text. Without the font's registration the glyphs stay unresolved and nothing else breaks.
QFont iconFont(int pixelSize);

// One glyph, centred on a transparent square of that many pixels.
QPixmap materialIcon(char32_t glyph, int pixelSize, const QColor &color);
