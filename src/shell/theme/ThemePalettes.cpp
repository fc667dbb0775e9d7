#include "shell/theme/ThemePalettes.h"

namespace {

struct PaletteRow
{
    QPalette::ColorRole role;
    QRgb dark;
    QRgb light;
};

constexpr PaletteRow kColors[] = {
    {QPalette::Window, 0xFF0F1E19, 0xFFFAFBFA},
    {QPalette::WindowText, 0xFFD8E8DF, 0xFF1B2D26},
    {QPalette::Base, 0xFF152420, 0xFFFFFFFF},
    {QPalette::AlternateBase, 0xFF1A2E28, 0xFFF2F7F4},
    {QPalette::Text, 0xFFD8E8DF, 0xFF1B2D26},
    {QPalette::Button, 0xFF1E3530, 0xFFE0EBE5},
    {QPalette::ButtonText, 0xFFD8E8DF, 0xFF1B2D26},
    {QPalette::Highlight, 0xFF4DB6AC, 0xFF00897B},
    {QPalette::HighlightedText, 0xFF0F1E19, 0xFFFFFFFF},
    {QPalette::ToolTipBase, 0xFF1E3530, 0xFFFFFFFF},
    {QPalette::ToolTipText, 0xFFD8E8DF, 0xFF1B2D26},
    {QPalette::PlaceholderText, 0xFF8FAF9F, 0xFF6E8A7E},
    {QPalette::Mid, 0xFF2A4038, 0xFFD8E0DB},
    {QPalette::Light, 0xFF2A4038, 0xFFFFFFFF},
    {QPalette::Dark, 0xFF0A1510, 0xFF9BB0A3},
};

constexpr PaletteRow kDisabledColors[] = {
    {QPalette::WindowText, 0xFF3A5A4A, 0xFFA0B5A8},
    {QPalette::Text, 0xFF3A5A4A, 0xFFA0B5A8},
    {QPalette::ButtonText, 0xFF3A5A4A, 0xFFA0B5A8},
};

QPalette build(QRgb PaletteRow::*color)
{
    QPalette palette;
    for (const PaletteRow &row : kColors)
        palette.setBrush(row.role, QBrush(QColor(row.*color)));
    for (const PaletteRow &row : kDisabledColors)
        palette.setBrush(QPalette::Disabled, row.role, QBrush(QColor(row.*color)));
    return palette;
}

} // namespace

QPalette lightPalette()
{
    return build(&PaletteRow::light);
}

QPalette darkPalette()
{
    return build(&PaletteRow::dark);
}
