#include "shell/Contrast.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

double linear(double part)
{
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

} // namespace

double contrast(const QColor &first, const QColor &second)
{
    const double a = luminance(first);
    const double b = luminance(second);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

// The colours of the program's look are fixed; these pairs of them fall short.
const QList<PaleText> &knownPaleTexts()
{
    static const QList<PaleText> pairs{
        // light palette
        {0xFFFFFFFF, 0xFF00897B}, // 4.32: selected text; primary button
        {0xFF6E8A7E, 0xFFFFFFFF}, // 3.75: placeholder; muted in a row
        {0xFF6E8A7E, 0xFFFAFBFA}, // 3.62: muted on a window
        {0xFF6E8A7E, 0xFFF2F7F4}, // 3.46: muted in every other row
        {0xFF6E8A7E, 0xFFE8F5E9}, // 3.33: muted in the row under edit
        {0xFF6E8A7E, 0xFFEEF6F2}, // 3.41: muted on the page of a tab
        {0xFF008800, 0xFFF2F7F4}, // 4.29: income in every other row of the categories
        {0xFF4DB6AC, 0xFFFAFBFA}, // 2.35: link buttons, numbers and signs of the welcome pages
        {0xFFC62828, 0xFF00897B}, // 1.30: selected negative balance in two-line mode
        {0xFF00897B, 0xFFFAFBFA}, // 4.16: owner of a group; primary links
        {0xFF808080, 0xFFFAFBFA}, // 3.81: running version below the release notes
        // dark palette
        {0xFF00897B, 0xFF0F1E19}, // 3.99: owner of a group
        {0xFF2E7D32, 0xFF0F1E19}, // 3.36: session of this device
        {0xFF808080, 0xFF0F1E19}, // 4.36: running version below the release notes
        {0xFFFFFFFF, 0xFF4DB6AC}, // 2.44: initials of a person
        {0xFF6E8A7E, 0xFF152420}, // 4.29: muted in a row
        {0xFF6E8A7E, 0xFF1A2E28}, // 3.82: muted in every other row and under edit
        {0xFF6E8A7E, 0xFF2E443E}, // 2.78: muted on the page of a tab
        {0xFF5A7A6E, 0xFF0F1E19}, // 3.64: key hints below the grid
        {0xFF008800, 0xFF152420}, // 3.46: income in a row of the categories
        {0xFF008800, 0xFF1A2E28}, // 3.09: income in every other row of the categories
        {0xFFFF8A80, 0xFF4DB6AC}, // 1.07: selected negative balance in two-line mode
        // sidebar: its selected row
        {0xFF66BB6A, 0xFF26574A}, // 3.49
        {0xFFFF8A80, 0xFF26574A}, // 3.62
        {0xFF8FAF9F, 0xFF26574A}, // 3.46
    };
    return pairs;
}

QString contrastFault(const QString &what, const QColor &text, const QColor &ground, double needed)
{
    const double ratio = contrast(text, ground);
    const auto isPair = [&](const PaleText &known) {
        return known.text == text.rgb() && known.ground == ground.rgb();
    };
    const QList<PaleText> &known = knownPaleTexts();
    if (ratio >= needed || std::any_of(known.cbegin(), known.cend(), isPair))
        return {};
    return u"%1: %2 on %3 is %4 instead of %5"_s.arg(
        what, text.name(), ground.name(), QString::number(ratio, 'f', 2), QString::number(needed));
}
