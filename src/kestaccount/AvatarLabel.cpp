#include "kestaccount/AvatarLabel.h"

#include <QEvent>
#include <QTextBoundaryFinder>

using namespace Qt::StringLiterals;

namespace KestAccount {

namespace {

constexpr int kSize = 36;

QString firstLetter(const QString &text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    const qsizetype end = finder.toNextBoundary();
    return end > 0 ? text.first(end) : QString();
}

} // namespace

QString initials(const QString &name, const QString &email)
{
    if (name.isEmpty())
        return email.isEmpty() ? u"?"_s : firstLetter(email).toUpper();
    const QString trimmed = name.trimmed();
    const QStringList parts = trimmed.split(u' ', Qt::SkipEmptyParts);
    QString letters = firstLetter(trimmed);
    if (parts.size() > 1)
        letters += firstLetter(parts.last());
    return letters.toUpper();
}

AvatarLabel::AvatarLabel(const QString &name, const QString &email, QWidget *parent)
    : QLabel(parent)
{
    setObjectName(u"avatar"_s);
    setTextFormat(Qt::PlainText);
    setText(initials(name, email));
    setAlignment(Qt::AlignCenter);
    setFixedSize(kSize, kSize);
    takeColor();
}

void AvatarLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        takeColor();
}

void AvatarLabel::takeColor()
{
    const QString style =
        u"QLabel { background: %1; color: white; border-radius: %2px; font-weight: 600; }"_s.arg(
            palette().color(QPalette::Highlight).name(), QString::number(kSize / 2));
    if (style != styleSheet()) // setting one changes the palette, and leads back here
        setStyleSheet(style);
}

} // namespace KestAccount
