#include "shell/SettingsSections.h"

#include "shell/theme/FontRoles.h"
#include "shell/theme/MoneyColors.h"

#include <QDesktopServices>
#include <QFrame>
#include <QGuiApplication>
#include <QLabel>
#include <QPalette>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView kDividerName{"divider"};
constexpr char kLinkProperty[] = "isLink";
constexpr int kTitleGap = 2;

QString dividerStyle()
{
    return u"color: %1;"_s.arg(isDarkPalette() ? u"#2A4038"_s : u"#D8E0DB"_s);
}

QString linkStyle()
{
    return u"QPushButton { color: %1; border: none; background: transparent; padding: 2px 0; "
           "text-align: left; } QPushButton:focus { text-decoration: underline; }"_s.arg(
               QGuiApplication::palette().color(QPalette::Highlight).name());
}

} // namespace

QWidget *makeSection(const QString &title, const QString &description)
{
    auto *section = new QWidget;
    auto *column = new QVBoxLayout(section);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kTitleGap);
    auto *titleLabel = new QLabel(title);
    titleLabel->setWordWrap(true);
    applyFontRole(titleLabel, FontRole::Subheading);
    column->addWidget(titleLabel);
    if (!description.isEmpty())
        column->addWidget(makeHelpText(description));
    return section;
}

QFrame *makeDivider()
{
    auto *divider = new QFrame;
    divider->setObjectName(kDividerName);
    divider->setFrameShape(QFrame::HLine);
    divider->setStyleSheet(dividerStyle());
    return divider;
}

QLabel *makeHelpText(const QString &text)
{
    auto *label = new QLabel(text);
    label->setWordWrap(true);
    applyFontRole(label, FontRole::Caption);
    label->setStyleSheet(u"color: %1;"_s.arg(mutedColor().name(QColor::HexRgb).toUpper()));
    return label;
}

QPushButton *makeLink(const QString &name, const QString &text, const QString &address)
{
    auto *link = new QPushButton(text);
    link->setObjectName(name);
    link->setProperty(kLinkProperty, true);
    link->setToolTip(address);
    link->setCursor(Qt::PointingHandCursor);
    link->setStyleSheet(linkStyle());
    QObject::connect(link, &QPushButton::clicked, link,
                     [address] { QDesktopServices::openUrl(QUrl(address)); });
    return link;
}

void restyleSections(const QWidget *root)
{
    const QList<QFrame *> dividers = root->findChildren<QFrame *>(kDividerName);
    for (QFrame *divider : dividers)
        divider->setStyleSheet(dividerStyle());
    const QList<QPushButton *> buttons = root->findChildren<QPushButton *>();
    for (QPushButton *button : buttons)
        if (button->property(kLinkProperty).toBool())
            button->setStyleSheet(linkStyle());
}
