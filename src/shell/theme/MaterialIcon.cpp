#include "shell/theme/MaterialIcon.h"

#include <QPainter>

using namespace Qt::StringLiterals;

QFont iconFont(int pixelSize)
{
    QFont font(u"Material Icons"_s);
    font.setPixelSize(pixelSize);
    return font;
}

QPixmap materialIcon(char32_t glyph, int pixelSize, const QColor &color)
{
    QPixmap pixmap(pixelSize, pixelSize);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(iconFont(pixelSize));
    painter.setPen(color);
    painter.drawText(pixmap.rect(), Qt::AlignCenter, QString::fromUcs4(&glyph, 1));
    return pixmap;
}
