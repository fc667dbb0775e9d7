#include "shell/WelcomeScreen.h"

#include "shell/theme/ButtonStyles.h"
#include "shell/theme/FontRoles.h"
#include "shell/theme/MoneyColors.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargin = 40;
constexpr int kColumnWidth = 560;
constexpr int kIconSize = 80;
constexpr int kButtonHeight = 40;

QString colorStyle(const QString &color)
{
    return u"color: %1;"_s.arg(color);
}

void makePrimary(QPushButton *button)
{
    button->setFlat(false);
    button->setStyleSheet(primaryButtonStyle() + primaryButtonFocusStyle());
    button->setMinimumHeight(kButtonHeight);
}

void makeLink(QPushButton *button)
{
    button->setFlat(true);
    button->setStyleSheet(linkButtonStyle());
    button->setMinimumHeight(0);
}

QLabel *iconLabel(QWidget *parent)
{
    const QPixmap icon(u":/icons/icons/app_icon.png"_s);
    auto *label = new QLabel(parent);
    label->setAlignment(Qt::AlignCenter);
    label->setPixmap(
        icon.scaled(kIconSize, kIconSize, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    return label;
}

QLayout *numberedRow(int number, const QString &text)
{
    auto *numberLabel = new QLabel(QString::number(number));
    numberLabel->setFixedWidth(20);
    numberLabel->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    numberLabel->setStyleSheet(colorStyle(u"#4DB6AC"_s));
    applyFontRole(numberLabel, FontRole::BodyMedium);

    auto *textLabel = new QLabel(text);
    textLabel->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    textLabel->setWordWrap(true);
    applyFontRole(textLabel, FontRole::Body);

    auto *row = new QHBoxLayout;
    row->addWidget(numberLabel, 0, Qt::AlignTop);
    row->addWidget(textLabel, 1);
    return row;
}

} // namespace

WelcomeScreen::WelcomeScreen(QWidget *parent)
    : QWidget(parent)
    , m_titleLabel(addLabel(u"titleLabel"_s, FontRole::Title))
    , m_subtitleLabel(addLabel(u"subtitleLabel"_s, FontRole::Subheading))
    , m_sessionEndedLabel(addLabel(u"sessionEndedLabel"_s, FontRole::BodyMedium))
    , m_howItWorksCard(buildHowItWorksCard())
    , m_createAccountButton(addButton(u"createAccountButton"_s))
    , m_signInButton(addButton(u"signInButton"_s))
{
    m_sessionEndedLabel->setText(tr("Your session has ended. Sign back in to keep syncing."));
    m_sessionEndedLabel->setStyleSheet(colorStyle(u"#4DB6AC"_s));
    connect(m_createAccountButton, &QPushButton::clicked, this,
            &WelcomeScreen::createAccountRequested);
    connect(m_signInButton, &QPushButton::clicked, this, &WelcomeScreen::signInRequested);
    buildLayout();
    applyThemeColors();
    setReturningUser(false);
}

QLabel *WelcomeScreen::addLabel(const QString &name, int fontRole)
{
    auto *label = new QLabel(this);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    applyFontRole(label, fontRole);
    return label;
}

QPushButton *WelcomeScreen::addButton(const QString &name)
{
    auto *button = new QPushButton(this);
    button->setObjectName(name);
    button->setCursor(Qt::PointingHandCursor);
    applyFontRole(button, FontRole::Body); // a style sheet cuts it off from the application's font
    return button;
}

void WelcomeScreen::buildLayout()
{
    auto *noteLabel = addLabel(u"noteLabel"_s, FontRole::Caption);
    noteLabel->setText(tr("Works fully offline. Your data stays on this device."));
    noteLabel->setStyleSheet(colorStyle(mutedColor().name()));

    // Word-wrapped labels take their line length from the column, so the column is what is centred.
    auto *column = new QWidget(this);
    column->setMaximumWidth(kColumnWidth);
    auto *rows = new QVBoxLayout(column);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(iconLabel(column));
    rows->addSpacing(20);
    rows->addWidget(m_titleLabel);
    rows->addSpacing(8);
    rows->addWidget(m_subtitleLabel);
    rows->addSpacing(16);
    rows->addWidget(m_sessionEndedLabel);
    rows->addSpacing(8);
    rows->addWidget(m_howItWorksCard);
    rows->addSpacing(16);
    rows->addWidget(noteLabel);
    rows->addSpacing(24);
    rows->addWidget(m_createAccountButton, 0, Qt::AlignHCenter);
    rows->addSpacing(20);
    rows->addWidget(m_signInButton, 0, Qt::AlignHCenter);

    // The column takes all the width it may; the stretches share what is left.
    auto *centred = new QHBoxLayout;
    centred->addStretch(0);
    centred->addWidget(column, 1);
    centred->addStretch(0);

    auto *page = new QVBoxLayout(this);
    page->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    page->addStretch();
    page->addLayout(centred);
    page->addStretch();
}

QWidget *WelcomeScreen::buildHowItWorksCard()
{
    auto *card = new QWidget(this);
    card->setObjectName(u"HowItWorksCard"_s);
    auto *heading = new QLabel(tr("How it works"), card);
    applyFontRole(heading, FontRole::Subheading);

    auto *rows = new QVBoxLayout(card);
    rows->setContentsMargins(20, 16, 20, 16);
    rows->addWidget(heading);
    rows->addSpacing(4);
    rows->addLayout(numberedRow(1,
                                tr("Add an account (checking, savings, credit card, or any "
                                   "account you'd like to track).")));
    rows->addLayout(numberedRow(2, tr("Record transactions as you spend.")));
    rows->addLayout(numberedRow(3, tr("Reconcile when your statement arrives.")));
    return card;
}

void WelcomeScreen::applyThemeColors()
{
    const bool dark = isDarkPalette();
    m_subtitleLabel->setStyleSheet(colorStyle(dark ? u"#8FAF9F"_s : u"#4A6358"_s));
    m_howItWorksCard->setStyleSheet(
        u"#HowItWorksCard { border: 1px solid %1; border-radius: 10px; }"_s.arg(
            dark ? u"#2A4038"_s : u"#D8E0DB"_s));
}

void WelcomeScreen::setReturningUser(bool returning)
{
    m_titleLabel->setText(returning ? tr("Welcome back") : tr("Welcome to\nKestrelwood Pursewell"));
    m_subtitleLabel->setText(returning ? tr("Sign in to keep your data synced across devices.")
                                       : tr("A digital pursewell register."));
    m_sessionEndedLabel->setVisible(returning);
    m_howItWorksCard->setVisible(!returning);
    m_signInButton->setText(returning ? tr("Sign In") : tr("Already have an account? Sign In"));
    m_createAccountButton->setText(returning ? tr("Create a different account")
                                             : tr("Create Your First Account"));
    makePrimary(returning ? m_signInButton : m_createAccountButton);
    makeLink(returning ? m_createAccountButton : m_signInButton);
}
