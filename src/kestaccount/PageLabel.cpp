#include "kestaccount/PageLabel.h"

#include <QApplication>
#include <QFontInfo>

#include <algorithm>

namespace KestAccount {

namespace {

constexpr int kSmallestPoints = 7;

} // namespace

PageLabel::PageLabel(const QString &text, int morePoints, QFont::Weight weight, QWidget *parent)
    : QLabel(text, parent)
    , m_morePoints(morePoints)
    , m_weight(weight)
{
    setTextFormat(Qt::PlainText);
    takeFont();
}

PageLabel *PageLabel::muted(const QString &text, int morePoints)
{
    auto *label = new PageLabel(text, morePoints);
    label->setForegroundRole(QPalette::PlaceholderText);
    label->wrapWords();
    return label;
}

void PageLabel::wrapWords()
{
    setWordWrap(true);
    setMinimumWidth(1);
}

void PageLabel::takeFont()
{
    QFont font = QApplication::font();
    const int points = QFontInfo(font).pointSize(); // also of a font that was given in pixels
    font.setPointSize(std::max(kSmallestPoints, points + m_morePoints));
    font.setWeight(m_weight);
    setFont(font);
}

} // namespace KestAccount
