#include "shell/SettingsNavigation.h"

#include "shell/theme/FontRoles.h"
#include "shell/theme/MaterialIcon.h"

#include <QEvent>
#include <QGuiApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int kWidth = 180;
constexpr int kPadding = 2 * 8; // by its style, around the rows
constexpr int kIconSize = 20;
constexpr std::array<char32_t, 4> kGlyphs{0xE8B8, 0xE8EF, 0xE627, 0xE88E}; // by row

QColor paletteColor(QPalette::ColorRole role)
{
    return QGuiApplication::palette().color(role);
}

QIcon iconOf(char32_t glyph)
{
    QIcon icon(materialIcon(glyph, kIconSize, paletteColor(QPalette::Text)));
    icon.addPixmap(materialIcon(glyph, kIconSize, paletteColor(QPalette::HighlightedText)),
                   QIcon::Selected);
    return icon;
}

} // namespace

SettingsNavigation::SettingsNavigation(QWidget *parent)
    : QListWidget(parent)
{
    setObjectName(u"navigation"_s);
    setAccessibleName(tr("Pages"));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setIconSize({kIconSize, kIconSize});
    applyFontRole(this, FontRole::Body);
    addItems({tr("General"), tr("Register"), tr("Data & Sync"), tr("About")});
    applyTheme();
    fitToFont();
}

void SettingsNavigation::changeEvent(QEvent *event)
{
    QListWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitToFont();
}

// Larger than designed only for a font whose letters would be cut.
void SettingsNavigation::fitToFont()
{
    setFixedWidth(std::max(kWidth, sizeHintForColumn(0) + kPadding));
}

void SettingsNavigation::applyTheme()
{
    setStyleSheet(u"QListWidget {  background: %1;  border: none;  padding: 12px 8px;}"
                  "QListWidget::item {  color: %2;  padding: 8px 12px;  border-radius: 6px;}"
                  "QListWidget::item:hover {  background: %3;}"
                  "QListWidget::item:selected {  background: %4;  color: %5;}"_s.arg(
                      paletteColor(QPalette::Base).name(), paletteColor(QPalette::Text).name(),
                      paletteColor(QPalette::Button).name(),
                      paletteColor(QPalette::Highlight).name(),
                      paletteColor(QPalette::HighlightedText).name())
                  + u"QListWidget:focus {  border-right: 2px solid %1;  padding-right: 6px;}"_s.arg(
                      paletteColor(QPalette::Highlight).name()));
    for (int row = 0; row < count(); ++row)
        item(row)->setIcon(iconOf(kGlyphs.at(static_cast<size_t>(row))));
}
