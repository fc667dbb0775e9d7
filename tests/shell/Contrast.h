#pragma once

#include <QColor>
#include <QString>

inline constexpr double kTextContrast = 4.5; // of text to its ground, to be read by most people
inline constexpr double kLargeContrast = 3; // of large text, of signs and of what shows the focus

double contrast(const QColor &first, const QColor &second); // 1 to 21

// Empty if the text can be read, or is known to be of a fixed pair of colours that falls short.
QString contrastFault(const QString &what, const QColor &text, const QColor &ground, double needed);

struct PaleText
{
    QRgb text = 0;
    QRgb ground = 0;
};
const QList<PaleText> &knownPaleTexts();
