#include "shell/EmptyPage.h"

#include "shell/theme/ButtonStyles.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/MaterialIcon.h"
#include "shell/theme/MoneyColors.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kIconPixels = 96;
constexpr int kHintWidth = 480;
constexpr QChar kWalletGlyph = u'\uE850';

QLabel *centredLabel(const QString &text, int fontRole)
{
    auto *label = new QLabel(text);
    label->setAlignment(Qt::AlignCenter);
    applyFontRole(label, fontRole);
    return label;
}

QLabel *mutedLabel(const QString &text, int fontRole)
{
    QLabel *label = centredLabel(text, fontRole);
    label->setStyleSheet(u"color: %1;"_s.arg(mutedColor().name()));
    return label;
}

QLabel *iconLabel()
{
    auto *label = new QLabel(kWalletGlyph);
    label->setAccessibleName(u" "_s); // the glyph is no letter of any script
    label->setAlignment(Qt::AlignCenter);
    label->setFont(iconFont(kIconPixels));
    label->setStyleSheet(u"color: #4DB6AC;"_s);
    return label;
}

QPushButton *createButton(const QString &text)
{
    auto *button = new QPushButton(text);
    button->setObjectName(u"createAccountButton"_s);
    // A width in the style goes before the widget's own; with its padding this one makes 180.
    button->setStyleSheet(primaryButtonStyle() + primaryButtonFocusStyle()
                          + u"QPushButton { min-width: 148px; }"_s);
    button->setMinimumHeight(40);
    button->setCursor(Qt::PointingHandCursor);
    applyFontRole(button, FontRole::Body); // a style sheet cuts it off from the application's font
    return button;
}

} // namespace

EmptyPage::EmptyPage(QWidget *parent)
    : QWidget(parent)
{
    QLabel *hint =
        mutedLabel(tr("You can also import transactions from a CSV file via File › Import."),
                   FontRole::Caption);
    hint->setWordWrap(true);
    hint->setMaximumWidth(kHintWidth);
    auto *hintRow = new QHBoxLayout;
    hintRow->addStretch(0);
    hintRow->addWidget(hint, 1);
    hintRow->addStretch(0);
    QPushButton *button = createButton(tr("Create Account"));
    connect(button, &QPushButton::clicked, this, &EmptyPage::createAccountRequested);

    auto *column = new QVBoxLayout(this);
    column->setSpacing(12);
    column->addStretch();
    column->addWidget(iconLabel());
    column->addSpacing(8);
    column->addWidget(centredLabel(tr("Welcome to Kestrelwood Pursewell"), FontRole::Title));
    column->addWidget(
        mutedLabel(tr("Create your first account to get started."), FontRole::Subheading));
    column->addSpacing(16);
    column->addWidget(button, 0, Qt::AlignHCenter);
    column->addSpacing(12);
    column->addLayout(hintRow);
    column->addStretch();
}
